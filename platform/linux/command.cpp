#include "platform/linux/command.h"

#include "platform/fold.h"
#include "platform/linux/environment.h"
#include "platform/linux/handles.h"
#include "platform/paths.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace tarvelin::platform
{

namespace
{

bool isFile(const std::string& native)
{
  struct stat status;
  return stat(native.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool hasFolder(std::string_view program)
{
  return program.find_first_of("\\/:") != std::string_view::npos;
}

std::string within(std::string_view folder, std::string_view name)
{
  if (folder.empty())
    return std::string(name);
  return std::string(folder) + (folder.ends_with('\\') ? "" : "\\") + std::string(name);
}

std::string nameOf(std::string_view program)
{
  return std::string(program.substr(program.find_last_of("\\/:") + 1));
}

} // namespace

bool isExecutable(const std::string& native)
{
  return isFile(native) && access(native.c_str(), X_OK) == 0;
}

bool isWindowsProgram(const std::string& native)
{
  const std::string name = folded(native);
  if (name.ends_with(".bat") || name.ends_with(".com") || name.ends_with(".cmd"))
    return true;
  const Descriptor file(open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  std::array<char, 2> mark{};
  return file.valid() && read(file.get(), mark.data(), mark.size()) == 2 && mark == std::array{'M', 'Z'};
}

std::string absolute(const std::string& native)
{
  std::error_code failed;
  return std::filesystem::absolute(native, failed).native();
}

std::optional<std::string> foundInPath(std::string_view name)
{
  const std::string path = environment("PATH");
  for (std::size_t start = 0; start <= path.size();)
  {
    const std::size_t end = std::min(path.find(':', start), path.size());
    const std::string folder = path.substr(start, end - start);
    const std::string native = toNative(toProgram(folder) + "\\" + std::string(name));
    if (!folder.empty() && isExecutable(native))
      return absolute(native);
    start = end + 1;
  }
  return std::nullopt;
}

std::optional<Command> commandOf(std::string_view program, std::string_view folder)
{
  constexpr std::string_view extension = ".exe";
  const std::string file = toNative(hasFolder(program) ? std::string(program) : within(folder, program));
  if (program.size() > extension.size() && folded(program).ends_with(extension))
  {
    const std::string_view name = program.substr(0, program.size() - extension.size());
    const std::string beside = toNative(hasFolder(name) ? std::string(name) : within(folder, name));
    if (isExecutable(beside) && !isWindowsProgram(beside))
      return Command{absolute(beside), {}};
    if (const auto found = foundInPath(nameOf(name)))
      return Command{*found, {}};
  }
  if (isExecutable(file) && !isWindowsProgram(file))
    return Command{absolute(file), {}};
  if (isFile(file) && isWindowsProgram(file))
  {
    const auto wine = foundInPath("wine");
    return wine ? std::optional(Command{*wine, {absolute(file)}, true}) : std::nullopt;
  }
  const auto found = hasFolder(program) ? std::nullopt : foundInPath(program);
  return found ? std::optional(Command{*found, {}}) : std::nullopt;
}

} // namespace tarvelin::platform
