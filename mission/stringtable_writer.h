#pragma once

#include "core/numbers.h"

#include <string>

namespace tarvelin
{

/// Writes the table of radio and subtitle texts in six languages, of the mission or, with the flag, of the campaign.
/// Failures are logged.
void UlozStringtable(const std::string& cesta, Flag kampan);

} // namespace tarvelin
