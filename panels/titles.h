#pragma once

#include <string>

namespace tarvelin
{

/// Fills the combo of fonts from fonts.dat; a missing file is logged.
void readFonts(const std::string& path);

/// Puts the handlers of the titles on their fields.
void attachTitles();

} // namespace tarvelin
