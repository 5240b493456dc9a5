#pragma once

#include "core/forms/rows.h"
#include "core/sides.h"

namespace tarvelin
{

/// The side that a combo names in the words of the language pack; null when it names none.
const Side* chosenSide(const Combo& combo);

/// The objectives on show: those of the chosen side of a briefing for several sides, else the common ones. Null when no
/// side is chosen.
const ObjectiveStore* objectivesOnShow();

} // namespace tarvelin
