#pragma once

namespace tarvelin
{

/// Puts the program together: all forms and shared values at their defaults, and every subsystem's handlers on their
/// fields. The window and the script host call it before the start.
void assembleProgram();

} // namespace tarvelin
