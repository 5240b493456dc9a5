#pragma once

#include <string>

namespace tarvelin
{

class RichText;

/// Reads a text file into a field, behind what it holds: each line and CR LF. Throws 53 and the like.
void NactiSkript(const std::string& path, RichText& box);

/// Creates or replaces a text file: the text and one CR LF behind it. Throws 76 and the like.
void UlozText(const std::string& path, const std::string& text);

/// Puts the handlers of the script tab on its fields.
void attachEditor();

} // namespace tarvelin
