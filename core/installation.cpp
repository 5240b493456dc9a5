#include "core/installation.h"

#include "core/attempt.h"
#include "core/folder_scan.h"
#include "core/strings.h"
#include "core/text_file.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <cstdint>
#include <map>

namespace tarvelin
{

namespace
{

constexpr std::string_view dataFolder = "\\Bfdata";
constexpr std::string_view recordFile = "\\Bfdata\\installed.lst"; // ours: lines of check sum, blank, path

using Installed = std::map<std::string, std::string>; ///< check sum of each file as it was installed

/// FNV-1a: enough to tell a changed file.
std::string checkSum(const std::string& path)
{
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const char byte : platform::readFile(path))
    sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  return std::to_string(sum);
}

Installed readRecord(const std::string& target)
{
  Installed record;
  attempt(
      [&]
      {
        const std::string text = platform::readFile(target + std::string(recordFile));
        for (LineWalker lines(text); !lines.atEnd();)
        {
          const std::string_view line = lines.next();
          if (const std::size_t blank = line.find(' '); blank != std::string_view::npos)
            record.emplace(line.substr(blank + 1), line.substr(0, blank));
        }
      });
  return record;
}

void writeRecord(const std::string& target, const Installed& record)
{
  std::string text;
  for (const auto& [path, sum] : record)
    text += sum + " " + path + std::string(crlf);
  attempt([&] { platform::writeFile(target + std::string(recordFile), text); });
}

/// Creates a folder with all that are missing above it.
void createFolders(const std::string& folder)
{
  if (folder.empty() || platform::folderExists(folder))
    return;
  const std::string above = SlozkaSouboru(folder);
  if (above.size() > 1)
    createFolders(above.substr(0, above.size() - 1));
  attempt([&] { platform::createFolder(folder); });
}

void installFile(const std::string& source, const std::string& target, const std::string& path, Installed& record)
{
  const std::string to = target + path;
  const auto known = record.find(path);
  const bool exists = platform::fileExists(to);
  if (known == record.end() ? exists : !exists || checkSum(to) != known->second)
    return; // the user's own, changed or deleted by him
  const std::string sum = checkSum(source + path);
  if (exists && sum == known->second)
    return;
  platform::copyFileOver(source + path, to);
  record[path] = sum;
}

void installFolder(const std::string& source, const std::string& target, const std::string& path, Installed& record)
{
  createFolders(target + path);
  for (const std::string& name : platform::listFiles(source + path))
    attempt([&] { installFile(source, target, path + "\\" + name, record); });
  for (const std::string& name : platform::listFolders(source + path))
    attempt([&] { installFolder(source, target, path + "\\" + name, record); });
}

/// Where an installed Bfdata may lie, seen from the folder of the executable.
std::string installedSource(const std::string& executableFolder)
{
  for (const std::string_view place : {"", "\\..\\share\\tarvelin"})
    if (platform::folderExists(executableFolder + std::string(place) + std::string(dataFolder)))
      return executableFolder + std::string(place);
  return {};
}

} // namespace

void installData(const std::string& source, const std::string& target)
{
  Installed record = readRecord(target);
  const Installed before = record;
  attempt([&] { installFolder(source, target, std::string(dataFolder), record); });
  if (record != before)
    writeRecord(target, record);
}

std::string findProgramFolder()
{
  std::string own = SlozkaSouboru(platform::executablePath());
  if (!own.empty())
    own.pop_back();
  if (platform::folderExists(own + std::string(dataFolder)) && platform::folderWritable(own))
    return own;
  const std::string user = platform::userDataFolder();
  if (user.empty())
    return own;
  const std::string target = user + "\\tarvelin";
  createFolders(target);
  if (const std::string source = installedSource(own); !source.empty())
    installData(source, target);
  return target;
}

} // namespace tarvelin
