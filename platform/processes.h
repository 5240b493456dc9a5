#pragma once

#include <string_view>

// Other programs. Never through a shell: the command line is split at blanks as the system's loader would, so that a
// file name cannot run anything.
namespace tarvelin::platform
{

/// Starts `program` with `arguments` (split at blanks outside double quotes) in `folder` and does not wait for it.
/// Program, folder and paths in the arguments are in the program's form. Elsewhere than on Windows "NAME.exe" is first
/// looked for as the native NAME (beside it, then in PATH) and gets native paths, then run with wine, with Windows
/// paths, when that is there. `program` without a folder is looked for in `folder` first. True when it was started.
bool startProgram(std::string_view program, std::string_view arguments, std::string_view folder);

/// True for a file that the system lets its user run, whatever it is called. On Windows the name tells that, and this
/// is never true.
bool isProgram(std::string_view path);

/// Opens a web address or a local page in the user's browser. True when a browser was started.
bool openInBrowser(std::string_view address);

} // namespace tarvelin::platform
