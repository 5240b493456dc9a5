#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Which program a name stands for.
namespace tarvelin::platform
{

/// A program as it is started: what is run, with what before the user's arguments, and which paths it understands.
struct Command
{
  std::string executable; ///< native
  std::vector<std::string> first;
  bool windowsPaths = false;
};

/// A "NAME.exe" is first looked for as the native NAME, beside it and in PATH, then run with wine where that is
/// installed. `folder` is looked into when the program (program's form) names none. Nothing when it is not found.
std::optional<Command> commandOf(std::string_view program, std::string_view folder);

/// A program of PATH, native and absolute.
std::optional<std::string> foundInPath(std::string_view name);

bool isExecutable(const std::string& native);

/// True for a program that only Windows can run, by its first bytes or its name.
bool isWindowsProgram(const std::string& native);

/// The native path from the root on.
std::string absolute(const std::string& native);

} // namespace tarvelin::platform
