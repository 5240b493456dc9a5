#pragma once

#include <optional>
#include <string>
#include <string_view>

// The registry. Windows: the system's. Elsewhere the same keys are read from the user's Wine prefix (~/.wine/system.reg
// for localMachine and classesRoot, user.reg for currentUser), so that a game installed under Wine is found; writing is
// refused there.
namespace tarvelin::platform
{

enum class RegistryRoot
{
  classesRoot,
  currentUser,
  localMachine,
};

/// A string value (UTF-8). `key` with backslashes, `value` empty for the key's default; names ignore case. On a 64-bit
/// system the 32-bit view (Wow6432Node), in which the game writes, is looked up too. Nothing when key or value is
/// absent.
std::optional<std::string> registryString(RegistryRoot root, std::string_view key, std::string_view value);

bool registryKeyExists(RegistryRoot root, std::string_view key);

/// Creates the key as needed and sets a string value. False when refused.
bool setRegistryString(RegistryRoot root, std::string_view key, std::string_view value, std::string_view text);

/// Deletes a key with all below it. False when refused or absent.
bool deleteRegistryKey(RegistryRoot root, std::string_view key);

/// Deletes a value (empty name: the default). False when refused or absent.
bool deleteRegistryValue(RegistryRoot root, std::string_view key, std::string_view value);

} // namespace tarvelin::platform
