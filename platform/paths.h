#pragma once

#include <string>
#include <string_view>
#include <vector>

// Paths. In memory the program holds them in one form, with backslashes (UTF-8); only the functions of platform/ turn
// them into the system's form, at the moment of the call.
namespace tarvelin::platform
{

/// The system's path for a path in the program's form. Where the system tells case apart, each component that exists
/// under another case is found under it, the exact name first; what does not exist keeps its spelling. A drive letter
/// is looked up in the user's Wine prefix (~/.wine/dosdevices). Never fails.
std::string toNative(std::string_view path);

/// The program's form of a path of the system: an absolute or relative path with backslashes.
std::string toProgram(std::string_view native);

/// The path as a Windows program sees it: unchanged on Windows, elsewhere "Z:" before an absolute path without a drive.
std::string toWindows(std::string_view path);

/// The current folder in the program's form, without a backslash at the end (but for a root).
std::string currentFolder();

/// Makes `path` (program's form) the current folder. Throws 76 when it is no folder.
void setCurrentFolder(std::string_view path);

/// The drives of the machine as the drive lists show them: "c:", "d:" and so on; elsewhere than on Windows first the
/// root "\", then the letters of the user's Wine prefix.
std::vector<std::string> drives();

/// The user's folder for program data: %APPDATA%, elsewhere XDG_DATA_HOME or ~/.local/share. Program's form, no
/// backslash at the end; empty when the system names none.
std::string userDataFolder();

/// The user's home folder, in the program's form, no backslash at the end; empty when the system names none.
std::string homeFolder();

/// Full path of the running executable in the program's form.
std::string executablePath();

} // namespace tarvelin::platform
