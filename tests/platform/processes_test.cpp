#include "platform/files.h"
#include "platform/processes.h"
#include "tests/platform/scratch.h"

#include <cerrno>
#include <chrono>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace tarvelin::platform
{

namespace
{

using tests::openDescriptors;
using tests::Scratch;
using tests::Variable;

// Writes its folder, its arguments and its input into the file REPORT beside it, the end last.
constexpr std::string_view reporter = R"sh(#!/bin/sh
here=$(dirname "$0")
{
  printf 'folder %s\n' "$(pwd)"
  for word in "$@"; do printf 'word %s\n' "$word"; done
  printf 'input %s\n' "$(wc -c)"
} > "$here/REPORT.part"
/bin/mv "$here/REPORT.part" "$here/REPORT"
)sh";

class Processes : public testing::Test
{
protected:
  void makeProgram(std::string_view name, std::string_view script = reporter) const
  {
    m_scratch.put(name, script);
    chmod(m_scratch.native(name).c_str(), 0755);
  }

  /// What a started reporter has written into a folder of the scratch folder; empty when it did not come.
  std::string report(std::string_view folder = "") const
  {
    const std::string name = (folder.empty() ? "" : std::string(folder) + "/") + "REPORT";
    for (int i = 0; i < 1000 && !m_scratch.has(name); ++i)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return m_scratch.bytes(name);
  }

  std::string expected(std::string_view folder, std::initializer_list<std::string_view> words) const
  {
    std::string text = "folder " + m_scratch.native(folder).string() + "\n";
    for (const std::string_view word : words)
      text += "word " + std::string(word) + "\n";
    return text + "input 0\n";
  }

  Scratch m_scratch;
  Variable m_home{"HOME", m_scratch.native().string()};
};

TEST_F(Processes, StartsInTheFolderWithTheArguments)
{
  makeProgram("bin/tool");
  std::filesystem::create_directory(m_scratch.native("Práce a b"));
  EXPECT_TRUE(startProgram(m_scratch.path("bin\\tool"), "one \"two and\" three", m_scratch.path("práce A B\\")));
  EXPECT_EQ(report("bin"), expected("Práce a b", {"one", "two and", "three"}));
}

TEST_F(Processes, ArgumentsAreSplitAtBlanksOutsideQuotes)
{
  makeProgram("tool");
  EXPECT_TRUE(startProgram("tool", "  a\t b\"c d\"e  \"\" \"open end", m_scratch.path()));
  EXPECT_EQ(report(), expected("", {"a", "bc de", "", "open end"}));
}

TEST_F(Processes, NothingGoesThroughAShell)
{
  makeProgram("tool");
  EXPECT_TRUE(startProgram("tool", "$(touch evil) `touch evil`;touch&evil|>evil *", m_scratch.path()));
  EXPECT_EQ(report(), expected("", {"$(touch", "evil)", "`touch", "evil`;touch&evil|>evil", "*"}));
  EXPECT_FALSE(m_scratch.has("evil"));
}

TEST_F(Processes, AWindowsNameFindsTheProgramBeside)
{
  makeProgram("OggEnc");
  m_scratch.put("oggenc.exe", "MZ, of Windows");
  EXPECT_TRUE(startProgram("oggenc.EXE", "a.wav", m_scratch.path()));
  EXPECT_EQ(report(), expected("", {"a.wav"}));
}

TEST_F(Processes, AWindowsPathFindsTheProgramBeside)
{
  makeProgram("tools/addscan");
  EXPECT_TRUE(startProgram(m_scratch.path("Tools\\Addscan.exe"), "", m_scratch.path()));
  EXPECT_EQ(report("tools"), expected("", {}));
}

TEST_F(Processes, AWindowsNameFindsTheProgramInThePath)
{
  makeProgram("path/tarvelin-test-tool");
  std::filesystem::create_directory(m_scratch.native("work"));
  const Variable path("PATH", "/no such folder::" + m_scratch.native("path").string() + ":/usr/bin:/bin");
  EXPECT_TRUE(startProgram("tarvelin-test-tool.exe", "x", m_scratch.path("work")));
  EXPECT_EQ(report("path"), expected("work", {"x"}));
  deleteFile(m_scratch.path("path\\REPORT"));
  EXPECT_TRUE(startProgram("tarvelin-test-tool", "y", m_scratch.path("work")));
  EXPECT_EQ(report("path"), expected("work", {"y"}));
}

TEST_F(Processes, ANativeProgramGetsNativePaths)
{
  makeProgram("tool");
  m_scratch.put("Missions/Útok.Eden/mission.sqm", "x");
  m_scratch.put("a,b/File.sqm", "x");
  const std::string mission = m_scratch.path("missions\\ÚTOK.eden\\Mission.sqm");
  const std::string native = m_scratch.native("Missions/Útok.Eden/mission.sqm");
  const std::string archive = m_scratch.native("Missions/new.pbo");
  const std::string arguments = mission + " " + mission + "," + m_scratch.path("missions\\new.pbo") + ",2 \"" +
                                m_scratch.path("A,B\\file.sqm") + "\" Z:" + mission + " -x=\\y kept\\as,it is";
  EXPECT_TRUE(startProgram("tool", arguments, m_scratch.path()));
  EXPECT_EQ(report(), expected("", {native, native + "," + archive + ",2", m_scratch.native("a,b/File.sqm").string(),
                                    native, "-x=\\y", "kept\\as,it", "is"}));
}

TEST_F(Processes, AWindowsProgramRunsWithWineAndWindowsPaths)
{
  makeProgram("path/wine");
  m_scratch.put("Tool.exe", "MZ and so on");
  m_scratch.put("m.sqm", "x");
  const Variable path("PATH", m_scratch.native("path").string() + ":/usr/bin:/bin");
  const std::string arguments = m_scratch.path("m.sqm") + " c:\\x.sqm," + m_scratch.path("new.pbo") + ",2 plain\\x";
  EXPECT_TRUE(startProgram("tool.exe", arguments, m_scratch.path()));
  EXPECT_EQ(report("path"), expected("", {m_scratch.native("Tool.exe").string(), "Z:" + m_scratch.path("m.sqm"),
                                          "c:\\x.sqm,Z:" + m_scratch.path("new.pbo") + ",2", "plain\\x"}));
}

TEST_F(Processes, BatchFilesAreWindowsPrograms)
{
  makeProgram("path/wine");
  m_scratch.put("run.bat", "echo x");
  const Variable path("PATH", m_scratch.native("path").string() + ":/usr/bin:/bin");
  EXPECT_TRUE(startProgram(m_scratch.path("RUN.bat"), "", ""));
  EXPECT_TRUE(report("path").find("word " + m_scratch.native("run.bat").string() + "\n") != std::string::npos);
}

TEST_F(Processes, AWindowsProgramWithoutWineIsNotStarted)
{
  makeProgram("tool.exe", "MZ and so on");
  const Variable path("PATH", m_scratch.native().string());
  EXPECT_FALSE(startProgram("tool.exe", "", m_scratch.path()));
}

TEST_F(Processes, ANativeProgramMayBeCalledExe)
{
  makeProgram("tool.exe");
  EXPECT_TRUE(startProgram("TOOL.exe", "x", m_scratch.path()));
  EXPECT_EQ(report(), expected("", {"x"}));
}

TEST_F(Processes, AQuotedProgramIsFound)
{
  makeProgram("my tool");
  EXPECT_TRUE(startProgram("\"" + m_scratch.path("My Tool") + "\"", "", m_scratch.path()));
  EXPECT_EQ(report(), expected("", {}));
}

TEST_F(Processes, WhatCanNotBeStartedIsFalse)
{
  makeProgram("tool");
  makeProgram("noscript", "no program at all");
  makeProgram("lost", "#!/no/such/interpreter\n");
  m_scratch.put("plain", reporter); // may not be executed
  chmod(m_scratch.native("plain").c_str(), 0644);
  std::filesystem::create_directory(m_scratch.native("sub"));
  const std::ptrdiff_t before = openDescriptors();
  for (const char* program : {"none", "none.exe", "noscript", "lost", "plain", "sub", "sub.exe", "", "\"\""})
    EXPECT_FALSE(startProgram(program, "", m_scratch.path())) << program;
  EXPECT_FALSE(startProgram(m_scratch.path("none"), "", m_scratch.path()));
  EXPECT_FALSE(startProgram(m_scratch.path("none\\sh"), "", m_scratch.path())); // not the one of the PATH
  EXPECT_FALSE(startProgram(m_scratch.path("tool"), "", m_scratch.path("no folder")));
  EXPECT_FALSE(startProgram(m_scratch.path("tool"), "", m_scratch.path("plain")));
  EXPECT_FALSE(startProgram(std::string_view("tool\0x", 6), "", m_scratch.path()));
  EXPECT_FALSE(startProgram("tool", std::string_view("a\0b", 3), m_scratch.path()));
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(Processes, NobodyWaitsAndNothingIsLeft)
{
  makeProgram("sleeper", "#!/bin/sh\necho $$ > started\nexec sleep 30\n");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(startProgram("sleeper", "", m_scratch.path()));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
  errno = 0;
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1); // neither a child nor a zombie of ours
  EXPECT_EQ(errno, ECHILD);
  for (int i = 0; i < 1000 && m_scratch.bytes("started").find('\n') == std::string::npos; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  const pid_t sleeper = std::atoi(m_scratch.bytes("started").c_str());
  ASSERT_GT(sleeper, 1);
  EXPECT_EQ(getsid(sleeper), sleeper); // a session of its own
  EXPECT_EQ(kill(sleeper, SIGTERM), 0);
}

TEST_F(Processes, OurOpenFilesAreNotHandedOn)
{
  makeProgram("tool", "#!/bin/sh\nls /proc/$$/fd | tr '\\n' ' ' > part\n/bin/mv part REPORT\n");
  const int open = dup2(1, 77);
  EXPECT_TRUE(startProgram("tool", "", m_scratch.path()));
  close(open);
  const std::string descriptors = report();
  EXPECT_TRUE(descriptors.starts_with("0 1 ")) << descriptors;
  EXPECT_EQ(descriptors.find("77"), std::string::npos) << descriptors;
}

TEST_F(Processes, TheBrowserGetsAddressesAndNativePaths)
{
  makeProgram("path/xdg-open");
  m_scratch.put("Stránka.html", "x");
  const Variable path("PATH", m_scratch.native("path").string() + ":/usr/bin:/bin");
  const std::string page = m_scratch.native("Stránka.html").string();
  const std::pair<std::string, std::string> addresses[] = {
      {"http://www.example.com/a b?c=d&e", "http://www.example.com/a b?c=d&e"},
      {"mailto:someone@example.com", "mailto:someone@example.com"},
      {"www.example.com", "http://www.example.com"},
      {"--help", "http://--help"},
      {m_scratch.path("STRÁNKA.html"), page},
      {"Z:" + m_scratch.path("stránka.html"), page},
  };
  for (const auto& [address, word] : addresses)
  {
    EXPECT_TRUE(openInBrowser(address));
    EXPECT_TRUE(report("path").find("word " + word + "\n") != std::string::npos) << address;
    deleteFile(m_scratch.path("path\\REPORT"));
  }
  EXPECT_FALSE(openInBrowser(""));
  EXPECT_FALSE(openInBrowser(std::string_view("a\0b", 3)));
}

TEST_F(Processes, WithoutABrowserNothingIsOpened)
{
  const Variable path("PATH", m_scratch.native().string());
  EXPECT_FALSE(openInBrowser("http://www.example.com"));
}

} // namespace

} // namespace tarvelin::platform
