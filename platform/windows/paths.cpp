#include "platform/paths.h"

#include "platform/failure.h"
#include "platform/windows/wide.h"

#include <algorithm>

namespace tarvelin::platform
{

namespace
{

std::string withoutLastBackslash(std::string path)
{
  while (path.size() > 1 && path.ends_with('\\') && !path.ends_with(":\\"))
    path.pop_back();
  return path;
}

} // namespace

std::string toNative(std::string_view path)
{
  return std::string(path);
}

std::string toProgram(std::string_view native)
{
  std::string path(native);
  std::ranges::replace(path, '/', '\\');
  return path;
}

std::string toWindows(std::string_view path)
{
  return std::string(path);
}

std::string currentFolder()
{
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  return withoutLastBackslash(narrow(folder));
}

void setCurrentFolder(std::string_view path)
{
  const bool usable = path.find('\0') == std::string_view::npos;
  if (!usable || SetCurrentDirectoryW(wide(path).c_str()) == 0)
    throw Failure(Fault::pathNotFound);
}

std::vector<std::string> drives()
{
  std::vector<std::string> letters;
  const DWORD present = GetLogicalDrives();
  for (int i = 0; i < 26; ++i)
    if ((present >> i & 1U) != 0)
      letters.push_back(std::string(1, static_cast<char>('a' + i)) + ":");
  return letters;
}

std::string userDataFolder()
{
  return withoutLastBackslash(toProgram(environment(L"APPDATA")));
}

std::string homeFolder()
{
  return withoutLastBackslash(toProgram(environment(L"USERPROFILE")));
}

std::string executablePath()
{
  std::wstring path(MAX_PATH, L'\0');
  for (;;)
  {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size())
    {
      path.resize(length);
      return narrow(path);
    }
    path.resize(path.size() * 2); // it was cut
  }
}

} // namespace tarvelin::platform
