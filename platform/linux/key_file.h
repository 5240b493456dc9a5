#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

// The desktop's own files of settings: groups "[GROUP]" with lines "KEY=VALUE".
namespace tarvelin::platform
{

using KeyGroup = std::map<std::string, std::string, std::less<>>;
using KeyFile = std::map<std::string, KeyGroup, std::less<>>;

/// The first value of each key. Empty when the file is missing or can't be read.
KeyFile readKeyFile(const std::filesystem::path& file);

/// The value of a key, empty when there is none.
std::string valueOf(const KeyFile& file, std::string_view group, std::string_view key);

/// The folders of the user's and the system's data, the one that counts most first.
std::vector<std::filesystem::path> dataFolders();

} // namespace tarvelin::platform
