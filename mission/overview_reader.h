#pragma once

#include <string>

namespace tarvelin
{

class Text;

/// Reads an overview page back: the mission's name, the picture and its size, and the text into `pole`. Failures are
/// logged.
void NactiOverview(const std::string& cesta, Text& pole);

} // namespace tarvelin
