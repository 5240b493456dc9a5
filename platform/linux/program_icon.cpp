#include "platform/program_icon.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/fold.h"
#include "platform/linux/command.h"
#include "platform/linux/icon_theme.h"
#include "platform/linux/key_file.h"
#include "platform/paths.h"
#include "platform/png_image.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace tarvelin::platform
{

namespace
{

namespace fs = std::filesystem;

constexpr int wantedSide = 32;
constexpr std::string_view entryGroup = "Desktop Entry";

std::string nameOf(std::string_view program)
{
  constexpr std::string_view extension = ".exe";
  const std::string_view name = program.substr(program.find_last_of("\\/:") + 1);
  return std::string(name.substr(0, name.size() - (folded(name).ends_with(extension) ? extension.size() : 0)));
}

/// The program of an Exec line: its first word.
std::string firstWord(std::string_view line)
{
  const bool quoted = line.starts_with('"');
  if (quoted)
    line.remove_prefix(1);
  return std::string(line.substr(0, line.find(quoted ? '"' : ' ')));
}

/// True when an entry of the desktop starts the executable (native).
bool starts(const KeyFile& entry, const fs::path& executable)
{
  for (const char* const key : {"Exec", "TryExec"})
  {
    const std::string program = firstWord(valueOf(entry, entryGroup, key));
    const auto found = program.find('/') == std::string::npos ? foundInPath(program) : std::optional(program);
    std::error_code failed;
    if (found && fs::weakly_canonical(*found, failed) == executable && !failed)
      return true;
  }
  return false;
}

/// The icon that the desktop's entry for an executable names; empty when there is none. An entry called like the
/// program is looked at first: a reader of many files comes along with others that open one kind of them.
std::string entryIcon(const std::string& executable, const std::string& name)
{
  std::error_code failed;
  const fs::path wanted = fs::weakly_canonical(executable, failed);
  std::vector<fs::path> entries;
  for (const fs::path& data : dataFolders())
  {
    entries.push_back(data / "applications" / (name + ".desktop"));
    std::vector<fs::path> others;
    for (fs::recursive_directory_iterator file(data / "applications", failed), end; !failed && file != end;
         file.increment(failed))
      if (file->path().extension() == ".desktop")
        others.push_back(file->path());
    std::ranges::sort(others);
    entries.insert(entries.end(), others.begin(), others.end());
  }
  std::ranges::stable_partition(entries, [&](const fs::path& entry) { return entry.stem() == name; });
  for (const fs::path& path : entries)
  {
    const KeyFile entry = readKeyFile(path);
    if (std::string icon = valueOf(entry, entryGroup, "Icon"); !icon.empty() && starts(entry, wanted))
      return icon;
  }
  return {};
}

std::optional<IconImage> imageOf(const fs::path& file)
{
  constexpr std::uintmax_t largest = 16 << 20;
  std::error_code failed;
  if (fs::file_size(file, failed) > largest || failed)
    return std::nullopt;
  std::optional<IconImage> image;
  try
  {
    const MappedFile mapped(toProgram(file.native()));
    image = imageOfPng(mapped.bytes());
    if (!image)
      image = iconOfFile(mapped.bytes());
  }
  catch (const Failure&)
  {
    return std::nullopt;
  }
  if (!image && otherPictures)
    image = otherPictures(file.native(), wantedSide);
  return image;
}

} // namespace

std::optional<IconImage> programIcon(std::string_view program)
{
  if (fileExists(program) && isWindowsProgram(toNative(program)))
  {
    const MappedFile file(program);
    const auto image = executableIcon(file.bytes());
    return image ? std::optional(fitted(*image, wantedSide)) : std::nullopt;
  }
  const auto command = commandOf(program, "");
  if (!command && !fileExists(program))
    throw Failure(Fault::fileNotFound);
  const std::string name = nameOf(program);
  for (const std::string& icon : {command ? entryIcon(command->executable, name) : std::string(), name})
    for (const fs::path& file : iconFiles(icon, wantedSide))
      if (auto image = imageOf(file))
        return fitted(std::move(*image), wantedSide);
  return std::nullopt;
}

} // namespace tarvelin::platform
