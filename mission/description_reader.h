#pragma once

#include <string>

namespace tarvelin
{

/// Reads the mission's settings (not its classes) back from a Description.ext. Failures are logged.
void NactiDescription(const std::string& cesta);

} // namespace tarvelin
