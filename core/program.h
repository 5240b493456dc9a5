#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

/// The program folder, in which Bfdata lies and Tarvinfo.cfg is kept; no backslash at the end.
const std::string& programFolder();
void setProgramFolder(std::string_view folder);

/// Path of a file of the program: `file` begins with a backslash ("\Bfdata\islands.dat").
std::string programFile(std::string_view file);

} // namespace tarvelin
