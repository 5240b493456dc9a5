#include "core/startup.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/exit.h"
#include "core/forms/all_forms.h"
#include "core/forms/form2.h"
#include "core/forms/form4.h"
#include "core/forms/frmcamp1.h"
#include "core/forms/frmcamp2.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmcamp4.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcamp6.h"
#include "core/forms/frmcamp7.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmeditsetup.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmrejstrik.h"
#include "core/forms/frmsettings.h"
#include "core/forms/frmstart.h"
#include "core/forms/frmtips.h"
#include "core/islands.h"
#include "core/language.h"
#include "core/language_chooser.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/settings.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

std::string commandLineOfStart;

/// Reads a catalogue of the program folder; a missing one is logged.
void readCatalogue(std::string_view file, const Procedures::OfPath& reader)
{
  const std::string path = programFile(file);
  if (platform::fileExists(path))
    attempt([&] { reader(path); });
  else
    logLine("Chybí: " + path);
}

void firstRun()
{
  frmstart.refresh();
  setDefaultSettings();
  frmloadsite.setCaption("Vyberte jazyk/Choose language");
  attempt(chooseLanguage);
  const auto ask = [](int text) { return desk().prompt(Texty(text), "", "").value_or(""); };
  shared.Nastaveni.UzivatelJmeno = ask(110);
  shared.Nastaveni.UzivatelMail = ask(111);
  UlozNastaveni(programFile("\\Tarvinfo.cfg"));
}

void readSettings()
{
  const std::string path = programFile("\\Tarvinfo.cfg");
  if (!platform::fileExists(path))
    return firstRun();
  attempt([&] { NactiNastaveni(path); });
  NactiJazyk(shared.Nastaveni.SouborJazyka);
}

/// The sizes of the overview picture: the powers of two from 2 to 256.
void fillPictureSizes()
{
  for (Combo* const combo : {&frmmain.Vyska, &frmmain.Sirka})
  {
    combo->clear();
    for (int size = 2; size <= 256; size *= 2)
      combo->add(std::to_string(size), size);
  }
  frmmain.Sirka.select(6);
  frmmain.Vyska.select(5);
}

void useFont(Text& field, const ZaznamPisma& set)
{
  Font font = field.font();
  if (!set.Jmeno.empty())
    font.name = set.Jmeno;
  font.bold = set.Tucne != 0;
  font.italic = set.Kurziva != 0;
  font.strikethrough = set.Preskrtnute != 0;
  font.underline = set.Podtrzene != 0;
  if (set.Velikost > 0) // a record that was never set has none
    font.size = set.Velikost;
  font.color = set.Barva;
  field.setFont(font);
}

void useFonts()
{
  Text* const fields[] = {&frmmain.txtBriefink, &frmmain.txtOverview, &frmmain.txtPoznamky};
  for (int i = 0; i < 3; ++i)
    attempt([&] { useFont(*fields[i], shared.Nastaveni.Pisma.at(i)); });
}

void frmmain_Load()
{
  frmstart.show();
  frmstart.refresh();
  logLine("Start programu: " + platform::dateText() + ", " + platform::timeText());
  logLine("Začíná inicializace programu");
  frmmain.respawn.onClick();
  frmmain.Skore.onClick();
  frmmain.SSTab1.enable(false);
  frmmain.seznamakci.enable(false);
  frmmain.cmdvytvor.enable(false);
  attempt(procedures.readGame);
  readCatalogue("\\Bfdata\\islands.dat", NactiOstrovy);
  attempt(readSettings);
  // the switch of the colours is used by the editor also while the window of the setup was never shown
  frmeditsetup.Check1.set(shared.Nastaveni.UkazovatBarvy != 0);
  attempt(fillPictureSizes);
  readCatalogue("\\bfdata\\commands.dat", procedures.NactiPrikazy);
  attempt(procedures.Akce);
  for (Form* const form : std::initializer_list<Form*>{&Form2, &Form4, &frmdalsinast, &frmdebrief})
    attempt([&] { form->load(); });
  Jazyky();
  readCatalogue("\\bfdata\\edit.dat", procedures.NactiDruhePrikazy);
  if (platform::fileExists(programFile("\\Bfdata\\addons.dat")))
    attempt([] { procedures.NactiAddony(programFile("\\Bfdata\\addons.dat")); });
  else
    shared.PosledniZbran = -1;
  attempt(procedures.NactiObrazek);
  logLine("Konec Inicializace programu");
  attempt([] { procedures.ZkontrolujPrikazovyRadek(commandLineOfStart); });
  useFonts(); // behind the command line, which may have opened a mission already
}

void frmstart_Load()
{
  for (Form* const form : std::initializer_list<Form*>{&frmmain, &frmcamp1, &frmcamp2, &frmcamp3, &frmcamp4, &frmcamp5,
                                                       &frmcamp6, &frmcamp7, &frmrejstrik, &frmsettings})
    attempt([&] { form->load(); });
  frmstart.hide();
  frmmain.show();
  if (shared.Nastaveni.UkazovatTipy == -1)
    attempt([] { frmtips.show(); });
  shared.PovolBarvy = -1;
}

} // namespace

void startProgram(const std::string& commandLine)
{
  commandLineOfStart = commandLine;
  frmstart.load();
}

void attachStartAndExit()
{
  frmstart.onLoad = frmstart_Load;
  frmmain.onLoad = frmmain_Load;
  frmmain.mnufileend.onClick = exitProgram;
  frmmain.cmdend.onClick = exitProgram;
  frmmain.onClose = exitProgram;
}

} // namespace tarvelin
