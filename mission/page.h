#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

/// Adds a line with its CR LF.
inline void addLine(std::string& text, std::string_view line)
{
  text.append(line).append("\r\n");
}

/// Head of a page of the game, down to the line of blanks under the body tag.
std::string pageHead(std::string_view title, std::string_view generator = "Tarvelin 2.2");

} // namespace tarvelin
