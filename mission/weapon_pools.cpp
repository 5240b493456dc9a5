#include "mission/weapon_pools.h"

#include "core/forms/frmmain.h"
#include "core/forms/tmpfrm.h"
#include "core/logged_steps.h"
#include "core/shared.h"
#include "core/strings.h"
#include "mission/page.h"
#include "script/word_search.h"

namespace tarvelin
{

namespace
{

constexpr std::string_view fourBlanks = "    ";
constexpr std::string_view threeBlanks = "   "; // add-ons and one row of the table: the files have always had it

struct Weapon
{
  const Check& check; ///< its caption is the class name
  const Text& count;
};

const Weapon weapons[] = {
    {frmmain.M16, frmmain.M16GLpocet}, // not M16pocet: both M16 share the number of the one with the launcher
    {frmmain.M16GrenadeLauncher, frmmain.M16GLpocet},
    {frmmain.M4, frmmain.M4pocet},
    {frmmain.HK, frmmain.HKpocet},
    {frmmain.M21, frmmain.M21pocet},
    {frmmain.M60, frmmain.M60pocet},
    {frmmain.LawLauncher, frmmain.LLpocet},
    {frmmain.CarlGustavLauncher, frmmain.CGLpocet},
    {frmmain.AALauncher, frmmain.AALpocet},
    {frmmain.Ak74, frmmain.Ak74pocet},
    {frmmain.Ak74SU, frmmain.Ak74SUpocet},
    {frmmain.Ak74GrenadeLauncher, frmmain.Ak74GLpocet},
    {frmmain.Ak47, frmmain.Ak47pocet},
    {frmmain.Ak47CZ, frmmain.Ak47CZpocet},
    {frmmain.Ak47GrenadeLauncher, frmmain.Ak47GLpocet},
    {frmmain.SVDDragunov, frmmain.SVDDpocet},
    {frmmain.PK, frmmain.Pkpocet},
    {frmmain.RPGLauncher, frmmain.RPGLpocet},
    {frmmain.AT4Launcher, frmmain.AT4Lpocet},
    {frmmain.KLauncher, frmmain.K32Lpocet},
    {frmmain.Binocular, frmmain.Bpocet},
    {frmmain.NVGoggles, frmmain.NVpocet},
    {frmmain.Kozlice, frmmain.kozliceshell},
};

struct Magazine
{
  const Check& check;
  const Text& count;
  const Check* named = nullptr; ///< the check whose caption is the class name, when it is another one
  const Check* or_ = nullptr;   ///< a second check that will do
  std::string_view name = {};   ///< a class name that no caption gives
  std::string_view indent = fourBlanks;
};

const Magazine magazines[] = {
    {frmmain.M16zasobniky, frmmain.txtM16zas, &frmmain.M16},
    // The launcher of the AK-47, not of the AK-74: missions are known to be so.
    {frmmain.M16GrenadeLauncher, frmmain.txtGrenade, nullptr, &frmmain.Ak47GrenadeLauncher, "GrenadeLauncher"},
    {frmmain.M4, frmmain.M4naboje},
    {frmmain.HK, frmmain.HKnaboje},
    {frmmain.M21, frmmain.M21naboje},
    {frmmain.M60, frmmain.M60naboje},
    {frmmain.LawLauncher, frmmain.LLnaboje},
    {frmmain.CarlGustavLauncher, frmmain.CGLnaboje},
    {frmmain.AALauncher, frmmain.AALnaboje},
    {frmmain.Ak74zasobniky, frmmain.txtAk74zas, &frmmain.Ak74},
    {frmmain.Ak74SU, frmmain.Ak74Sunaboje},
    {frmmain.Ak47zasobniky, frmmain.txtAk47zas, &frmmain.Ak47},
    {frmmain.Ak47CZ, frmmain.Ak47CZnaboje},
    {frmmain.SVDDragunov, frmmain.SVDDnaboje},
    {frmmain.PK, frmmain.Pknaboje},
    {frmmain.RPGLauncher, frmmain.RPGLnaboje},
    {frmmain.AT4Launcher, frmmain.AT4Lnaboje},
    {frmmain.KLauncher, frmmain.K32Lnaboje},
    {frmmain.HandGrenade, frmmain.HGpocet},
    {frmmain.PipeBomb, frmmain.PBpocet},
    {frmmain.Mine, frmmain.Mpocet},
    {frmmain.Mortar, frmmain.Mortarpocet},
    {frmmain.Flare, frmmain.Flarepocet},
    {frmmain.SmokeShell, frmmain.SSpocet, nullptr, nullptr, {}, threeBlanks},
    {frmmain.FlareRed, frmmain.FRpocet},
    {frmmain.SmokeShellRed, frmmain.SSRpocet},
    {frmmain.Kozlice, frmmain.kozliceball},
};

void addClass(std::string& text, std::string_view name)
{
  addLine(text, "class " + std::string(name));
}

void addCount(std::string& text, std::string_view indent, std::string_view count)
{
  addLine(text, std::string(indent) + "{count = " + std::string(count) + ";};");
}

std::string className(const Magazine& magazine)
{
  if (!magazine.name.empty())
    return std::string(magazine.name);
  return (magazine.named ? *magazine.named : magazine.check).caption();
}

/// Calls `action(weapon)` for each marked add-on weapon; item i is record i.
template <class Action> void eachAddon(const LoggedSteps& steps, Action action)
{
  for (int i = 0; i < frmmain.seznamzbrani.count(); ++i)
    if (frmmain.seznamzbrani.marked(i))
      steps([&] { action(shared.Zbrane.at(i)); });
}

std::string roundedText(std::string_view number)
{
  return std::to_string(toInteger(number));
}

/// Magazines "n/m" of a rifle with a grenade launcher: n of its own, m of its grenades, once for each grenade class.
void addLauncherMagazines(std::string& text, const ZaznamZbrane& weapon, const LoggedSteps& steps)
{
  const int slash = inStr(weapon.Zasobniky, "/");
  steps([&] { addCount(text, threeBlanks, roundedText(left(weapon.Zasobniky, slash - 1))); });
  List& written = tmpfrm.zasobnik;
  if (BNajdi2(0, written.count() - 1, weapon.Granaty, written) != -1)
    return;
  addClass(text, weapon.Granaty);
  steps([&] { addCount(text, threeBlanks, roundedText(mid(weapon.Zasobniky, slash + 1))); });
  written.add(weapon.Granaty);
}

} // namespace

void appendWeapons(std::string& text, const LoggedSteps& steps)
{
  addLine(text, {});
  addLine(text, "//Ted bude nasledovat trida Zbrane, kde je zapsano jake zbrane a kolik se jich smi pouzit");
  addLine(text, "class Weapons");
  addLine(text, "{");
  for (const auto& [check, count] : weapons)
    if (check.checked())
    {
      addClass(text, check.caption());
      addCount(text, fourBlanks, count.text());
    }
  eachAddon(steps,
            [&](const ZaznamZbrane& weapon)
            {
              if (weapon.Pocet == 0)
                return;
              addClass(text, weapon.Jmeno);
              addCount(text, threeBlanks, std::to_string(weapon.Pocet));
            });
  addLine(text, "};");
}

void appendMagazines(std::string& text, const LoggedSteps& steps)
{
  addLine(text, {});
  addLine(text, "class Magazines");
  addLine(text, "{");
  for (const Magazine& magazine : magazines)
    if (magazine.check.checked() || (magazine.or_ && magazine.or_->checked()))
    {
      addClass(text, className(magazine));
      addCount(text, magazine.indent, magazine.count.text());
    }
  tmpfrm.zasobnik.clear();
  tmpfrm.zasobnik.add("GrenadeLauncher");
  eachAddon(steps,
            [&](const ZaznamZbrane& weapon)
            {
              if (val(weapon.Zasobniky) == 0)
                return;
              addClass(text, weapon.Jmeno);
              if (weapon.Granatomet == 0)
                addCount(text, threeBlanks, weapon.Zasobniky);
              else
                addLauncherMagazines(text, weapon, steps);
            });
  addLine(text, "};");
  addLine(text, {});
}

} // namespace tarvelin
