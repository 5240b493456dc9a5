#pragma once

#include <string>

namespace tarvelin
{

/// Writes the page that the game shows in its list of missions, and copies its picture. Failures are logged.
void UlozOverview(const std::string& cesta, const std::string& text);

} // namespace tarvelin
