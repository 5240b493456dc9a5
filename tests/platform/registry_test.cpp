#include "platform/files.h"
#include "platform/registry.h"
#include "tests/platform/scratch.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tarvelin::platform
{

namespace
{

using tests::Scratch;
using tests::Variable;

constexpr auto machine = RegistryRoot::localMachine;
constexpr auto user = RegistryRoot::currentUser;
constexpr auto classes = RegistryRoot::classesRoot;
constexpr std::string_view gameKey = "Software\\Maker\\The Game";

constexpr std::string_view systemFile = R"(WINE REGISTRY Version 2
;; All keys relative to \\Machine

#arch=win64

[Software\\Classes\\.sqm] 1700000000 100
#time=1da1700000000000
@="Tarvelin.exe"

[Software\\Classes\\Tarvelin.exe\\shell\\Open in Tarvelin\\command] 1700000000
@="C:\\Tools\\Tarvelin.exe %1"

[Software\\Maker\\Odd \[One\]] 1700000000
"Text"="in brackets"

[Software\\Maker\\Plain] 1700000000
"Both"="plain"

[Software\\Maker\\Types] 1700000000
#time=1da1700000000000
"Binary"=hex:01,02,\
  5b,03
"Count"=dword:0000002a
"Empty"=""
"Expand"=str(2):"%ProgramFiles%\\Game"
"Many"=str(7):"one\0two\0"
"Quoted \"Name\""="a \"quoted\" text"
"Escapes"="tab\tline\nquote\"slash\\end\33.\1234"
"P\x159\xedli\x161"="\x17elu\x165ou\x10dk\xfd k\x16f\x148"
"Pair"="\xd83d\xde00!"
"Half"="\xd83d!"
"Zero"="before\x0, after"
@="the default"

[Software\\Maker\\Unclosed
"Text"="x"

[Software\\Maker\\Damaged] 1700000000
"No end"="runs on
"No equals"
"Name only
=
"Backslash"="\
"Good"="still found"

[Software\\Wow6432Node\\Maker\\Plain] 1700000000
"Both"="32"
"Only32"="32 alone"

[Software\\Wow6432Node\\Maker\\The Game] 1700000000
"CDDRIVE"="D:\\"
"MAIN"="C:\\Program Files\\Game"
)";

constexpr std::string_view userFile = "WINE REGISTRY Version 2\r\n\r\n"
                                      "[Software\\\\Maker\\\\Mine] 1700000000\r\n"
                                      "\"Name\"=\"N\\x11bkdo\"\r\n"
                                      "[Control Panel\\\\Desktop]\r\n"
                                      "\"Wallpaper\"=\"none\"";

class Registry : public testing::Test
{
protected:
  Registry()
  {
    m_scratch.put(".wine/system.reg", systemFile);
    m_scratch.put(".wine/user.reg", userFile);
  }

  Scratch m_scratch;
  Variable m_home{"HOME", m_scratch.native().string()};
};

TEST_F(Registry, ReadsTheGamesKeyFromThe32BitView)
{
  EXPECT_EQ(registryString(machine, gameKey, "MAIN"), "C:\\Program Files\\Game");
  EXPECT_EQ(registryString(machine, gameKey, "CDDRIVE"), "D:\\");
  EXPECT_EQ(registryString(machine, "Software\\Wow6432Node\\Maker\\The Game", "MAIN"), "C:\\Program Files\\Game");
}

TEST_F(Registry, NamesIgnoreCase)
{
  EXPECT_EQ(registryString(machine, "SOFTWARE\\maker\\THE game", "main"), "C:\\Program Files\\Game");
  EXPECT_EQ(registryString(machine, "software\\MAKER\\types", "PŘÍLIŠ"), "žluťoučký kůň");
  EXPECT_EQ(registryString(machine, "Software\\Maker\\Types\\", "empty"), "");
}

TEST_F(Registry, ThePlainKeyCountsMore)
{
  EXPECT_EQ(registryString(machine, "Software\\Maker\\Plain", "Both"), "plain");
  EXPECT_EQ(registryString(machine, "Software\\Maker\\Plain", "Only32"), "32 alone");
}

TEST_F(Registry, ThePlainKeyCountsMoreWhereverItStands)
{
  m_scratch.put(".wine/system.reg", "[Software\\\\Wow6432Node\\\\X]\n\"V\"=\"32\"\n[Software\\\\X]\n\"V\"=\"plain\"\n");
  EXPECT_EQ(registryString(machine, "Software\\X", "V"), "plain");
}

TEST_F(Registry, ReadsEveryKindOfString)
{
  const auto value = [](std::string_view name) { return registryString(machine, "Software\\Maker\\Types", name); };
  EXPECT_EQ(value(""), "the default");
  EXPECT_EQ(value("Empty"), "");
  EXPECT_EQ(value("Expand"), "%ProgramFiles%\\Game");
  EXPECT_EQ(value("Quoted \"Name\""), "a \"quoted\" text");
  EXPECT_EQ(value("Escapes"), "tab\tline\nquote\"slash\\end\x1B.S4");
  EXPECT_EQ(value("Příliš"), "žluťoučký kůň");
  EXPECT_EQ(value("Pair"), "😀!");
  EXPECT_EQ(value("Half"), "?!");
  EXPECT_EQ(value("Zero"), "before");
  EXPECT_EQ(registryString(machine, "Software\\Maker\\Odd [One]", "Text"), "in brackets");
}

TEST_F(Registry, WhatIsNoStringIsNothing)
{
  for (const char* name : {"Count", "Binary", "Many", "absent", "@", "#time"})
    EXPECT_EQ(registryString(machine, "Software\\Maker\\Types", name), std::nullopt) << name;
  EXPECT_EQ(registryString(machine, gameKey, ""), std::nullopt);
  EXPECT_EQ(registryString(machine, "Software\\Maker", "MAIN"), std::nullopt);
  EXPECT_EQ(registryString(machine, "Software\\Maker\\The", "MAIN"), std::nullopt);
  EXPECT_EQ(registryString(machine, "", ""), std::nullopt);
}

TEST_F(Registry, ReadsTheUsersFileAndTheClasses)
{
  EXPECT_EQ(registryString(user, "Software\\Maker\\Mine", "Name"), "Někdo");
  EXPECT_EQ(registryString(user, "Control Panel\\Desktop", "Wallpaper"), "none");
  EXPECT_EQ(registryString(user, gameKey, "MAIN"), std::nullopt);
  EXPECT_EQ(registryString(classes, ".sqm", ""), "Tarvelin.exe");
  EXPECT_EQ(registryString(classes, "tarvelin.EXE\\shell\\open in tarvelin\\command", ""),
            "C:\\Tools\\Tarvelin.exe %1");
}

TEST_F(Registry, DamagedLinesArePassedOver)
{
  const auto value = [](std::string_view name) { return registryString(machine, "Software\\Maker\\Damaged", name); };
  EXPECT_EQ(value("Good"), "still found");
  for (const char* name : {"No end", "No equals", "Name only", "Backslash"})
    EXPECT_EQ(value(name), std::nullopt) << name;
  EXPECT_EQ(registryString(machine, "Software\\Maker\\Unclosed", "Text"), std::nullopt);
}

TEST_F(Registry, KeysExist)
{
  EXPECT_TRUE(registryKeyExists(machine, gameKey));
  EXPECT_TRUE(registryKeyExists(machine, "software\\maker")); // it has no line of its own
  EXPECT_TRUE(registryKeyExists(classes, "Tarvelin.exe"));
  EXPECT_TRUE(registryKeyExists(user, "CONTROL panel"));
  EXPECT_FALSE(registryKeyExists(machine, "Software\\Maker\\The"));
  EXPECT_FALSE(registryKeyExists(user, gameKey));
  EXPECT_FALSE(registryKeyExists(classes, ".sq"));
  EXPECT_FALSE(registryKeyExists(machine, ""));
}

TEST_F(Registry, NothingIsWritten)
{
  EXPECT_FALSE(setRegistryString(classes, ".sqm", "", "other"));
  EXPECT_FALSE(deleteRegistryKey(classes, ".sqm"));
  EXPECT_FALSE(deleteRegistryValue(classes, ".sqm", ""));
  EXPECT_EQ(m_scratch.bytes(".wine/system.reg"), systemFile);
  EXPECT_EQ(registryString(classes, ".sqm", ""), "Tarvelin.exe");
}

TEST_F(Registry, AFileCutAnywhereIsRead)
{
  for (std::size_t size = 0; size < systemFile.size(); ++size)
  {
    m_scratch.put(".wine/system.reg", systemFile.substr(0, size));
    const auto main = registryString(machine, gameKey, "MAIN");
    EXPECT_TRUE(!main || size >= systemFile.size() - 1) << size;
    registryString(machine, "Software\\Maker\\Types", "none");
  }
}

TEST_F(Registry, AFileOfAnyBytesIsRead)
{
  std::string bytes;
  for (unsigned i = 0; i < 20000; ++i)
    bytes += "[]\"=\\x@\n0aA\xFF\xC5 ("[i * i * 31 / 7 % 15];
  m_scratch.put(".wine/system.reg", bytes + "\n[Software\\\\Last]\n\"V\"=\"found\"\n");
  EXPECT_EQ(registryString(machine, "Software\\Last", "V"), "found");
}

TEST_F(Registry, AHugeFileIsReadInOneGo)
{
  std::string bytes;
  for (int i = 0; bytes.size() < 20000000; ++i)
    bytes += "[Software\\\\Classes\\\\Interface\\\\{" + std::to_string(i) + "}] 1700000000\n\"Name\"=\"x\"\n\n";
  m_scratch.put(".wine/system.reg", bytes + std::string(systemFile));
  EXPECT_EQ(registryString(machine, gameKey, "MAIN"), "C:\\Program Files\\Game");
}

TEST_F(Registry, WithoutAPrefixThereIsNothing)
{
  const Scratch empty;
  const Variable elsewhere("HOME", empty.native().string());
  EXPECT_EQ(registryString(machine, gameKey, "MAIN"), std::nullopt);
  EXPECT_FALSE(registryKeyExists(machine, gameKey));
  const Variable homeless("HOME", std::nullopt);
  EXPECT_EQ(registryString(machine, gameKey, "MAIN"), std::nullopt);
}

TEST_F(Registry, AFileThatCanNotBeReadIsNothing)
{
  deleteFile(m_scratch.path(".wine\\system.reg"));
  ASSERT_EQ(mkfifo(m_scratch.native(".wine/system.reg").c_str(), 0666), 0);
  EXPECT_EQ(registryString(machine, gameKey, "MAIN"), std::nullopt);
  EXPECT_FALSE(registryKeyExists(machine, gameKey));
}

} // namespace

} // namespace tarvelin::platform
