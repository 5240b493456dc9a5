#include "platform/processes.h"

#include "platform/files.h"
#include "platform/fold.h"
#include "platform/windows/handles.h"

#include <algorithm>
#include <shellapi.h>
#include <string>

namespace tarvelin::platform
{

namespace
{

bool endsWithAny(std::string_view name, std::initializer_list<std::string_view> extensions)
{
  const std::string small = folded(name);
  return std::ranges::any_of(extensions, [&](std::string_view extension) { return small.ends_with(extension); });
}

bool hasFolder(std::string_view program)
{
  return program.find_first_of("\\/:") != std::string_view::npos;
}

// Full path of the program; empty when there is none.
std::wstring locate(std::string_view program, std::string_view folder)
{
  if (!hasFolder(program) && !folder.empty())
  {
    const std::string beside = std::string(folder) + (folder.ends_with('\\') ? "" : "\\") + std::string(program);
    if (fileExists(beside))
      return wide(beside);
  }
  const std::wstring name = wide(program);
  std::wstring path(32768, L'\0');
  path.resize(SearchPathW(nullptr, name.c_str(), L".exe", static_cast<DWORD>(path.size()), path.data(), nullptr));
  return path;
}

// The system hands batch files to its shell, to which these mean more than text.
bool isSafeForBatch(std::string_view text)
{
  return text.find_first_of("&|<>^%!()\r\n") == std::string_view::npos;
}

bool isUsable(std::string_view text)
{
  return text.find('\0') == std::string_view::npos;
}

bool isWebAddress(std::string_view address)
{
  const std::string small = folded(address);
  for (const char* scheme : {"http://", "https://", "ftp://", "mailto:"})
    if (small.starts_with(scheme))
      return true;
  return false;
}

} // namespace

bool startProgram(std::string_view program, std::string_view arguments, std::string_view folder)
{
  if (program.size() >= 2 && program.starts_with('"') && program.ends_with('"'))
    program = program.substr(1, program.size() - 2);
  if (program.empty() || !isUsable(program) || !isUsable(arguments) || !isUsable(folder))
    return false;
  const std::wstring path = locate(program, folder);
  if (path.empty() || (endsWithAny(program, {".bat", ".cmd"}) && !isSafeForBatch(arguments)))
    return false;
  std::wstring line = L"\"" + path + L"\" " + wide(arguments);
  const std::wstring where = wide(folder);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWNOACTIVATE;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     where.empty() ? nullptr : where.c_str(), &start, &process) == 0)
    return false;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

bool isProgram(std::string_view)
{
  return false;
}

bool openInBrowser(std::string_view address)
{
  if (address.empty() || !isUsable(address))
    return false;
  std::string target(address);
  if (fileExists(address))
  {
    if (!endsWithAny(address, {".htm", ".html"})) // anything else might be a program
      return false;
  }
  else if (!isWebAddress(address))
    target = "http://" + target;
  const HINSTANCE result = ShellExecuteW(nullptr, L"open", wide(target).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<INT_PTR>(result) > 32; // up to 32 it is the number of an error
}

} // namespace tarvelin::platform
