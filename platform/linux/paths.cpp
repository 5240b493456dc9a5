#include "platform/paths.h"

#include "platform/failure.h"
#include "platform/fold.h"
#include "platform/linux/environment.h"
#include "platform/linux/handles.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>

namespace tarvelin::platform
{

namespace
{

bool isLetter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

char smallLetter(char c)
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool hasDrive(std::string_view path)
{
  return path.size() >= 2 && isLetter(path[0]) && path[1] == ':';
}

// Links to nowhere count as existing.
bool nameExists(const std::string& path)
{
  struct stat status;
  return lstat(path.c_str(), &status) == 0;
}

bool isFolder(const std::string& path)
{
  struct stat status;
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string resolved(const std::string& path)
{
  char* full = realpath(path.c_str(), nullptr);
  if (full == nullptr)
    return path;
  std::string result = full;
  std::free(full);
  return result;
}

std::string driveFolder(char letter)
{
  const std::string link = winePrefix() + "/dosdevices/" + smallLetter(letter) + ":";
  if (letter != 'z' && letter != 'Z')
    return resolved(link);
  return nameExists(link) ? resolved(link) : "/"; // what Wine calls Z: is the root, also before its first start
}

// The name under which a folder has `name` in other letters; the first in the order of listings when there are several.
std::optional<std::string> spellingIn(const std::string& folder, std::string_view name)
{
  const OpenFolder open(opendir(folder.empty() ? "." : folder.c_str()));
  if (!open)
    return std::nullopt;
  std::optional<std::string> best;
  while (const dirent* entry = readdir(open.get()))
    if (equalIgnoringCase(entry->d_name, name) && (!best || lessIgnoringCase(entry->d_name, *best)))
      best = entry->d_name;
  return best;
}

std::string withoutDoubledSlashes(std::string path)
{
  const auto bothSlashes = [](char a, char b) { return a == '/' && b == '/'; };
  path.erase(std::unique(path.begin(), path.end(), bothSlashes), path.end());
  return path;
}

// Finds the components of `rest` one by one below `found`, which is empty or ends with a slash.
std::string foundBelow(std::string found, std::string_view rest)
{
  while (!rest.empty())
  {
    const std::string_view name = rest.substr(0, rest.find('/'));
    if (nameExists(found + std::string(name)))
      found += name;
    else if (const auto spelling = spellingIn(found, name))
      found += *spelling;
    else
      return found.append(rest);
    rest.remove_prefix(name.size());
    if (!rest.empty())
    {
      found += '/';
      rest.remove_prefix(1);
    }
  }
  return found;
}

std::string withoutLastSlash(std::string path)
{
  while (path.size() > 1 && path.back() == '/')
    path.pop_back();
  return path;
}

} // namespace

std::string toNative(std::string_view path)
{
  std::string prefix;
  if (hasDrive(path))
  {
    prefix = driveFolder(path[0]);
    if (path.size() == 2)
      return prefix;
    path.remove_prefix(2);
    if (!prefix.ends_with('/'))
      prefix += '/';
  }
  std::string wanted(path);
  std::ranges::replace(wanted, '\\', '/');
  wanted = withoutDoubledSlashes(prefix + wanted);
  if (wanted.find('\0') != std::string::npos || nameExists(wanted))
    return wanted;
  const std::string start = wanted.starts_with('/') ? "/" : "";
  return foundBelow(start, std::string_view(wanted).substr(start.size()));
}

std::string toProgram(std::string_view native)
{
  std::string path(native);
  std::ranges::replace(path, '/', '\\');
  return path;
}

std::string toWindows(std::string_view path)
{
  return path.starts_with('\\') ? "Z:" + std::string(path) : std::string(path);
}

std::string currentFolder()
{
  std::error_code failed;
  return toProgram(std::filesystem::current_path(failed).native());
}

void setCurrentFolder(std::string_view path)
{
  const bool usable = path.find('\0') == std::string_view::npos;
  if (!usable || chdir(toNative(path).c_str()) != 0)
    throw Failure(Fault::pathNotFound);
}

std::vector<std::string> drives()
{
  std::vector<std::string> letters;
  const std::string folder = winePrefix() + "/dosdevices";
  if (const OpenFolder open{opendir(folder.c_str())})
    while (const dirent* entry = readdir(open.get()))
    {
      const std::string name = entry->d_name;
      if (name.size() == 2 && hasDrive(name) && isFolder(folder + "/" + name))
        letters.push_back(name);
    }
  std::ranges::sort(letters);
  letters.insert(letters.begin(), "\\");
  return letters;
}

std::string userDataFolder()
{
  const std::string named = environment("XDG_DATA_HOME");
  if (named.starts_with('/')) // a relative one is to be ignored
    return toProgram(withoutLastSlash(named));
  const std::string home = environment("HOME");
  return home.empty() ? home : toProgram(withoutLastSlash(home) + "/.local/share");
}

std::string homeFolder()
{
  return toProgram(withoutLastSlash(environment("HOME")));
}

std::string executablePath()
{
  std::error_code failed;
  return toProgram(std::filesystem::read_symlink("/proc/self/exe", failed).native());
}

} // namespace tarvelin::platform
