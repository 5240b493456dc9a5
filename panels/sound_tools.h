#pragma once

#include <string>

namespace tarvelin
{

class Text;

/// Copies the file chosen in frmopen2 into Bfdata\oggwav and starts `program`, a tool of that folder, on it without
/// waiting. The folder becomes the current one. Failures are skipped.
void SpustAkci(const std::string& program);

/// Lets the user pick a program; a click on a file puts its full path into `box` at once, Storno empties `box`.
void chooseProgram(Text& box);

/// Puts the handlers of frmopen2, the picker of sound files, folders and programs, and of the menus that convert sounds
/// on their fields. RezimOtevreni tells the picker for whom it works.
void attachSoundTools();

} // namespace tarvelin
