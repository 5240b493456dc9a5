#pragma once

#include <string>

namespace tarvelin
{

/// Writes the skeleton of a mission.sqm: four empty sections in the game's format. A failure is logged.
void UlozSqm(const std::string& path);

} // namespace tarvelin
