#include "core/language_chooser.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/folder_scan.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/language.h"
#include "core/messages.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/shared.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

constexpr std::string_view packFolder = "\\Bfdata\\languages\\Tv";

/// Puts another pack into force: its words go to every place that keeps some.
void changeLanguage(const std::string& path)
{
  shared.Nastaveni.SouborJazyka = path;
  NactiJazyk(path);
  attempt(procedures.Akce);
  Jazyky();
  attempt(procedures.Jazyky2);
  attempt(procedures.brejle);
  const std::string programs = programFile("\\Bfdata\\programs.dat");
  if (platform::fileExists(programs))
    attempt([&] { procedures.LoadPrograms(programs); });
}

void frmloadsite_Activate()
{
  frmloadsite.cmdstorno.show(frmloadsite.RezimJazyka);
  frmloadsite.Label1.show(!frmloadsite.RezimJazyka); // it asks for a page
}

void List1_Click()
{
  if (frmloadsite.List1.index() < 0)
    return;
  const std::string chosen = frmloadsite.List1.text(frmloadsite.List1.index());
  if (frmloadsite.caption() == Texty(10))
    frmmain.StranaBrifing = chosen;
  if (frmloadsite.caption() == Texty(12))
    frmmain.StranaOverview = chosen;
  frmloadsite.Vysledek = chosen;
}

void Command1_Click()
{
  if (frmloadsite.RezimJazyka && !frmloadsite.Vysledek.value.empty())
  {
    const std::string path = programFile(packFolder) + "\\" + frmloadsite.Vysledek.value;
    if (path == shared.Nastaveni.SouborJazyka)
      tell(Hlasky(message::languageInUse));
    else
      changeLanguage(path);
  }
  frmloadsite.hide();
}

void mnusetupLanguage_Click()
{
  frmloadsite.setCaption(Texty(49));
  frmloadsite.Command1.setCaption(Texty(50));
  chooseLanguage();
}

} // namespace

void chooseLanguage()
{
  frmloadsite.RezimJazyka = true;
  frmloadsite.Vysledek = "";
  NactiStranky("lng", programFile(packFolder), frmloadsite.List1, 3, "");
  frmloadsite.showModal();
  frmloadsite.RezimJazyka = false;
}

void attachLanguageChooser()
{
  frmloadsite.onActivate = frmloadsite_Activate;
  frmloadsite.List1.onClick = List1_Click;
  frmloadsite.Command1.onClick = Command1_Click;
  frmloadsite.cmdstorno.onClick = [] { frmloadsite.hide(); };
  frmmain.mnusetupLanguage.onClick = mnusetupLanguage_Click;
}

} // namespace tarvelin
