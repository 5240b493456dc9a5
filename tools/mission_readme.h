#pragma once

#include <string>

namespace tarvelin
{

class RichText;

/// Fills the readme template into a field, with its tags replaced. Failures are logged.
void NactiReadme(const std::string& path, RichText& box);

} // namespace tarvelin
