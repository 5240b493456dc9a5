#pragma once

#include <string>

namespace tarvelin
{

/// Writes a mission's Description.ext from the panels, then its Stringtable.csv, and copies its sounds. Values go into
/// the file as they were typed. Failures are logged.
void UlozDescription(const std::string& cesta);

} // namespace tarvelin
