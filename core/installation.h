#pragma once

#include <string>

namespace tarvelin
{

/// The program folder: the executable's own when Bfdata lies there and the folder can be written, otherwise the user's
/// data folder, which is then filled from the installed Bfdata (installData).
std::string findProgramFolder();

/// Brings the data folder of `target` up to that of `source` (folders that hold a Bfdata): files that are missing or
/// that were installed and not changed since are copied; a file that the user changed or deleted is left alone.
void installData(const std::string& source, const std::string& target);

} // namespace tarvelin
