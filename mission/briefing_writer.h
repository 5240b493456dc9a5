#pragma once

#include <string>

namespace tarvelin
{

/// Writes the notebook page of a mission: notes, plan, objectives, debriefing ends. `plan` and `poznamky` are the texts
/// of a page for all sides; a page for several sides takes each side's own. Failures are logged.
void UlozBriefing(const std::string& cesta, const std::string& plan, const std::string& poznamky);

} // namespace tarvelin
