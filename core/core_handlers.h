#pragma once

namespace tarvelin
{

/// Puts the core's handlers on their fields.
void attachCore();

} // namespace tarvelin
