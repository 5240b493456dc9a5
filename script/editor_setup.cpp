#include "script/editor_setup.h"

#include "core/desk.h"
#include "core/forms/frmeditsetup.h"
#include "core/shared.h"
#include "script/word_classes.h"

namespace tarvelin
{

namespace
{

/// The fields of one group of words.
struct GroupRow
{
  StyleSetting set;
  Picture EditorSetupForm::*colour;
  Check EditorSetupForm::*bold;
  Check EditorSetupForm::*italic;
};

using F = EditorSetupForm;

constexpr GroupRow groupRows[] = {
    {functionStyle, &F::BFunkce, &F::BFT, &F::BFK}, {equipmentStyle, &F::BVyb, &F::BVT, &F::BVK},
    {actionStyle, &F::BKon1, &F::BK1T, &F::BK1K},   {animationStyle, &F::BKon2, &F::BK2T, &F::BK2K},
    {operatorStyle, &F::BOp, &F::BOT, &F::BOK},     {commentStyle, &F::BKom, &F::BKT, &F::BKK},
};

void frmeditsetup_Load()
{
  for (const GroupRow& row : groupRows)
  {
    const TextStyle style = row.set.style();
    (frmeditsetup.*row.colour).setColor(style.color);
    (frmeditsetup.*row.bold).set(style.bold);
    (frmeditsetup.*row.italic).set(style.italic);
  }
  frmeditsetup.Check1.set(shared.Nastaveni.UkazovatBarvy != 0);
}

void chooseColour(Picture& picture, Colour ZaznamNastaveni::*set)
{
  const auto chosen = desk().chooseColour(picture.color());
  if (!chosen)
    return;
  picture.setColor(*chosen);
  shared.Nastaveni.*set = *chosen;
}

void keepFlag(Check& check, Flag ZaznamNastaveni::*set)
{
  check.onClick = [&check, set] { shared.Nastaveni.*set = flagOf(check.checked()); };
}

} // namespace

void attachEditorSetup()
{
  frmeditsetup.onLoad = frmeditsetup_Load;
  for (const GroupRow& row : groupRows)
  {
    Picture& colour = frmeditsetup.*row.colour;
    colour.onClick = [&colour, set = row.set.colour] { chooseColour(colour, set); };
    keepFlag(frmeditsetup.*row.bold, row.set.bold);
    keepFlag(frmeditsetup.*row.italic, row.set.italic);
  }
  keepFlag(frmeditsetup.Check1, &ZaznamNastaveni::UkazovatBarvy);
  frmeditsetup.Command1.onClick = [] { frmeditsetup.hide(); };
}

} // namespace tarvelin
