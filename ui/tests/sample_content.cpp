// A small mission and a small campaign, filled in as their author would do it, for the pictures of the help.
#include "ui/tests/sample_content.h"

#include "core/forms/all_forms.h"
#include "core/forms/form2.h"
#include "core/forms/frmabout2.h"
#include "core/forms/frmcamp1.h"
#include "core/forms/frmcamp2.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmcamp4.h"
#include "core/forms/frmcamp5.h"
#include "core/forms/frmcamp6.h"
#include "core/forms/frmcampobr.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnactizvuky.h"
#include "core/forms/frmnahled.h"
#include "core/forms/frmnajit.h"
#include "core/forms/frmopen.h"
#include "core/forms/frmopen2.h"
#include "core/forms/frmopenmission.h"
#include "core/forms/frmrejstrik.h"
#include "core/forms/frmsettings.h"
#include "core/shared.h"
#include "platform/paths.h"

#include <vector>

namespace tarvelin
{

namespace
{

bool czech = false;
std::string missionToPick;             ///< folder name below missions/
std::vector<std::string> soundsToPick; ///< files of sounds/

std::string say(std::string_view cs, std::string_view en)
{
  return std::string(czech ? cs : en);
}

void fillTexts()
{
  frmmain.txtJmenoMise.set(say("Cesta do Levie", "The Road to Levie"));
  frmmain.txtBriefink.set(
      say("<P>Kolona vyráží před šestou. Počkejte na ni u <A href=\"marker:zaloha\">zálohy</A>.</P>\r\n"
          "<P>Oba náklaďáky musí shořet dřív, než se probudí <A href=\"marker:sklad\">sklad</A>.</P>",
          "<P>The column leaves before six. Wait for it at the <A href=\"marker:zaloha\">ambush</A>.</P>"
          "\r\n<P>Both lorries must burn before the <A href=\"marker:sklad\">depot</A> wakes up.</P>"));
  for (const std::string& objective :
       {say("Znič oba náklaďáky.", "Destroy both lorries."), say("Dostaň se k vrtulníku.", "Reach the helicopter."),
        say("Přiveď všechny živé.", "Bring everybody home.")})
  {
    frmmain.txtUkol.set(objective);
    frmmain.cmdpridat.click();
  }
  frmmain.List1.userSelect(0);
  frmmain.txtPoznamky.set(say("Do prvního výstřelu žádná vysílačka.<BR>\r\nŽádné zbytečné hrdinství!",
                              "No radio until the first shot.<BR>\r\nAnd no heroics!"));
  frmmain.txtOverview.set(
      say("Dva náklaďáky, jedna silnice a hodina tmy.", "Two lorries, one road, and an hour of darkness left."));
  frmmain.cmdopen.click();
  frmmain.cmdnext.click();

  frmdebrief.load();
  for (const auto& [name, text] :
       {std::pair{say("Sklad zůstal prázdný", "The depot stays empty"),
                  say("Oba náklaďáky hoří u silnice.", "Both lorries burn beside the road.")},
        std::pair{say("Poloviční vítězství", "Half a victory"),
                  say("Jeden náklaďák projel. Druhý ne.", "One lorry came through. The other did not.")}})
  {
    frmdebrief.txtjmeno.set(name);
    frmdebrief.txtdebrief.set(text);
    frmdebrief.cmdpridat.click();
  }
  frmdebrief.List1.userSelect(0);
}

void fillSettings()
{
  frmmain.onloadintro.set(frmmain.txtJmenoMise.text());
  frmmain.onloadmission.set(say("Everon, 14. září 1985", "Everon, 14 September 1985"));
  frmmain.respawn.set(true);
  frmmain.Base.set(true);
  frmmain.Skore.set(true);
  frmmain.minScore.set("500");
  frmmain.avgScore.set("2500");
  frmmain.maxScore.set("5000");
  for (Check* const check : {&frmmain.M16, &frmmain.M21, &frmmain.LawLauncher, &frmmain.Ak74, &frmmain.HandGrenade,
                             &frmmain.PipeBomb, &frmmain.Binocular})
    check->set(true);
  frmmain.cmdaddweapon.click();
  frmmain.seznamzbrani.userSelect(0);
  frmmain.Text1(0).set(say("Lovecká puška", "Hunting rifle"));
  frmmain.Text1(1).set("HuntRifle");
  frmmain.Text1(3).set("12");
  frmmain.Text1(4).set("2");
}

void fillSounds()
{
  soundsToPick = {"rozkaz.ogg", "hlaseni.ogg"};
  frmmain.cmdnacistradio.click();
  frmmain.seznamradia.userSelect(0);
  frmmain.seznamradia.userPress(MouseButton::left);
  frmmain.txtjmenoradia.set("Radio1");
  frmmain.txtpostava.set(say("velitel", "leader1"));
  frmmain.radiojazyk.userSelect(czech ? 0 : 2);
  frmmain.txtradio.set(say("Kolona vyjela. Hodně štěstí.", "The column is on its way. Good luck."));
  soundsToPick = {"motory.ogg", "vrtulnik.ogg"};
  frmmain.cmdnacistzvuk.click();
  frmmain.seznamzvuku.userSelect(0);
  frmmain.cmdadd.click();
  frmmain.seznamtextu.userSelect(0);
  frmmain.zvukyjazyk.userSelect(czech ? 0 : 2);
  frmmain.txtzvuk.set(say("Slyšíš ty motory?", "Do you hear the engines?"));
  soundsToPick = {"navrat.ogg"};
  frmmain.cdmnactihudbu.click();
  frmmain.seznamhudby.userSelect(0);
  frmnactizvuky.File1.userSelect("motory.ogg"); // what its window shows afterwards
}

void fillScripts()
{
  if (frmmain.otevreneskripty.has("konvoj.sqs"))
    frmmain.otevreneskripty.userSelect("konvoj.sqs");
  frmnajit.txthledane.set("nakladak1");
  frmnajit.txtnahradit.set("nakladak2");
  frmrejstrik.nazev.set("setdam");
}

void fillProfiles()
{
  Form2.load();
  for (const auto& [name, player] :
       {std::pair{"Karas", say("seržant Karas", "Sergeant Karas")}, std::pair{"Vlkova", std::string("Jana Vlková")}})
  {
    Form2.txtnazev.set(name);
    Form2.cmdadd.click();
    Form2.Text1.set(player);
    Form2.ksichty.userSelect(5);
  }
  Form2.chkpouzithrace.set(true);
}

void fillFurtherSettings()
{
  FurtherSettingsForm& more = frmdalsinast;
  more.load();
  more.cmdadd1.click();
  more.List1.userSelect(0);
  more.txtnazev1.set("Strelba");
  more.txjmeno.set(say("Střelba v dálce", "Distant fire"));
  more.cmdadd2.click();
  more.List2.userSelect(0);
  more.txtzvuk.set("C:\\Zvuky\\vystrel.ogg");
  more.txthlasitost.set("-10");
  more.txthloubka.set("1");
  more.txtsance.set("0.5");
  more.txtneznamy.set("1");
  more.txtmindelay.set("5");
  more.txtmaxdelay.set("20");

  more.Command2.click();
  more.seznamrozzvuku.userSelect(0);
  more.txtnazev.set("Les");
  more.txtrozname.set(say("Les u Levie", "Forest of Levie"));
  more.txtzvukroz.set("C:\\Zvuky\\ptaci.ogg");
  more.txthlasitost1.set("-20");
  more.txthloubka1.set("1");
  more.txtzvuk2roz.set("C:\\Zvuky\\sova.ogg");
  more.txthlasitost2.set("-25");
  more.txthloubka2.set("1");

  more.cmdpridat1.click();
  more.List3.userSelect(0);
  more.txtnazev3.set("Konec");
  more.txtjmeno.set(say("Závěrečný titulek", "Closing title"));
  more.txtdoba.set("8");
  more.cmdpridat2.click();
  more.List4.userSelect(0);
  more.Option1.set(true);
  more.txtnazev2.set("Radek");
  more.txttext.set(say("O dva dny později...", "Two days later..."));
  more.x.set(100);
  more.y.set(700);
  more.w.set(800);
  more.h.set(100);
  more.txtvelikost.set("0.05");
  more.pisma.userSelect(0);
  more.cta.set("100");
  more.cba.set("0");
  more.cmdpridat2.click();
  more.List4.userSelect(1);
  more.Option2.set(true);
  more.txtnazev2.set("Obraz");
  more.txttext.set(frmnactizvuky.Dir1.path() + "\\levie.jpg");
  more.x.set(250);
  more.y.set(150);
  more.w.set(500);
  more.h.set(333);
  more.List4.userSelect(0);

  more.txtstringtable.set("STRM_Cil,\"Cíl\",\"Target\",\"Ziel\",\"Cible\",\"Bersaglio\",\"Objetivo\",\r\n");
}

void fillProgramSettings()
{
  frmsettings.load();
  frmsettings.txtpbopath.set("C:\\Tarvelin\\tarvpbou.exe");
  frmsettings.Text1.set("Jana Vlková");
  frmsettings.Text2.set("jana@example.org");
  frmsettings.cmdadd.click();
  frmsettings.seznamprogramu.userSelect(0);
  frmsettings.txtnazev.set(say("Zápisník", "Notepad"));
  frmsettings.txtcesta.set("C:\\Windows\\notepad.exe");
  frmsettings.txtparams.set(say("<MISE>Description.ext", "<MISSION>Description.ext"));
}

void fillSmallWindows()
{
  frmopen2.File1.enable(true);
  frmopen2.File1.setPattern("*.wav*");
  frmopen2.Dir1.userSetPath(frmnactizvuky.Dir1.path());
  frmopen2.File1.userSelect("hlaseni.wav");
  frmabout2.load();
  frmabout2.lblcesta.setCaption("C:\\Hry\\OperationFlashpoint");
  frmabout2.lblCD.setCaption("D:");
  frmloadsite.List1.clear();
  for (const char* const page : {"Briefing.html", "Briefing.Czech.html", "Briefing.English.html"})
    frmloadsite.List1.add(page);
  frmloadsite.List1.userSelect(1);
  frmloadsite.cmdstorno.show(true);
}

void addMission(std::string_view chapter, const std::string& mission)
{
  missionToPick = mission;
  frmcamp4.campfiles.userClick(chapter);
  frmcamp4.cmdaddmission.click();
}

void addChapter(const std::string& name)
{
  frmcamp4.cmdaddpart.click();
  frmcamp4.txtpartname.set(name);
  frmcamp4.cmdaddpart.click();
}

void fillCampaign()
{
  frmmain.mnucampaignedit.click();
  frmcamp1.cmdadresar.click();
  frmcamp1.txtkampJmeno.set("Levie");
  frmcamp1.txtzivoty.set("-1");
  frmcamp1.cmdNext.click();
  frmcamp2.hide();
  frmcamp3.load();
  missionToPick = "Pochvala.Eden";
  frmcamp3.cmdaddA.click();
  missionToPick = "Pokarani.Eden";
  frmcamp3.cdmaddP.click();
  frmcamp3.awardlist.userSelect(0);
  frmcamp3.penaltylist.userSelect(0);
  frmcamp4.load();
  addChapter(say("Záloha", "The Ambush"));
  addMission("PART1", "Kolona.Eden");
  addMission("PART1", "Navrat.Eden");
  addChapter(say("Cesta domů", "The Way Home"));
  addMission("PART2", "Konec.Eden");
  frmcamp4.campfiles.userClick("PART1MISSION1");
  frmcamp5.load();
  soundsToPick = {"motory.ogg", "vrtulnik.ogg"};
  frmcamp5.cmdnacistzvuk.click();
  frmcamp5.seznamzvuku.userSelect(0);
  soundsToPick = {"navrat.ogg", "rozkaz.ogg"};
  frmcamp5.cdmnactihudbu.click();
  frmcamp5.seznamhudby.userSelect(0);
  frmcampobr.load();
  frmcampobr.txtkampover.set(
      say("Dva náklaďáky, jedna silnice a dlouhá cesta domů.", "Two lorries, one road, and a long way home."));
  frmcampobr.cmdopen.click();
  frmcamp6.cmdnext.click();
  frmcamp4.cmdmissionedit.click(); // its window shows the links
}

} // namespace

bool pickSample(Form& form, const std::string& folder)
{
  const auto below = [&](const std::string& name) { return platform::toProgram(folder + '/' + name); };
  if (&form == &frmopenmission)
  {
    frmopenmission.Dir1.userSetPath(below("missions/" + missionToPick));
    frmopenmission.File1.userSelect("mission.sqm");
    frmopenmission.Command1.click();
  }
  else if (&form == &frmnactizvuky)
  {
    frmnactizvuky.Dir1.userSetPath(below("sounds"));
    for (const std::string& file : soundsToPick)
    {
      frmnactizvuky.File1.userSelect(file);
      frmnactizvuky.cmdadd.click();
    }
    frmnactizvuky.cmdopen.click();
  }
  else if (&form == &Frmopen)
  {
    Frmopen.Dir1.userSetPath(below("sounds"));
    Frmopen.File1.userSelect("levie.jpg");
    Frmopen.cmdOk.click();
  }
  else if (&form == &frmopen2)
  {
    frmopen2.Dir1.userSetPath(below("Campaigns"));
    frmopen2.cmdOk.click();
  }
  else
    return false;
  return true;
}

void fillWithSample(std::string_view language)
{
  czech = language == "Czech";
  fillTexts();
  fillSettings();
  fillSounds();
  fillScripts();
  fillProfiles();
  fillFurtherSettings();
  fillProgramSettings();
  frmmain.cmdvytvor.click();
  fillCampaign();
  fillSmallWindows();
  frmnahled.load();
  frmnahled.cmdoverview.click();
  for (Form* const form : allForms())
    form->hide();
}

} // namespace tarvelin
