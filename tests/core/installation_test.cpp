#include "core/installation.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <gtest/gtest.h>

using namespace tarvelin;
using test::readBytes;
using test::writeBytes;
namespace fs = std::filesystem;

namespace
{

class Installation : public testing::Test
{
protected:
  void SetUp() override
  {
    fs::create_directories(source / "Bfdata" / "languages" / "Tv");
    fs::create_directories(target);
    write("islands.dat", "one");
    write("languages/Tv/Czech.lng", "ž 1");
  }

  void write(const std::string& name, const std::string& bytes) { writeBytes(source / "Bfdata" / name, bytes); }
  std::string installed(const std::string& name) { return readBytes(target / "Bfdata" / name); }
  void install() { installData(platform::toProgram(source.string()), platform::toProgram(target.string())); }

  test::Scratch scratch;
  fs::path source = scratch / "installed here";
  fs::path target = scratch / "user's own";
};

TEST_F(Installation, TheFirstStartBringsEverything)
{
  install();
  EXPECT_EQ(installed("islands.dat"), "one");
  EXPECT_EQ(installed("languages/Tv/Czech.lng"), "ž 1");
}

TEST_F(Installation, AnUpdateReplacesWhatTheUserDidNotChange)
{
  install();
  write("islands.dat", "two");
  write("new.dat", "new");
  install();
  EXPECT_EQ(installed("islands.dat"), "two");
  EXPECT_EQ(installed("new.dat"), "new");
  write("islands.dat", "three");
  install();
  EXPECT_EQ(installed("islands.dat"), "three");
}

TEST_F(Installation, WhatTheUserChangedOrDeletedStaysSo)
{
  install();
  writeBytes(target / "Bfdata" / "islands.dat", "the user's");
  fs::remove(target / "Bfdata" / "languages" / "Tv" / "Czech.lng");
  write("islands.dat", "two");
  write("languages/Tv/Czech.lng", "ž 2");
  install();
  EXPECT_EQ(installed("islands.dat"), "the user's");
  EXPECT_FALSE(fs::exists(target / "Bfdata" / "languages" / "Tv" / "Czech.lng"));
}

TEST_F(Installation, AFileThatTheUserHadBeforeIsHis)
{
  fs::create_directories(target / "Bfdata");
  writeBytes(target / "Bfdata" / "islands.dat", "older than the program");
  install();
  EXPECT_EQ(installed("islands.dat"), "older than the program");
  write("islands.dat", "two");
  install();
  EXPECT_EQ(installed("islands.dat"), "older than the program");
}

TEST_F(Installation, ADamagedRecordCostsNoFileOfTheUser)
{
  install();
  writeBytes(target / "Bfdata" / "installed.lst", std::string("\0\xFF garbage\r\n12 \r\n", 16));
  writeBytes(target / "Bfdata" / "islands.dat", "the user's");
  write("islands.dat", "two");
  install();
  EXPECT_EQ(installed("islands.dat"), "the user's");
}

TEST(ProgramFolder, IsTheUsersDataFolderWhereNoDataLieBesideTheProgram)
{
  const test::Scratch scratch;
  fs::copy_file(TARVELIN_HOST, scratch / "tarvelin-script");
  writeBytes(scratch / "s.lua", "start() quit()");
  const test::Outcome outcome = test::runProgram("./tarvelin-script s.lua", scratch.path(), scratch / "user");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_TRUE(fs::exists(scratch / "user" / ".local" / "share" / "tarvelin" / "Tarvinfo.cfg"));
}

TEST(ProgramFolder, IsTheProgramsOwnWhereDataLieBesideIt)
{
  const test::Scratch scratch;
  fs::copy_file(TARVELIN_HOST, scratch / "tarvelin-script");
  fs::create_directory(scratch / "Bfdata");
  writeBytes(scratch / "s.lua", "start() quit()");
  const test::Outcome outcome = test::runProgram("./tarvelin-script s.lua", scratch.path(), scratch / "user");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_TRUE(fs::exists(scratch / "Tarvinfo.cfg"));
}

} // namespace
