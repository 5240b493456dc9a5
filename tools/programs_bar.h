#pragma once

#include <string>

namespace tarvelin
{

/// Writes the records of the programs, one behind the other (ours, binary). Failures are logged.
void UlozitConfig(const std::string& path);

/// Empties the list of programs and their bar, reads the records and makes both anew. A record that is cut off ends the
/// reading. Failures are logged.
void LoadPrograms(const std::string& path);

/// Saves the first icon of a Windows executable as NAME.bmp among the program icons. Failures are logged.
void LoadAndSaveIcons(const std::string& executable, const std::string& name);

/// Puts an icon for each program on the bar of frmmain, which shows when there is at least one; with `rebuild` the
/// icons that are there are taken away first. Element 0 is the template, program n stands on element n + 1.
void MakeProgramBar(bool rebuild);

/// Puts the handlers of the bar on its fields and LoadPrograms at the core's disposal.
void attachProgramsBar();

} // namespace tarvelin
