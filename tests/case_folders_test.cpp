// Runs every folder under tests/ that holds a case.lua through tarvelin-script. Beside it may lie `mission`, which is
// copied to the scratch folder as mission.Eden, `home`, which is laid over the program folder, and `expected`: after
// the script every one of its files must lie in mission.Eden byte for byte, and no other file that `mission` did not
// bring. Comments at the head of the script steer it: "-- home: fresh" (a first start), "-- exit: N", "-- stderr:
// TEXT". Each Description.ext that the program wrote, and that the script read or left behind, must be one that the
// game takes.

#include "tests/lib/generated_descriptions.h"
#include "tests/test_home.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using namespace tarvelin::test;

namespace
{

std::string directive(const std::string& script, const std::string& key)
{
  std::smatch found;
  const std::regex line("(^|\n)-- " + key + ": *([^\r\n]*)");
  return std::regex_search(script, found, line) ? found[2].str() : std::string();
}

std::set<std::string> filesUnder(const fs::path& folder)
{
  std::set<std::string> names;
  if (fs::is_directory(folder))
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
      if (entry.is_regular_file())
        names.insert(fs::relative(entry.path(), folder).generic_string());
  return names;
}

/// Shows the first line in which two files differ.
void expectSameBytes(const std::string& name, const std::string& got, const std::string& want)
{
  if (got == want)
    return;
  const auto differ = std::mismatch(got.begin(), got.end(), want.begin(), want.end());
  const auto line = 1 + std::count(got.begin(), differ.first, '\n');
  const auto around = [](const std::string& text, std::string::const_iterator at)
  {
    const auto from = text.begin() + std::max<std::ptrdiff_t>(0, (at - text.begin()) - 40);
    return std::string(from, std::min(at + 40, text.end()));
  };
  ADD_FAILURE() << name << " differs in line " << line
                << "\n  got:  " << testing::PrintToString(around(got, differ.first))
                << "\n  want: " << testing::PrintToString(around(want, differ.second));
}

class CaseFolder : public testing::Test
{
public:
  explicit CaseFolder(fs::path folder) : m_folder(std::move(folder)) {}

  void TestBody() override
  {
    const std::string script = readBytes(m_folder / "case.lua");
    const Scratch scratch;
    const fs::path home = scratch / "home";
    const fs::path work = scratch / "work";
    const fs::path mission = work / "mission.Eden";
    fs::create_directories(home);
    fs::create_directories(work);
    fs::create_directories(scratch / "descriptions"); // what the script reads leaves copies here
    makeHome(home, directive(script, "home") != "fresh");
    const auto overlay = fs::copy_options::recursive | fs::copy_options::overwrite_existing;
    if (fs::is_directory(m_folder / "home"))
      fs::copy(m_folder / "home", home, overlay);
    if (fs::is_directory(m_folder / "mission"))
      fs::copy(m_folder / "mission", mission, overlay);
    const fs::path library = fs::path(TARVELIN_TESTS) / "lib";
    std::string command = quoted(TARVELIN_HOST) + " --home " + quoted(home.string());
    for (const fs::path& argument : {library / "prelude.lua", library, work, home, m_folder})
      command += " " + quoted(argument.string());
    const Outcome run = runProgram(command, work, scratch / "user");
    const std::string wanted = directive(script, "exit");
    EXPECT_EQ(run.status, wanted.empty() ? 0 : std::stoi(wanted)) << run.output << run.errors;
    EXPECT_NE(run.errors.find(directive(script, "stderr")), std::string::npos) << run.errors;
    EXPECT_EQ(run.output.find("FAILED"), std::string::npos) << run.output;
    compare(mission);
    const int taken = expectDescriptionsTaken(fs::relative(m_folder, TARVELIN_TESTS).generic_string(), scratch.path());
    if (fs::exists(m_folder / "expected" / "Description.ext"))
    {
      EXPECT_GT(taken, 0);
    }
  }

private:
  void compare(const fs::path& mission) const
  {
    const fs::path expected = m_folder / "expected";
    if (!fs::is_directory(expected))
      return;
    const std::set<std::string> want = filesUnder(expected);
    ASSERT_FALSE(want.empty());
    for (const std::string& name : want)
    {
      EXPECT_TRUE(fs::exists(mission / name)) << name << " was not written";
      expectSameBytes(name, readBytes(mission / name), readBytes(expected / name));
    }
    const std::set<std::string> before = filesUnder(m_folder / "mission");
    for (const std::string& name : filesUnder(mission))
      EXPECT_TRUE(want.contains(name) || before.contains(name)) << name << " should not lie there";
  }

  fs::path m_folder;
};

std::string nameOf(const fs::path& folder)
{
  std::string name = fs::relative(folder, TARVELIN_TESTS).generic_string();
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
  return name;
}

const bool registered = []
{
  std::vector<fs::path> folders;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(TARVELIN_TESTS))
    if (entry.path().filename() == "case.lua")
      folders.push_back(entry.path().parent_path());
  std::sort(folders.begin(), folders.end());
  for (const fs::path& folder : folders)
    testing::RegisterTest("CaseFolders", nameOf(folder).c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [folder]() -> CaseFolder* { return new CaseFolder(folder); });
  return true;
}();

} // namespace
