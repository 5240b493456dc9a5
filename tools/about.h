#pragma once

namespace tarvelin
{

/// Puts the handlers of the windows about the program and about the game on their fields.
void attachAbout();

} // namespace tarvelin
