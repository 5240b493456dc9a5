#include "panels/weapons.h"

#include "core/attempt.h"
#include "core/binary_file.h"
#include "core/forms/frmmain.h"
#include "core/logged_steps.h"
#include "core/procedures.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/files.h"

namespace tarvelin
{

namespace
{

// Elements of Text1
constexpr int titleField = 0;
constexpr int classField = 1;
constexpr int magazinesField = 3;
constexpr int countField = 4;
constexpr int grenadesField = 5;

/// Fields that hold nothing but a number. The magazines of the rifles with a launcher are "n/m" and stay out.
Text* const numberFields[] = {
    &frmmain.M16pocet,     &frmmain.M16naboje,   &frmmain.M16GLpocet,   &frmmain.M4pocet,     &frmmain.M4naboje,
    &frmmain.HKpocet,      &frmmain.HKnaboje,    &frmmain.M60pocet,     &frmmain.M60naboje,   &frmmain.M21pocet,
    &frmmain.M21naboje,    &frmmain.LLpocet,     &frmmain.LLnaboje,     &frmmain.CGLpocet,    &frmmain.CGLnaboje,
    &frmmain.AALpocet,     &frmmain.AALnaboje,   &frmmain.Ak74pocet,    &frmmain.Ak74naboje,  &frmmain.Ak74SUpocet,
    &frmmain.Ak74Sunaboje, &frmmain.Ak74GLpocet, &frmmain.Ak47pocet,    &frmmain.Ak47naboje,  &frmmain.Ak47CZpocet,
    &frmmain.Ak47CZnaboje, &frmmain.Ak47GLpocet, &frmmain.SVDDpocet,    &frmmain.SVDDnaboje,  &frmmain.Pkpocet,
    &frmmain.Pknaboje,     &frmmain.RPGLpocet,   &frmmain.RPGLnaboje,   &frmmain.AT4Lpocet,   &frmmain.AT4Lnaboje,
    &frmmain.K32Lpocet,    &frmmain.K32Lnaboje,  &frmmain.kozliceshell, &frmmain.kozliceball, &frmmain.HGpocet,
    &frmmain.PBpocet,      &frmmain.Mpocet,      &frmmain.Mortarpocet,  &frmmain.Flarepocet,  &frmmain.SSpocet,
    &frmmain.FRpocet,      &frmmain.SSRpocet,    &frmmain.Bpocet,       &frmmain.NVpocet,
};

/// A check that sets others when it is set.
struct Link
{
  Check& check;
  Check& magazines;
  bool launcher; ///< and the grenades
};

const Link links[] = {
    {frmmain.M16, frmmain.M16zasobniky, false},
    {frmmain.Ak74, frmmain.Ak74zasobniky, false},
    {frmmain.Ak47, frmmain.Ak47zasobniky, false},
    {frmmain.M16GrenadeLauncher, frmmain.M16zasobniky, true},
    {frmmain.Ak74GrenadeLauncher, frmmain.Ak74zasobniky, true},
    {frmmain.Ak47GrenadeLauncher, frmmain.Ak47zasobniky, true},
};

/// A number of magazines that two rifles share.
struct SharedMagazines
{
  Text& number;
  Text& rifle;
  Text& launcherRifle; ///< takes the grenades too: "n/m"
};

// In the order in which the grenades' number goes to them.
const SharedMagazines sharedMagazines[] = {
    {frmmain.txtM16zas, frmmain.M16naboje, frmmain.M16Glnaboje},
    {frmmain.txtAk47zas, frmmain.Ak47naboje, frmmain.Ak47GLnaboje},
    {frmmain.txtAk74zas, frmmain.Ak74naboje, frmmain.Ak74GLnaboje},
};

void setLauncherMagazines(const SharedMagazines& magazines)
{
  magazines.launcherRifle.set(magazines.number.text() + "/" + frmmain.txtGrenade.text());
}

void sharedMagazines_Change(const SharedMagazines& magazines)
{
  FiltrujCislo(magazines.number);
  magazines.rifle.set(magazines.number.text());
  setLauncherMagazines(magazines);
}

void txtGrenade_Change()
{
  FiltrujCislo(frmmain.txtGrenade);
  for (const SharedMagazines& magazines : sharedMagazines)
    setLauncherMagazines(magazines);
}

void M16Glnaboje_Change()
{
  if (frmmain.M16GrenadeLauncher.checked())
    frmmain.GrenadeLauncher.set(true);
}

void link_Click(const Link& link)
{
  if (!link.check.checked())
    return;
  if (link.launcher)
    frmmain.GrenadeLauncher.set(true);
  link.magazines.set(true);
}

/// The add-on weapon that the list highlights. Throws 9 for none.
ZaznamZbrane& highlighted()
{
  return shared.Zbrane.at(frmmain.seznamzbrani.index());
}

void enableEditing(bool on)
{
  frmmain.Text1.each([on](Text& field, int) { field.enable(on); });
  for (Field* const field : std::initializer_list<Field*>{&frmmain.Check1, &frmmain.cmddelweapon, &frmmain.cmddelall,
                                                          &frmmain.cmdsaveaddons})
    field->enable(on);
}

/// The panel as it is without an add-on weapon.
void disableEditing()
{
  enableEditing(false);
  frmmain.Text1.each([](Text& field, int) { field.set({}); });
}

void cmdaddweapon_Click()
{
  std::int16_t& last = shared.PosledniZbran;
  attempt([&] { last = counted(last); });
  attempt([&] { frmmain.seznamzbrani.add(Texty(101) + " " + std::to_string(last + 1)); });
  attempt([&] { shared.Zbrane.redimPreserve(last); });
  enableEditing(true);
}

void seznamzbrani_Click()
{
  const auto show = [](int field, auto text) { attempt([&] { frmmain.Text1(field).set(text()); }); };
  show(titleField, [] { return highlighted().Titulek; });
  show(classField, [] { return highlighted().Jmeno; });
  show(magazinesField, [] { return highlighted().Zasobniky; });
  show(countField, [] { return std::to_string(highlighted().Pocet); });
  attempt(
      []
      {
        const bool launcher = highlighted().Granatomet != 0;
        frmmain.Check1.set(launcher);
        frmmain.Text1(grenadesField).set(launcher ? highlighted().Granaty : std::string());
      });
}

void Text1_Change(Text& field, int index)
{
  switch (index)
  {
  case titleField:
    if (!field.empty()) // an emptied title leaves the old one in the list
      attempt([&] { frmmain.seznamzbrani.setText(frmmain.seznamzbrani.index(), field.text()); });
    attempt([&] { highlighted().Titulek = field.text(); });
    break;
  case classField: attempt([&] { highlighted().Jmeno = field.text(); }); break;
  case magazinesField: attempt([&] { highlighted().Zasobniky = field.text(); }); break;
  case countField:
    FiltrujCislo(field);
    attempt([&] { highlighted().Pocet = integerVal(field.text()); });
    break;
  case grenadesField: attempt([&] { highlighted().Granaty = field.text(); }); break;
  default: break;
  }
}

void Check1_Click()
{
  const bool launcher = frmmain.Check1.checked();
  attempt([&] { highlighted().Granatomet = flagOf(launcher); });
  frmmain.Text1(grenadesField).enable(launcher);
}

void cmddelweapon_Click()
{
  List& list = frmmain.seznamzbrani;
  Array<ZaznamZbrane>& weapons = shared.Zbrane;
  const int p = list.index();
  attempt([&] { list.remove(p); });
  for (int i = p; i <= list.count(); ++i) // with nothing highlighted every record moves, and the list stays
    attempt([&] { weapons.at(i) = weapons.at(i + 1); });
  attempt([] { shared.PosledniZbran = counted(shared.PosledniZbran, -1); });
  attempt([&] { weapons.redimPreserve(shared.PosledniZbran); });
  for (int i = 0; i < list.count(); ++i) // an empty title goes over the label that the item had
    attempt([&] { list.setText(i, weapons.at(i).Titulek); });
  if (shared.PosledniZbran >= 0)
    return;
  disableEditing();
  list.clear();
  frmmain.cmdaddweapon.enable(true);
  weapons.reset();
  shared.PosledniZbran = -1;
}

void cmddelall_Click()
{
  shared.Zbrane.reset();
  shared.PosledniZbran = -1;
  frmmain.seznamzbrani.clear();
  disableEditing();
  frmmain.cmdadd.enable(true); // of the sounds; cmdaddweapon is never off
}

LoggedSteps fileSteps(std::string what, std::string path)
{
  return LoggedSteps([what = std::move(what), path = std::move(path)](const Failure& failure)
                     { return what + path + ", " + failureText(failure) + std::string(crlf); });
}

void cmdsaveaddons_Click()
{
  const std::string path = programFile("\\Bfdata\\addons.dat");
  const LoggedSteps steps = fileSteps("Chyba pri ukladani: ", path);
  BinaryWriter file;
  for (int i = 0; i <= shared.Zbrane.bound(); ++i)
  {
    const ZaznamZbrane& weapon = shared.Zbrane.at(i);
    ZaznamZbrane::members(weapon, [&](std::string_view, const auto& value) { file.put(value); });
  }
  steps(
      [&]
      {
        if (platform::fileExists(path))
          platform::deleteFile(path);
      });
  steps([&] { platform::writeFile(path, file.bytes()); });
}

} // namespace

void FiltrujCislo(Text& field)
{
  const std::size_t end = field.text().find_first_not_of(" 0123456789");
  if (end != std::string::npos)
    field.set(field.text().substr(0, end));
}

void NactiAddony(const std::string& path)
{
  const LoggedSteps steps = fileSteps("Chyba pri nacitani: ", path);
  std::int16_t& last = shared.PosledniZbran;
  last = 0;
  std::string bytes;
  steps([&] { bytes = platform::readFile(path); });
  for (BinaryReader file(std::move(bytes)); !file.atEnd();)
    steps(
        [&]
        {
          ZaznamZbrane weapon;
          ZaznamZbrane::members(weapon, [&](std::string_view, auto& value) { file.get(value); });
          if (file.cut())
            throw Failure(Fault::pastEnd);
          if (weapon.Jmeno.empty() || weapon.Titulek.empty())
            return; // the next one takes its place
          shared.Zbrane.redimPreserve(last);
          shared.Zbrane.at(last) = weapon;
          frmmain.seznamzbrani.add(weapon.Titulek);
          last = counted(last);
        });
  --last; // from the place behind the last weapon to the last weapon
  if (last < 0)
    return;
  enableEditing(true);
  frmmain.cmdpridat.enable(true); // of the tasks; cmdaddweapon is never off
}

void attachWeapons()
{
  for (Text* const field : numberFields)
    field->onChange = [field] { FiltrujCislo(*field); };
  for (const Link& link : links)
    link.check.onClick = [&link] { link_Click(link); };
  for (const SharedMagazines& magazines : sharedMagazines)
    magazines.number.onChange = [&magazines] { sharedMagazines_Change(magazines); };
  frmmain.txtGrenade.onChange = txtGrenade_Change;
  frmmain.M16Glnaboje.onChange = M16Glnaboje_Change;
  frmmain.cmdaddweapon.onClick = cmdaddweapon_Click;
  frmmain.seznamzbrani.onClick = seznamzbrani_Click;
  frmmain.Text1.each([](Text& field, int index) { field.onChange = [&field, index] { Text1_Change(field, index); }; });
  frmmain.Check1.onClick = Check1_Click;
  frmmain.cmddelweapon.onClick = cmddelweapon_Click;
  frmmain.cmddelall.onClick = cmddelall_Click;
  frmmain.cmdsaveaddons.onClick = cmdsaveaddons_Click;
  procedures.NactiAddony = NactiAddony;
}

} // namespace tarvelin
