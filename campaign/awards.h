#pragma once

namespace tarvelin
{

/// Puts the handlers of the awards and penalties on their fields.
void attachAwards();

} // namespace tarvelin
