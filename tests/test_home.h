#pragma once

#include <filesystem>
#include <string>

namespace tarvelin::test
{

/// A folder for one test, removed with it.
class Scratch
{
public:
  Scratch();
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const std::filesystem::path& path() const { return m_path; }
  std::filesystem::path operator/(const std::string& name) const { return m_path / name; }

private:
  std::filesystem::path m_path;
};

/// Fills a program folder for tests: a language pack Test.lng in which text N is "TN", message N "HN" and caption N
/// "CN", small catalogues, and settings that name the pack. Without `settings` the next start is a first one.
void makeHome(const std::filesystem::path& home, bool settings = true);

/// Bytes of a settings file as this program writes it, with the pack `pack` (program's form).
std::string settingsBytes(const std::string& pack);

std::string readBytes(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, const std::string& bytes);

/// What a program printed and how it ended.
struct Outcome
{
  int status = -1;
  std::string output;
  std::string errors;
};

/// Runs a command line of the shell in `folder`, with HOME at `user` and the C.UTF-8 locale.
Outcome runProgram(const std::string& command, const std::filesystem::path& folder, const std::filesystem::path& user);

/// A shell word.
std::string quoted(const std::string& word);

} // namespace tarvelin::test
