#include "mission/open_mission.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/folder_scan.h"
#include "core/forms/form3.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnactizvuky.h"
#include "core/forms/frmopenmission.h"
#include "core/language.h"
#include "core/picker.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "mission/briefing_reader.h"
#include "mission/description_reader.h"
#include "mission/mission_reset.h"
#include "mission/overview_reader.h"
#include "mission/sqm_reader.h"
#include "panels/more_settings.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace tarvelin
{

namespace
{

constexpr std::int16_t opensMission = 0;
constexpr std::int16_t addsToCampaign = 7;

void frmopenmission_Load()
{
  attempt([] { platform::setCurrentFolder(shared.CestaHry); });
  startPickerIn(shared.CestaHry, frmopenmission.Drive1, frmopenmission.Dir1);
}

void frmopenmission_Activate()
{
  const bool campaign = shared.RezimOtevreni == addsToCampaign;
  frmopenmission.setCaption(Texty(campaign ? 14 : 3));
  frmopenmission.chknacist.show(!campaign);
  logLine(campaign ? "Načítání mise do kampaně" : "Načítání mise");
}

void File1_Click()
{
  shared.SouborMise = chosenFile(frmopenmission.File1);
  if (shared.RezimOtevreni != addsToCampaign)
    return;
  shared.VybranaCesta = frmopenmission.File1.path();
  shared.VybranySoubor = frmopenmission.File1.selected();
}

void Command1_Click()
{
  if (shared.RezimOtevreni == addsToCampaign)
    logLine("Načtení mise do kampaně z: " + shared.VybranaCesta + "\\" + shared.VybranySoubor);
  logLine("Načtení mise z: " + shared.SouborMise);
  frmopenmission.hide();
}

void Command2_Click()
{
  logLine("Zrušení operace načtení mise");
  if (shared.RezimOtevreni == addsToCampaign)
  {
    shared.VybranaCesta.clear();
    shared.VybranySoubor.clear();
  }
  shared.SouborMise.clear();
  frmopenmission.hide();
}

/// Finds the one page whose name holds `part`, or lets the user choose among several. `page` takes its name.
void choosePage(std::string_view part, std::string& page, int title, int question)
{
  const int count = SpocitejSoubory("html", shared.CestaMise, 4, part);
  if (count == 1)
    page = DejJmenoSouboru("html", shared.CestaMise, 4, part);
  if (count <= 1)
    return;
  NactiStranky("html", shared.CestaMise, frmloadsite.List1, 4, part);
  page.clear();
  frmloadsite.setCaption(Texty(title));
  frmloadsite.Label1.setCaption(Texty(question));
  frmloadsite.showModal();
}

void logFound(const std::string& page)
{
  logLine("Nalezen soubor " + page + "v: " + shared.CestaMise);
}

/// What both ways of opening do with the file in SouborMise.
void readMission()
{
  shared.CestaMise = SlozkaSouboru(shared.SouborMise);
  frmmain.setCaption("Tarvelin - " + shared.CestaMise);
  attempt([] { NactiSqm(shared.SouborMise); });
  frmmain.SSTab1.enable(true);
  frmmain.cmdvytvor.enable(true);
  frmmain.seznamakci.enable(true);
}

void openFromCommandLine(std::string_view native)
{
  shared.SouborMise = platform::toProgram(native);
  readMission();
  attempt(NactiSoubory);
}

void mnufileopen_Click()
{
  shared.RezimOtevreni = opensMission;
  frmopenmission.showModal();
  if (shared.SouborMise.empty())
    return;
  if (SlozkaSouboru(shared.SouborMise) == shared.CestaMise && !askYesNo(Texty(4)))
    return;
  Form3.setCaption(Texty(5));
  Form3.Label1.setCaption(Texty(6));
  attempt([] { Form3.show(); });
  Form3.refresh();
  resetMission();
  readMission();
  attempt([] { frmnactizvuky.Dir1.setPath(shared.CestaMise); });
  attempt(NactiSoubory);
}

} // namespace

void Akce()
{
  frmmain.seznamakci.clear();
  for (int tag = 1; tag <= 4; ++tag)
    frmmain.seznamakci.add(Texty(20 + tag), tag);
  frmmain.seznamakci.select(3);
}

void NactiSoubory()
{
  attempt([] { frmmain.otevreneskripty.setPath(shared.CestaMise); });
  if (frmopenmission.chknacist.checked())
  {
    const std::string description = shared.CestaMise + "Description.ext";
    if (platform::fileExists(description))
    {
      attempt([&] { NactiDescription(description); });
      logLine("Nalezen soubor Description.ext v: " + shared.CestaMise);
    }
    std::string& briefing = frmmain.StranaBrifing.value;
    attempt([&] { choosePage("Briefing", briefing, 10, 11); });
    if (!briefing.empty())
    {
      attempt([&] { NactiBriefing(shared.CestaMise + briefing); });
      logFound(briefing);
    }
    std::string& overview = frmmain.StranaOverview.value;
    attempt([&] { choosePage("Overview", overview, 12, 13); });
    if (!overview.empty())
    {
      attempt([&] { NactiOverview(shared.CestaMise + overview, frmmain.txtOverview); });
      logFound(overview);
    }
    const std::string stringtable = shared.CestaMise + "Stringtable.csv";
    if (platform::fileExists(stringtable))
      readStringtable(stringtable);
  }
  Form3.hide();
}

void ZkontrolujPrikazovyRadek(const std::string& commandLine)
{
  std::string_view rest = commandLine;
  while (!rest.empty())
  {
    const std::size_t end = rest.find(',');
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    const std::size_t equals = part.find('=');
    if (equals == std::string_view::npos)
    {
      if (upper(right(part, 4)) == ".SQM")
        openFromCommandLine(part);
      continue;
    }
    const std::string key = upper(part.substr(0, equals));
    const std::string_view value = part.substr(equals + 1);
    if (key == "MISSION")
      openFromCommandLine(value);
    else if (key == "LANGUAGE")
    {
      // Not the chooser's folder: the value brings the subfolder along.
      shared.Nastaveni.SouborJazyka = programFile("\\Bfdata\\languages\\") + platform::toProgram(value) + ".lng";
      NactiJazyk(shared.Nastaveni.SouborJazyka);
    }
  }
}

void attachOpenMission()
{
  tieDiskLists(frmopenmission.Drive1, frmopenmission.Dir1, frmopenmission.File1);
  frmopenmission.onLoad = frmopenmission_Load;
  frmopenmission.onActivate = frmopenmission_Activate;
  frmopenmission.File1.onClick = File1_Click;
  frmopenmission.Command1.onClick = Command1_Click;
  frmopenmission.Command2.onClick = Command2_Click;
  frmmain.mnufileopen.onClick = mnufileopen_Click;
  procedures.Akce = Akce;
  procedures.ZkontrolujPrikazovyRadek = ZkontrolujPrikazovyRadek;
}

} // namespace tarvelin
