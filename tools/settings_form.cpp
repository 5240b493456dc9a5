#include "tools/settings_form.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmsettings.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/shared.h"
#include "panels/sound_tools.h"
#include "platform/files.h"
#include "tools/programs_bar.h"

#include <initializer_list>

namespace tarvelin
{

namespace
{

constexpr std::string_view programsFile = "\\Bfdata\\programs.dat";

/// A text of the settings and its field.
struct SettingRow
{
  Text SettingsForm::*field;
  std::string ZaznamNastaveni::*set;
};

constexpr SettingRow settingRows[] = {
    {&SettingsForm::txtpbopath, &ZaznamNastaveni::CestaPbo},
    {&SettingsForm::txtparametry, &ZaznamNastaveni::ParametryPbo},
    {&SettingsForm::Text1, &ZaznamNastaveni::UzivatelJmeno},
    {&SettingsForm::Text2, &ZaznamNastaveni::UzivatelMail},
};

/// A text of a program's record and its field.
struct ProgramRow
{
  Text SettingsForm::*field;
  std::string ZaznamProgramu::*member;
};

constexpr ProgramRow programRows[] = {
    {&SettingsForm::txtnazev, &ZaznamProgramu::Nazev},
    {&SettingsForm::txtcesta, &ZaznamProgramu::Cesta},
    {&SettingsForm::txtparams, &ZaznamProgramu::Parametry},
};

void showSettings()
{
  for (const SettingRow& row : settingRows)
    (frmsettings.*row.field).set(shared.Nastaveni.*row.set);
  frmsettings.Check1.set(shared.Nastaveni.UkazovatTipy == -1); // a stray number of the file shows no tips at the start
}

void keep(const SettingRow& row)
{
  shared.Nastaveni.*row.set = (frmsettings.*row.field).text();
}

void frmsettings_Load()
{
  showSettings();
  if (platform::fileExists(programFile(programsFile)))
    LoadPrograms(programFile(programsFile));
}

void Command4_Click()
{
  for (const SettingRow& row : settingRows)
    keep(row);
}

void cmdadd_Click()
{
  const std::int16_t index = counted(shared.PocetProgramu);
  shared.Programy.redimPreserve(index);
  shared.PocetProgramu = index;
  for (Field* const field : std::initializer_list<Field*>{&frmsettings.cmddel, &frmsettings.txtnazev,
                                                          &frmsettings.txtcesta, &frmsettings.txtparams})
    field->enable(true);
  frmsettings.seznamprogramu.add(Texty(97) + " " + std::to_string(index + 1), index);
}

void cmddel_Click()
{
  const int index = frmsettings.seznamprogramu.index();
  if (index < 0)
    return;
  frmsettings.seznamprogramu.remove(index);
  for (int i = index; i < shared.PocetProgramu; ++i)
  {
    attempt([&] { shared.Programy.at(i) = shared.Programy.at(i + 1); });
    attempt([&] { frmsettings.seznamprogramu.setTag(i, i); });
  }
  --shared.PocetProgramu;
  if (shared.PocetProgramu >= 0)
    return shared.Programy.redimPreserve(shared.PocetProgramu);
  shared.Programy.erase();
  frmsettings.cmddel.enable(false);
  MakeProgramBar(true);
}

void seznamprogramu_Click()
{
  const int index = frmsettings.seznamprogramu.index();
  for (const ProgramRow& row : programRows)
    attempt([&] { (frmsettings.*row.field).set(shared.Programy.at(index).*row.member); });
}

/// Writes a field to the highlighted program. Throws 9 when none is.
void keepInRecord(const ProgramRow& row)
{
  shared.Programy.at(frmsettings.seznamprogramu.index()).*row.member = (frmsettings.*row.field).text();
}

void cmdsave_Click()
{
  const std::string path = programFile(programsFile);
  if (platform::fileExists(path))
    attempt([&] { platform::deleteFile(path); });
  UlozitConfig(path);
  for (int i = 0; i <= shared.PocetProgramu; ++i)
    attempt([&] { LoadAndSaveIcons(shared.Programy.at(i).Cesta, shared.Programy.at(i).Nazev); });
  MakeProgramBar(true);
}

void mnucinfigcpp_Click()
{
  const std::string path = programFile("\\Cfgforge.exe");
  const std::string native = programFile("\\Cfgforge"); // the same elsewhere than on Windows
  if (platform::fileExists(path) || platform::fileExists(native))
    desk().launch(path, "", programFolder());
  else
    tell(path + " " + Hlasky(message::editorMissing));
}

} // namespace

void attachSettingsForm()
{
  frmsettings.onLoad = frmsettings_Load;
  frmsettings.onActivate = showSettings; // another language brings other parameters
  for (const SettingRow& row : settingRows)
    (frmsettings.*row.field).onChange = [row] { keep(row); };
  frmsettings.Check1.onClick = [] { shared.Nastaveni.UkazovatTipy = flagOf(frmsettings.Check1.checked()); };
  frmsettings.Command1.onClick = [] { chooseProgram(frmsettings.txtpbopath); };
  for (const ProgramRow& row : programRows)
    (frmsettings.*row.field).onChange = [row] { attempt([row] { keepInRecord(row); }); };
  frmsettings.seznamprogramu.onClick = seznamprogramu_Click;
  frmsettings.Command3.onClick = [] { chooseProgram(frmsettings.txtcesta); };
  frmsettings.cmdadd.onClick = [] { attempt(cmdadd_Click); };
  frmsettings.cmddel.onClick = cmddel_Click;
  frmsettings.cmdsave.onClick = cmdsave_Click;
  frmsettings.Command4.onClick = Command4_Click;
  frmsettings.Command2.onClick = []
  {
    Command4_Click();
    frmsettings.hide();
  };
  frmmain.mnusetobec.onClick = [] { frmsettings.show(); };
  frmmain.mnucinfigcpp.onClick = mnucinfigcpp_Click;
}

} // namespace tarvelin
