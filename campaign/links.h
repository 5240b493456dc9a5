#pragma once

#include "core/records.h"

#include <array>
#include <string>

namespace tarvelin
{

// A link of an ending is free text. Four entries of the language table have a meaning in it; anything else is the name
// of a class.
inline constexpr int nextMission = 45;
inline constexpr int sameMission = 46;
inline constexpr int nextChapter = 47;
inline constexpr int sameChapter = 48;

/// The endings 1 to 6 of a chapter or of a mission.
template <class Record>
inline constexpr std::array<std::string Record::*, 6> endLinks = {&Record::End1, &Record::End2, &Record::End3,
                                                                  &Record::End4, &Record::End5, &Record::End6};

} // namespace tarvelin
