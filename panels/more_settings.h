#pragma once

#include <string>

namespace tarvelin
{

/// Loads a Stringtable.csv as the author's own rows, as it stands. A failure is logged.
void readStringtable(const std::string& path);

/// Puts the handlers of the form of further mission settings on their fields: the form itself, own rows, add-ons,
/// readme.
void attachMoreSettings();

} // namespace tarvelin
