#pragma once

namespace tarvelin
{

/// The one way out of the program: writes the settings, saves the run log, unloads all forms. Does nothing before the
/// start and after the end.
void exitProgram();

/// True once the program has gone through its exit.
bool programEnded();

/// For a program that is to start anew in the same process.
void forgetEnd();

} // namespace tarvelin
