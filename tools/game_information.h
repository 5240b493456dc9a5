#pragma once

namespace tarvelin
{

/// Reads the game's folder and CD drive from its registry key into the shared values; what is missing stays empty and
/// is logged.
void readGame();

} // namespace tarvelin
