#include "panels/chosen_side.h"

#include "core/forms/frmmain.h"

namespace tarvelin
{

const Side* chosenSide(const Combo& combo)
{
  for (const Side& side : sides)
    if (combo.text() == Texty(side.name))
      return &side;
  return nullptr;
}

const ObjectiveStore* objectivesOnShow()
{
  if (!frmmain.chkvicestran.checked())
    return &commonObjectives;
  const Side* const side = chosenSide(frmmain.strany);
  return side ? &side->objectives : nullptr;
}

} // namespace tarvelin
