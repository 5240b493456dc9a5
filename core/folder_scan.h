#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

class List;

// Scans of a folder for files whose last `length` characters are `extension` and whose name holds `part`, both ignoring
// case, in the order of the folder's listing. They trap failures and log them under their own names.

/// Number of such files.
int SpocitejSoubory(std::string_view extension, std::string_view folder, int length, std::string_view part);

/// Name of the first such file, "" when there is none.
std::string DejJmenoSouboru(std::string_view extension, std::string_view folder, int length, std::string_view part);

/// Clears the list and adds the name of every such file.
void NactiStranky(std::string_view extension, std::string_view folder, List& list, int length, std::string_view part);

/// The folder of a path, with its backslash; "" when the path has none.
std::string SlozkaSouboru(std::string_view path);

} // namespace tarvelin
