#include "panels/identities.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/form2.h"
#include "core/forms/frmcamp2.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmopen.h"
#include "core/forms/tmpfrm.h"
#include "core/identity_rows.h"
#include "core/messages.h"
#include "core/numbers.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "platform/files.h"
#include "script/word_search.h"

#include <algorithm>
#include <optional>

namespace tarvelin
{

namespace
{

constexpr int customFaceLabel = 73; // of Texty
constexpr int customFaceTag = 1;    // of its row in ksichty
constexpr int lastFaceLookedFor = 52;

struct Glasses
{
  int text; ///< entry of Texty
  std::string_view value;
};

constexpr Glasses glasses[] = {
    {70, "none"},
    {71, "sunglasses"},
    {72, "spectacles"},
};

/// The identities of the mission or of the campaign.
struct Store
{
  Array<ZaznamIdentity>& records;
  std::int16_t& count;
  std::int16_t& current;
};

bool inWizard()
{
  return shared.KampanMod != 0;
}

Store store()
{
  if (inWizard())
    return {shared.IdentityKampane, shared.PocetIdentitKampane, shared.AktualniIdentitaKampane};
  return {shared.Identity, shared.PocetIdentit, shared.AktualniIdentita};
}

/// The identity on show. Throws 9 when there is none.
ZaznamIdentity& current()
{
  return store().records.at(store().current);
}

void readCatalogue(std::string_view file, Combo& combo, bool storeCodes)
{
  const std::string path = programFile(file);
  if (platform::fileExists(path))
    NactiObliceje(path, combo, storeCodes);
  else
    ZapisLog("Chybí: " + path + std::string(crlf));
}

/// The players that the game knows: each has a folder.
void readPlayers()
{
  Form2.List1.clear();
  if (shared.CestaHry.empty() || !attempt([] { tmpfrm.tmpdir.setPath(shared.CestaHry + "\\users"); }))
    return;
  for (const std::string& player : tmpfrm.tmpdir.names())
    Form2.List1.add(player);
}

void Form2_Load()
{
  for (Array<ZaznamIdentity>* const records : {&shared.Identity, &shared.IdentityKampane})
    if (!records->dimensioned())
      records->reset();
  Form2.ksichty.clear(); // at a first start the choice of the language has put its word there
  Form2.hlasy.clear();
  readCatalogue("\\Bfdata\\Faces.dat", Form2.ksichty, true);
  readCatalogue("\\Bfdata\\Speakers.dat", Form2.hlasy, false);
  attempt([] { Form2.hlasy.select(0); });
  brejle();
  Form2.Command1.enable(false);
  attempt([] { store().records.at(0).Jmeno = Form2.Text1.text(); });
  attempt([] { store().records.at(0).VyskaHlasu = "1"; });
  readPlayers();
  clearIdentityRows(IdentitySide::mission);
  clearIdentityRows(IdentitySide::campaign);
}

void Form2_Activate()
{
  showIdentityRows();
  Form2.cmdPrev.show(inWizard());
  Form2.setCaption(Texty(inWizard() ? 66 : 65));
  if (Form2.seznamidentit.count() == 0)
    Form2.cmdelall.enable(false);
}

/// The game takes class names of Latin letters: what follows the first other character is cut off.
void txtnazev_Change()
{
  const std::string& name = Form2.txtnazev.text();
  const auto letter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  const auto end = std::ranges::find_if_not(name, letter);
  if (end != name.end())
    Form2.txtnazev.set(std::string(name.begin(), end));
}

void Text1_Change()
{
  attempt([] { current().Jmeno = Form2.Text1.text(); });
}

void Text2_Change()
{
  attempt([] { current().VyskaHlasu = numberText(val(Form2.Text2.text())); });
}

void List1_Click()
{
  attempt([] { shared.SlozkaUzivatele = shared.CestaHry + "\\users\\" + Form2.List1.text(Form2.List1.index()); });
}

void hlasy_Click()
{
  attempt([] { current().Hlas = Form2.hlasy.text(Form2.hlasy.index()); });
}

void bryle_Click()
{
  attempt([] { current().Bryle = glasses[Form2.bryle.tag(Form2.bryle.index()) - 1].value; });
}

void showCustomFace(bool on)
{
  Form2.Command1.enable(on);
  Form2.List1.show(on);
  Form2.lbljmeno.show(on);
}

/// The custom face waits for its picture; until then the identity keeps its old one.
void ksichty_Click()
{
  const bool custom = Form2.ksichty.text() == Texty(customFaceLabel);
  showCustomFace(custom);
  if (custom)
    return;
  const auto code = [] { return shared.KodyObliceju.at(Form2.ksichty.index()); };
  attempt([&] { current().Oblicej = code(); });
  attempt([] { current().Obrazek.clear(); });
  attempt([&] { Form2.Image1.load(programFile("\\Bfdata\\dtface\\") + code() + ".jpg"); });
}

void cmdadd_Click()
{
  showIdentityRows();
  const Store identities = store();
  Form2.cmdelall.enable(true);
  attempt([&] { identities.count = counted(identities.count); });
  attempt([&] { identities.records.redimPreserve(identities.count); });
  const int row = Form2.seznamidentit.add(Form2.txtnazev.text());
  attempt([&] { identities.current = toInt16(row); });
  // The new identity takes what the fields show.
  for (void (*const take)() : {Text1_Change, Text2_Change, List1_Click, hlasy_Click, bryle_Click, ksichty_Click})
    take();
  enableIdentityFields(true);
  Form2.seznamidentit.mark(row, true);
}

void cmdelall_Click()
{
  showIdentityRows();
  const Store identities = store();
  identities.records.reset();
  identities.count = 0;
  identities.current = 0;
  enableIdentityFields(false);
  Form2.seznamidentit.clear();
  Form2.cmdelall.enable(false);
}

void showGlasses(std::string_view value)
{
  const std::string wanted = upper(value);
  for (int i = 0; i < static_cast<int>(std::size(glasses)); ++i)
    if (wanted == upper(glasses[i].value))
      attempt([&] { Form2.bryle.select(i); });
}

/// A custom face has no row to select: the combo then stays at the face before.
void showFace(const std::string& code)
{
  for (int i = 0; i <= lastFaceLookedFor; ++i)
    attempt(
        [&]
        {
          if (shared.KodyObliceju.at(i) == code)
            Form2.ksichty.select(i);
        });
}

void seznamidentit_Click()
{
  showIdentityRows();
  if (Form2.seznamidentit.index() < 0)
    return;
  attempt([] { store().current = toInt16(Form2.seznamidentit.index()); });
  attempt([] { Form2.Text1.set(current().Jmeno); });
  attempt([] { Form2.Text2.set(current().VyskaHlasu); });
  attempt([] { showGlasses(current().Bryle); });
  // The voices stand in the catalogue's order: one that is not sorted hides some from the search.
  attempt([] { Form2.hlasy.select(BNajdi2(0, Form2.hlasy.count() - 1, current().Hlas, Form2.hlasy)); });
  attempt([] { showFace(std::string(current().Oblicej)); });
}

/// The picker leaves its choice where the overview's picture is kept, which is none of the identities' business.
void Command1_Click()
{
  const std::string overviewPicture = shared.CestaObrazku;
  Frmopen.ProOblicej = true;
  Frmopen.ProKampan = false;
  Frmopen.File1.setPattern("*.jpg;*.paa*");
  Frmopen.showModal();
  Frmopen.ProOblicej = false;
  shared.CestaObrazku = overviewPicture;
}

void cmdOk_Click()
{
  if (inWizard())
    frmcamp3.show();
  Form2.hide();
}

void cmdPrev_Click()
{
  if (!inWizard())
    return;
  frmcamp2.show();
  Form2.hide();
}

void mnuksicht_Click()
{
  shared.KampanMod = flagOf(false);
  if (shared.CestaMise.empty())
    tell(Hlasky(message::noMissionOpen));
  else
    Form2.show();
}

void removeCustomFace()
{
  for (int i = Form2.ksichty.count() - 1; i >= 0; --i)
    if (Form2.ksichty.tag(i) == customFaceTag)
      Form2.ksichty.remove(i);
}

} // namespace

void NactiObliceje(const std::string& file, Combo& combo, bool storeCodes)
{
  const auto report = [&](const Failure& failure)
  { ZapisLog("Nastala chyba při načítání obličejů z: " + file + ", " + failureText(failure) + std::string(crlf)); };
  ZapisLog("Začíná načítání Obliceju" + std::string(crlf));
  std::optional<LineReader> lines;
  attempt([&] { lines.emplace(file); }, report);
  int count = 0;
  while (lines && !lines->atEnd())
    attempt(
        [&]
        {
          const std::string code = lines->next();
          const int row = combo.add(lines->next());
          ++count;
          if (!storeCodes)
            return;
          shared.KodyObliceju.redimPreserve(std::max(row, shared.KodyObliceju.bound()));
          shared.KodyObliceju.at(row) = code;
        },
        report);
  ZapisLog("Načteno: " + std::to_string(count) + " obličejů" + std::string(crlf));
  ZapisLog("Konec načítání obličejů" + std::string(crlf));
}

void brejle()
{
  std::optional<ZaznamIdentity> kept;
  attempt([&] { kept = current(); });
  Form2.bryle.clear();
  for (int i = 0; i < static_cast<int>(std::size(glasses)); ++i)
    attempt([&] { Form2.bryle.add(Texty(glasses[i].text), i + 1); });
  attempt([] { Form2.bryle.select(0); });
  removeCustomFace();
  attempt([] { Form2.ksichty.add(Texty(customFaceLabel), customFaceTag); });
  attempt([] { Form2.ksichty.select(0); });
  attempt([] { Form2.txtnazev.set(Texty(88)); });
  if (kept) // the first rows are no choice of the user's
    current() = *kept;
}

void setCustomFace(const std::string& path)
{
  attempt([&] { current().Obrazek = path; });
  attempt([] { current().Oblicej = "custom"; });
  attempt([&] { Form2.Image1.load(path); });
  Form2.lbljmeno.setCaption(path);
}

void attachIdentities()
{
  Form2.onLoad = Form2_Load;
  Form2.onActivate = Form2_Activate;
  Form2.txtnazev.onChange = txtnazev_Change;
  Form2.Text1.onChange = Text1_Change;
  Form2.Text2.onChange = Text2_Change;
  Form2.List1.onClick = List1_Click;
  Form2.hlasy.onClick = hlasy_Click;
  Form2.bryle.onClick = bryle_Click;
  Form2.ksichty.onClick = ksichty_Click;
  Form2.cmdadd.onClick = cmdadd_Click;
  Form2.cmdelall.onClick = cmdelall_Click;
  Form2.seznamidentit.onClick = seznamidentit_Click;
  Form2.Command1.onClick = Command1_Click;
  Form2.cmdOk.onClick = cmdOk_Click;
  Form2.cmdPrev.onClick = cmdPrev_Click;
  frmmain.mnuksicht.onClick = mnuksicht_Click;
  procedures.brejle = brejle;
}

} // namespace tarvelin
