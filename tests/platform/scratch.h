#pragma once

#include "platform/paths.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

// What the tests of platform/ share: a folder of their own, and variables of the environment put back afterwards.
namespace tarvelin::tests
{

/// A new folder under the system's temporary one, removed with all that is in it.
class Scratch
{
public:
  Scratch()
  {
    std::string pattern = (std::filesystem::temp_directory_path() / "tarvelin-test-XXXXXX").string();
    m_root = std::filesystem::canonical(mkdtemp(pattern.data()));
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch()
  {
    std::error_code failed;
    std::filesystem::remove_all(m_root, failed);
  }

  std::filesystem::path native(std::string_view name = "") const { return name.empty() ? m_root : m_root / name; }

  /// The program's path of a name in the folder.
  std::string path(std::string_view name = "") const { return platform::toProgram(native(name).string()); }

  void put(std::string_view name, std::string_view bytes) const
  {
    std::filesystem::create_directories(native(name).parent_path());
    std::ofstream(native(name), std::ios::binary) << bytes;
  }

  std::string bytes(std::string_view name) const
  {
    std::ifstream file(native(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  bool has(std::string_view name) const { return std::filesystem::exists(native(name)); }

  std::size_t count() const
  {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(m_root), std::filesystem::directory_iterator()));
  }

private:
  std::filesystem::path m_root;
};

/// A variable of the environment with another value, or without one.
class Variable
{
public:
  Variable(const char* name, const std::optional<std::string>& value) : m_name(name)
  {
    if (const char* before = std::getenv(name))
      m_before = before;
    put(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { put(m_before); }

private:
  void put(const std::optional<std::string>& value) const
  {
    if (value)
      setenv(m_name, value->c_str(), 1);
    else
      unsetenv(m_name);
  }

  const char* m_name;
  std::optional<std::string> m_before;
};

/// How many files this process has open.
inline std::ptrdiff_t openDescriptors()
{
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

} // namespace tarvelin::tests
