#pragma once

#include <string>

namespace tarvelin
{

class RichText;

/// Fills the readme template into a field, with its tags replaced. Failures are logged.
void NactiReadme(const std::string& path, RichText& box);

/// Names of the mission's add-ons, each once and on a line of its own; the last has no line end.
std::string AddonyDoTextu();

} // namespace tarvelin
