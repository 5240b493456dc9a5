#include "platform/linux/key_file.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/linux/environment.h"
#include "platform/paths.h"

#include <algorithm>

namespace tarvelin::platform
{

namespace
{

std::string_view trimmed(std::string_view text)
{
  constexpr std::string_view blanks = " \t\r";
  const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
  text.remove_prefix(first);
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

} // namespace

KeyFile readKeyFile(const std::filesystem::path& file)
try
{
  KeyFile groups;
  const MappedFile mapped(toProgram(file.native()));
  std::string_view rest = mapped.bytes();
  KeyGroup* group = nullptr;
  while (!rest.empty())
  {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = trimmed(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const std::size_t equals = line.find('=');
    if (line.starts_with('[') && line.ends_with(']'))
      group = &groups[std::string(line.substr(1, line.size() - 2))];
    else if (group && equals != std::string_view::npos && !line.starts_with('#'))
      group->try_emplace(std::string(trimmed(line.substr(0, equals))), trimmed(line.substr(equals + 1)));
  }
  return groups;
}
catch (const Failure&)
{
  return {};
}

std::string valueOf(const KeyFile& file, std::string_view group, std::string_view key)
{
  const auto found = file.find(group);
  if (found == file.end())
    return {};
  const auto value = found->second.find(key);
  return value == found->second.end() ? std::string() : value->second;
}

std::vector<std::filesystem::path> dataFolders()
{
  std::vector<std::filesystem::path> folders;
  if (const std::string own = userDataFolder(); !own.empty())
    folders.emplace_back(toNative(own));
  std::string others = environment("XDG_DATA_DIRS");
  if (others.empty())
    others = "/usr/local/share:/usr/share";
  for (std::size_t start = 0; start <= others.size();)
  {
    const std::size_t end = std::min(others.find(':', start), others.size());
    if (end > start)
      folders.emplace_back(others.substr(start, end - start));
    start = end + 1;
  }
  return folders;
}

} // namespace tarvelin::platform
