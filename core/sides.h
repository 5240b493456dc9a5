#pragma once

#include "core/shared.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvelin
{

/// Objectives and their number; one spare element behind the last.
struct ObjectiveStore
{
  Array<ZaznamUkolu>& records;
  std::int16_t& count;
};

/// A side of a briefing for several sides: what it is called in the several places, and its texts.
struct Side
{
  int name;                   ///< entry of Texty
  std::string_view czechName; ///< upper case
  std::string_view comment;   ///< in the comments of a notebook page
  std::string_view anchor;    ///< in its anchors
  std::string& notes;
  std::string& plan;
  ObjectiveStore objectives;
};

/// In the order in which they are tested and written. "guerrila" is how the game's pages spell it.
inline const Side sides[] = {
    {33, "ZÁPAD", "zapad", "west", shared.PoznamkyZapad, shared.PlanZapad, {shared.UkolyZapad, shared.PocetUkoluZapad}},
    {34,
     "VÝCHOD",
     "vychod",
     "east",
     shared.PoznamkyVychod,
     shared.PlanVychod,
     {shared.UkolyVychod, shared.PocetUkoluVychod}},
    {35,
     "PARTYZÁNI",
     "partyzani",
     "guerrila",
     shared.PoznamkyPartyzani,
     shared.PlanPartyzani,
     {shared.UkolyPartyzani, shared.PocetUkoluPartyzani}},
    {36,
     "CIVILISTÉ",
     "civilisty",
     "civilian",
     shared.PoznamkyCivilisti,
     shared.PlanCivilisti,
     {shared.UkolyCivilisti, shared.PocetUkoluCivilisti}},
};

/// The objectives of a briefing for one side.
inline const ObjectiveStore commonObjectives{shared.Ukoly, shared.PocetUkolu};

} // namespace tarvelin
