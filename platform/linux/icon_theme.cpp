#include "platform/linux/icon_theme.h"

#include "platform/linux/environment.h"
#include "platform/linux/key_file.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace tarvelin::platform
{

namespace
{

namespace fs = std::filesystem;

constexpr std::string_view themeGroup = "Icon Theme";
constexpr std::string_view commonTheme = "hicolor";
constexpr const char* endings[] = {".png", ".svg", ".xpm"};

/// The folders in which themes lie.
std::vector<fs::path> themeFolders()
{
  std::vector<fs::path> folders;
  if (const std::string home = environment("HOME"); !home.empty())
    folders.push_back(fs::path(home) / ".icons");
  for (const fs::path& data : dataFolders())
    folders.push_back(data / "icons");
  return folders;
}

/// The folders of pictures that belong to no theme.
std::vector<fs::path> plainFolders()
{
  std::vector<fs::path> folders = themeFolders();
  for (const fs::path& data : dataFolders())
    folders.push_back(data / "pixmaps");
  return folders;
}

int number(const std::string& text, int otherwise)
{
  int value = otherwise;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

/// The theme that the user chose on the desktop; empty when none did.
std::string chosenTheme()
{
  const std::string named = environment("XDG_CONFIG_HOME");
  const fs::path config = named.starts_with('/') ? fs::path(named) : fs::path(environment("HOME")) / ".config";
  for (const char* const file : {"gtk-4.0/settings.ini", "gtk-3.0/settings.ini"})
    if (std::string theme = valueOf(readKeyFile(config / file), "Settings", "gtk-icon-theme-name"); !theme.empty())
      return theme;
  return valueOf(readKeyFile(config / "kdeglobals"), "Icons", "Theme");
}

std::vector<std::string> listed(std::string_view text)
{
  std::vector<std::string> parts;
  while (!text.empty())
  {
    const std::size_t end = std::min(text.find(','), text.size());
    if (end > 0)
      parts.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

/// What a theme tells of itself, from the first of the folders that have it.
KeyFile indexOf(const std::string& theme)
{
  for (const fs::path& folder : themeFolders())
    if (KeyFile index = readKeyFile(folder / theme / "index.theme"); !index.empty())
      return index;
  return {};
}

/// The user's theme and those that it inherits from, each once, the common one last.
std::vector<std::string> themes()
{
  std::vector<std::string> names;
  if (std::string chosen = chosenTheme(); !chosen.empty())
    names.push_back(std::move(chosen));
  for (std::size_t i = 0; i < names.size(); ++i)
    for (const std::string& parent : listed(valueOf(indexOf(names[i]), themeGroup, "Inherits")))
      if (parent != commonTheme && std::ranges::find(names, parent) == names.end())
        names.push_back(parent);
  names.emplace_back(commonTheme);
  return names;
}

/// A folder of a theme and how far its pictures are from the wanted size.
struct SizeFolder
{
  std::string name;
  int distance;
  int size;
};

int distanceOf(const KeyFile& index, const std::string& folder, int side)
{
  const auto value = [&](std::string_view key, int otherwise)
  { return number(valueOf(index, folder, key), otherwise); };
  const int size = value("Size", side);
  const int scale = value("Scale", 1);
  const std::string type = valueOf(index, folder, "Type");
  if (type == "Fixed")
    return std::abs(size * scale - side);
  const bool scalable = type == "Scalable";
  const int least = scalable ? value("MinSize", size) : size - value("Threshold", 2);
  const int most = scalable ? value("MaxSize", size) : size + value("Threshold", 2);
  return std::max({0, least * scale - side, side - most * scale});
}

std::vector<SizeFolder> sizeFolders(const std::string& theme, int side)
{
  constexpr int usualSizes[] = {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};
  std::vector<SizeFolder> folders;
  const KeyFile index = indexOf(theme);
  for (const char* const list : {"Directories", "ScaledDirectories"})
    for (std::string& folder : listed(valueOf(index, themeGroup, list)))
    {
      const int distance = distanceOf(index, folder, side);
      const int size = number(valueOf(index, folder, "Size"), side);
      folders.push_back({std::move(folder), distance, size});
    }
  if (folders.empty() && theme == commonTheme) // a user's own part of it has no index
  {
    for (const int size : usualSizes)
      folders.push_back({std::to_string(size) + "x" + std::to_string(size) + "/apps", std::abs(size - side), size});
    folders.push_back({"scalable/apps", 0, side});
  }
  std::ranges::stable_sort(folders, // of two as near the larger one: it looks better made smaller
                           [](const SizeFolder& a, const SizeFolder& b)
                           { return a.distance != b.distance ? a.distance < b.distance : a.size > b.size; });
  return folders;
}

void addFiles(std::vector<fs::path>& files, const fs::path& folder, const std::string& name)
{
  std::error_code failed;
  for (const char* const ending : endings)
    if (fs::path file = folder / (name + ending); fs::is_regular_file(file, failed))
      files.push_back(std::move(file));
}

} // namespace

std::vector<fs::path> iconFiles(const std::string& name, int side)
{
  if (name.starts_with('/'))
    return {name};
  if (name.empty() || name.find('/') != std::string::npos)
    return {};
  std::string plain = name;
  for (const std::string_view ending : endings) // some entries name the file, which a theme does not
    if (plain.ends_with(ending))
      plain.resize(plain.size() - ending.size());
  std::vector<fs::path> files;
  for (const std::string& theme : themes())
    for (const SizeFolder& folder : sizeFolders(theme, side))
      for (const fs::path& themeFolder : themeFolders())
        addFiles(files, themeFolder / theme / folder.name, plain);
  for (const fs::path& folder : plainFolders())
    addFiles(files, folder, plain);
  return files;
}

} // namespace tarvelin::platform
