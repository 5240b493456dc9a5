#include "mission/previews.h"

#include "core/folder_scan.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnahled.h"
#include "core/logged_steps.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"

namespace tarvelin
{

namespace
{

/// A page of which the mission folder may hold several language variants.
struct PageKind
{
  std::string_view namePart;
  std::string_view title; ///< of the chooser
  std::string_view question;
  std::string_view logName;
};

constexpr PageKind briefingPage{"Briefing", "Načíst Briefing",
                                "Adresář obsahuje více souborů Briefingu. Vyberte, který se má načíst", "briefing"};
constexpr PageKind overviewPage{"Overview", "Načíst Overview",
                                "Adresář obsahuje více souborů Overview. Vyberte, který se má načíst", "Overview"};

/// `name` is what stands behind "Náhled souborů: " in the title.
void show(const std::string& file, const std::string& name)
{
  frmnahled.nahledbrowser.navigate(file);
  frmnahled.setCaption("Náhled souborů: " + name);
}

void showMissionFile(const std::string& name)
{
  show(shared.CestaMise + name, name);
}

std::string helpPage()
{
  return programFile("\\Bfdata\\dokumentace\\index.html");
}

/// Name of the page to show: the only one, or the user's choice; "" for none.
std::string choosePage(const PageKind& page)
{
  if (SpocitejSoubory("html", shared.CestaMise, 4, page.namePart) <= 1)
    return DejJmenoSouboru("html", shared.CestaMise, 4, page.namePart);
  NactiStranky("html", shared.CestaMise, frmloadsite.List1, 4, page.namePart);
  frmloadsite.setCaption(page.title);
  frmloadsite.Label1.setCaption(page.question);
  frmloadsite.Vysledek = "";
  frmloadsite.showModal();
  return frmloadsite.Vysledek;
}

void showPage(const PageKind& page)
{
  std::string name;
  const LoggedSteps steps(
      [&](const Failure& failure)
      {
        const std::string end(crlf);
        return "Nastala chyba při pokusu načíst " + std::string(page.logName) + " k náhledu!" + end +
               "Paramaetry: " + name + " z " + shared.CestaMise + end + "Chyba: " + failureText(failure) + end;
      });
  steps([&] { name = choosePage(page); });
  if (!name.empty())
    steps([&] { showMissionFile(name); });
}

} // namespace

void attachPreviews()
{
  frmnahled.onLoad = [] { frmnahled.nahledbrowser.navigate(helpPage()); };
  frmnahled.cmdbriefing.onClick = [] { showPage(briefingPage); };
  frmnahled.cmdoverview.onClick = [] { showPage(overviewPage); };
  frmnahled.cmddescription.onClick = [] { showMissionFile("Description.ext"); };
  frmnahled.cmdukaystrtable.onClick = [] { showMissionFile("Stringtable.csv"); };
  frmnahled.cmdnapoveda.onClick = [] { show(helpPage(), "Nápověda"); };
  frmnahled.cmdOk.onClick = [] { frmnahled.hide(); };
  frmmain.mnushowfiles.onClick = [] { frmnahled.show(); };
}

} // namespace tarvelin
