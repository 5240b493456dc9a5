#pragma once

#include <string>

namespace tarvelin
{

/// Reads a notebook page back into the panels: the text outside tags, by the page's anchors. Failures are logged.
void NactiBriefing(const std::string& cesta);

} // namespace tarvelin
