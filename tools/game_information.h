#pragma once

namespace tarvelin
{

/// Reads the game's folder and CD drive from its registry key into the shared values. With the key or one of them
/// missing both stay empty, and the log tells it.
void readGame();

} // namespace tarvelin
