#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

/// Reads a mission.sqm as the game's editor saves it: a line scanner for the intel values, the markers, the sensors and
/// the addon lists, which then go to their fields. A file that cannot be read leaves the fields as they are and one
/// line in the run log.
void NactiSqm(const std::string& path);

/// The text between the first "=" and the last character of a line, which is dropped. Throws 5 when there is nothing
/// behind the "=", or for an empty line.
std::string HodnotaRadku(std::string_view line);

} // namespace tarvelin
