#include "platform/failure.h"
#include "platform/files.h"
#include "tests/platform/scratch.h"
#include "tests/platform/small_disk.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelin::platform
{

namespace
{

using tests::openDescriptors;
using tests::Scratch;
using tests::SmallDisk;
using Names = std::vector<std::string>;

/// The number of the failure that a step throws, 0 for none.
int failureOf(const std::function<void()>& step)
{
  try
  {
    step();
  }
  catch (const Failure& failure)
  {
    return failure.number;
  }
  return 0;
}

mode_t modeOf(const std::filesystem::path& path)
{
  struct stat status
  {
  };
  stat(path.c_str(), &status);
  return status.st_mode & 07777;
}

std::string manyBytes(std::size_t count)
{
  std::string bytes(count, '\0');
  for (std::size_t i = 0; i < count; ++i)
    bytes[i] = static_cast<char>(i * 7 % 251);
  return bytes;
}

TEST(Files, TellsFilesAndFoldersApart)
{
  const Scratch scratch;
  scratch.put("Sub/File.txt", "x");
  EXPECT_TRUE(fileExists(scratch.path("sub\\file.TXT")));
  EXPECT_FALSE(fileExists(scratch.path("sub")));
  EXPECT_FALSE(fileExists(scratch.path("none")));
  EXPECT_FALSE(fileExists(scratch.path("sub\\file.txt\\")));
  EXPECT_TRUE(folderExists(scratch.path("SUB")));
  EXPECT_TRUE(folderExists(scratch.path("SUB\\")));
  EXPECT_FALSE(folderExists(scratch.path("sub\\file.txt")));
  EXPECT_FALSE(folderExists(scratch.path("none")));
}

TEST(Files, UnusableNamesExistNowhere)
{
  const std::string zero("\\tmp\0x", 6);
  for (const std::string& name : {std::string(), zero, "\\" + std::string(5000, 'x')})
  {
    EXPECT_FALSE(fileExists(name));
    EXPECT_FALSE(folderExists(name));
    EXPECT_FALSE(sameFile(name, name));
    EXPECT_FALSE(folderWritable(name));
    EXPECT_FALSE(clearAttributes(name));
    EXPECT_FALSE(copyFile(name, "\\tmp\\x", false));
  }
}

TEST(Files, UnusableNamesAreFailure52)
{
  const Scratch scratch;
  scratch.put("file", "x");
  for (const std::string& name : {std::string(), scratch.path("file") + '\0', scratch.path(std::string(300, 'x'))})
  {
    EXPECT_EQ(failureOf([&] { readFile(name); }), 52);
    EXPECT_EQ(failureOf([&] { const MappedFile file(name); }), 52);
    EXPECT_EQ(failureOf([&] { writeFile(name, "x"); }), 52);
    EXPECT_EQ(failureOf([&] { createFolder(name); }), 52);
    EXPECT_EQ(failureOf([&] { copyFileOver(name, scratch.path("to")); }), 52);
  }
  for (const std::string& name : {std::string(), scratch.path("file") + '\0'})
  {
    EXPECT_EQ(failureOf([&] { deleteFile(name); }), 52);
    EXPECT_EQ(failureOf([&] { listFiles(name); }), 52);
    EXPECT_EQ(failureOf([&] { listFolders(name); }), 52);
    EXPECT_EQ(failureOf([&] { copyFileOver(scratch.path("file"), name); }), 52);
  }
  EXPECT_EQ(scratch.count(), 1U);
}

TEST(Files, ReadsWhatWasWritten)
{
  const Scratch scratch;
  const std::string bytes = manyBytes(300000);
  for (const std::string& content : {std::string(), std::string("a\r\n\0\xFF", 5), bytes})
  {
    writeFile(scratch.path("Kůň; 'a' \"b\".txt"), content);
    EXPECT_EQ(readFile(scratch.path("kŮŇ; 'A' \"B\".TXT")), content);
    EXPECT_EQ(MappedFile(scratch.path("Kůň; 'a' \"b\".txt")).bytes(), content);
    EXPECT_EQ(scratch.bytes("Kůň; 'a' \"b\".txt"), content);
  }
  EXPECT_EQ(scratch.count(), 1U);
}

TEST(Files, AnExistingFileIsReplacedUnderItsOwnSpelling)
{
  const Scratch scratch;
  scratch.put("description.ext", "a longer text than the new one");
  writeFile(scratch.path("Description.ext"), "new");
  EXPECT_EQ(scratch.bytes("description.ext"), "new");
  EXPECT_EQ(listFiles(scratch.path()), Names{"description.ext"});
}

TEST(Files, WritingFollowsLinks)
{
  const Scratch scratch;
  scratch.put("real", "old");
  std::filesystem::create_symlink("real", scratch.native("link"));
  writeFile(scratch.path("link"), "new");
  EXPECT_EQ(scratch.bytes("real"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(scratch.native("link")));
}

TEST(Files, MissingFilesAndFoldersAreToldApart)
{
  const Scratch scratch;
  scratch.put("file", "x");
  EXPECT_EQ(failureOf([&] { readFile(scratch.path("none")); }), 53);
  EXPECT_EQ(failureOf([&] { readFile(scratch.path("none\\file")); }), 76);
  EXPECT_EQ(failureOf([&] { readFile(scratch.path("file\\below")); }), 76);
  EXPECT_EQ(failureOf([&] { const MappedFile file(scratch.path("none")); }), 53);
  EXPECT_EQ(failureOf([&] { const MappedFile file(scratch.path("none\\file")); }), 76);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("none\\file"), "x"); }), 76);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("file\\below"), "x"); }), 76);
  EXPECT_EQ(failureOf([&] { readFile("no such file at all"); }), 53);
}

TEST(Files, AFolderIsNoFile)
{
  const Scratch scratch;
  std::filesystem::create_directory(scratch.native("sub"));
  EXPECT_EQ(failureOf([&] { readFile(scratch.path("sub")); }), 75);
  EXPECT_EQ(failureOf([&] { const MappedFile file(scratch.path("sub")); }), 75);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("sub"), "x"); }), 75);
  EXPECT_EQ(failureOf([&] { deleteFile(scratch.path("sub")); }), 53);
  EXPECT_TRUE(scratch.has("sub"));
}

TEST(Files, AReadOnlyFileIsNotWrittenNorDeleted)
{
  const Scratch scratch;
  scratch.put("kept", "old");
  chmod(scratch.native("kept").c_str(), 0444);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("kept"), "new"); }), 70);
  EXPECT_EQ(failureOf([&] { deleteFile(scratch.path("kept")); }), 70);
  EXPECT_EQ(scratch.bytes("kept"), "old");
  EXPECT_TRUE(clearAttributes(scratch.path("KEPT")));
  EXPECT_EQ(modeOf(scratch.native("kept")), 0644U);
  writeFile(scratch.path("kept"), "new");
  EXPECT_EQ(scratch.bytes("kept"), "new");
  deleteFile(scratch.path("kept"));
  EXPECT_FALSE(scratch.has("kept"));
}

TEST(Files, AttributesAreOfFilesOnly)
{
  const Scratch scratch;
  std::filesystem::create_directory(scratch.native("sub"));
  scratch.put("file", "x");
  EXPECT_TRUE(clearAttributes(scratch.path("file")));
  EXPECT_FALSE(clearAttributes(scratch.path("sub")));
  EXPECT_FALSE(clearAttributes(scratch.path("none")));
}

TEST(Files, APipeDoesNotHang)
{
  const Scratch scratch;
  scratch.put("file", "x");
  ASSERT_EQ(mkfifo(scratch.native("mission.sqm").c_str(), 0666), 0);
  const std::string pipe = scratch.path("mission.sqm");
  EXPECT_EQ(failureOf([&] { readFile(pipe); }), 75);
  EXPECT_EQ(failureOf([&] { const MappedFile file(pipe); }), 75);
  EXPECT_EQ(failureOf([&] { writeFile(pipe, "x"); }), 75);
  EXPECT_FALSE(copyFile(pipe, scratch.path("copy"), false));
  EXPECT_FALSE(copyFile(scratch.path("file"), pipe, false));
  EXPECT_EQ(failureOf([&] { copyFileOver(scratch.path("file"), pipe); }), 75);
  EXPECT_FALSE(scratch.has("copy"));
  deleteFile(pipe);
  EXPECT_EQ(scratch.count(), 1U);
}

TEST(Files, DevicesAreNotRead)
{
  EXPECT_EQ(failureOf([] { readFile("\\dev\\zero"); }), 75);
  EXPECT_FALSE(copyFile("\\dev\\zero", "\\dev\\null", false));
}

TEST(Files, AFullDiskIsFailure61)
{
  EXPECT_EQ(failureOf([] { writeFile("\\dev\\full", "x"); }), 61);
  const Scratch scratch;
  const SmallDisk disk(1000);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("big"), manyBytes(5000)); }), 61);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("small"), manyBytes(900)); }), 0);
}

TEST(Files, WritingOverALongerFileLeavesNothingOfIt)
{
  const Scratch scratch;
  scratch.put("file", std::string(9000, 'o'));
  writeFile(scratch.path("file"), "new");
  EXPECT_EQ(scratch.bytes("file"), "new");
  writeFile(scratch.path("file"), "");
  EXPECT_EQ(scratch.bytes("file"), "");
  scratch.put("file", std::string(9000, 'o'));
  const SmallDisk disk(1000);
  EXPECT_EQ(failureOf([&] { writeFile(scratch.path("file"), std::string(5000, 'n')); }), 61);
  EXPECT_EQ(scratch.bytes("file"), std::string(1000, 'n')); // what could be written, no older bytes behind it
}

TEST(Files, FilesThatTellNoSizeAreReadToTheEnd)
{
  EXPECT_TRUE(readFile("\\proc\\self\\status").starts_with("Name:"));
  const Scratch scratch;
  EXPECT_TRUE(copyFile("\\proc\\self\\status", scratch.path("copy"), false));
  EXPECT_TRUE(scratch.bytes("copy").starts_with("Name:"));
}

TEST(Files, CopiesBytesModeAndTime)
{
  const Scratch scratch;
  const std::string bytes = manyBytes(700001);
  scratch.put("from", bytes);
  chmod(scratch.native("from").c_str(), 0750);
  const auto time = std::filesystem::last_write_time(scratch.native("from")) - std::chrono::hours(1000);
  std::filesystem::last_write_time(scratch.native("from"), time);
  EXPECT_TRUE(copyFile(scratch.path("FROM"), scratch.path("to"), true));
  EXPECT_EQ(scratch.bytes("to"), bytes);
  EXPECT_EQ(modeOf(scratch.native("to")), 0750U);
  EXPECT_EQ(std::filesystem::last_write_time(scratch.native("to")), time);
  EXPECT_EQ(scratch.count(), 2U);
}

TEST(Files, CopiesAnEmptyFile)
{
  const Scratch scratch;
  scratch.put("from", "");
  scratch.put("to", "old");
  EXPECT_TRUE(copyFile(scratch.path("from"), scratch.path("to"), false));
  EXPECT_EQ(scratch.bytes("to"), "");
}

TEST(Files, CopiesToAnotherFileSystem)
{
  const Scratch scratch;
  scratch.put("from", manyBytes(100000));
  const std::filesystem::path other = "/dev/shm/tarvelin-test-" + std::to_string(getpid());
  EXPECT_TRUE(copyFile(scratch.path("from"), toProgram(other.string()), false));
  EXPECT_EQ(readFile(toProgram(other.string())), manyBytes(100000));
  EXPECT_TRUE(copyFile(toProgram(other.string()), scratch.path("back"), false));
  EXPECT_EQ(scratch.bytes("back"), manyBytes(100000));
  std::filesystem::remove(other);
}

TEST(Files, AnExistingTargetIsLeftAloneWhenAsked)
{
  const Scratch scratch;
  scratch.put("from", "new");
  scratch.put("Target", "old");
  EXPECT_FALSE(copyFile(scratch.path("from"), scratch.path("TARGET"), true));
  EXPECT_EQ(scratch.bytes("Target"), "old");
  EXPECT_TRUE(copyFile(scratch.path("from"), scratch.path("TARGET"), false));
  EXPECT_EQ(scratch.bytes("Target"), "new");
  EXPECT_EQ(listFiles(scratch.path()), (Names{"from", "Target"}));
}

TEST(Files, ALinkToNowhereIsATakenName)
{
  const Scratch scratch;
  scratch.put("from", "new");
  std::filesystem::create_symlink("nowhere", scratch.native("link"));
  EXPECT_FALSE(copyFile(scratch.path("from"), scratch.path("link"), true));
  EXPECT_TRUE(std::filesystem::is_symlink(scratch.native("link")));
  EXPECT_EQ(scratch.count(), 2U);
}

TEST(Files, CopyingReplacesWhatALinkLeadsTo)
{
  const Scratch scratch;
  scratch.put("from", "new");
  scratch.put("elsewhere/real", "old");
  std::filesystem::create_symlink("elsewhere/real", scratch.native("link"));
  EXPECT_TRUE(copyFile(scratch.path("from"), scratch.path("link"), false));
  EXPECT_TRUE(std::filesystem::is_symlink(scratch.native("link")));
  EXPECT_EQ(scratch.bytes("elsewhere/real"), "new");
}

TEST(Files, AReadOnlyTargetMakesTheCopyFail)
{
  const Scratch scratch;
  scratch.put("from", "new");
  scratch.put("to", "old");
  chmod(scratch.native("to").c_str(), 0444);
  EXPECT_FALSE(copyFile(scratch.path("from"), scratch.path("to"), false));
  EXPECT_EQ(failureOf([&] { copyFileOver(scratch.path("from"), scratch.path("to")); }), 70);
  EXPECT_EQ(scratch.bytes("to"), "old");
  EXPECT_TRUE(clearAttributes(scratch.path("to")));
  deleteFile(scratch.path("to"));
  EXPECT_TRUE(copyFile(scratch.path("from"), scratch.path("to"), true));
  EXPECT_EQ(scratch.bytes("to"), "new");
}

TEST(Files, AReadOnlySourceGivesAReadOnlyCopy)
{
  const Scratch scratch;
  scratch.put("from", "x");
  chmod(scratch.native("from").c_str(), 0444);
  EXPECT_TRUE(copyFile(scratch.path("from"), scratch.path("to"), false));
  EXPECT_EQ(modeOf(scratch.native("to")), 0444U);
  EXPECT_FALSE(copyFile(scratch.path("from"), scratch.path("to"), false));
}

TEST(Files, AFileIsNotCopiedOverItself)
{
  const Scratch scratch;
  scratch.put("file", "x");
  std::filesystem::create_hard_link(scratch.native("file"), scratch.native("twin"));
  std::filesystem::create_symlink("file", scratch.native("link"));
  for (const char* name : {"file", "FILE", "twin", "link"})
  {
    EXPECT_FALSE(copyFile(scratch.path("file"), scratch.path(name), false)) << name;
    EXPECT_EQ(failureOf([&] { copyFileOver(scratch.path("file"), scratch.path(name)); }), 70) << name;
  }
  EXPECT_EQ(scratch.bytes("file"), "x");
}

TEST(Files, WhatCanNotBeCopiedFails)
{
  const Scratch scratch;
  scratch.put("file", "x");
  std::filesystem::create_directory(scratch.native("sub"));
  const auto over = [&](const char* from, const char* to)
  { return failureOf([&] { copyFileOver(scratch.path(from), scratch.path(to)); }); };
  EXPECT_EQ(over("none", "to"), 53);
  EXPECT_EQ(over("none\\file", "to"), 76);
  EXPECT_EQ(over("file", "none\\to"), 76);
  EXPECT_EQ(over("file", "to\\"), 76);
  EXPECT_EQ(over("sub", "to"), 75);
  EXPECT_EQ(over("file", "sub"), 75);
  for (const bool failIfExists : {false, true})
  {
    EXPECT_FALSE(copyFile(scratch.path("none"), scratch.path("to"), failIfExists));
    EXPECT_FALSE(copyFile(scratch.path("file"), scratch.path("none\\to"), failIfExists));
    EXPECT_FALSE(copyFile(scratch.path("sub"), scratch.path("to"), failIfExists));
    EXPECT_FALSE(copyFile(scratch.path("file"), scratch.path("sub"), failIfExists));
    EXPECT_FALSE(copyFile("", scratch.path("to"), failIfExists));
    EXPECT_FALSE(copyFile(scratch.path("file"), "", failIfExists));
  }
  EXPECT_EQ(scratch.count(), 2U);
}

TEST(Files, AFullDiskLeavesTheOldTargetOrNothing)
{
  const Scratch scratch;
  scratch.put("from", manyBytes(50000));
  scratch.put("to", "old");
  const SmallDisk disk(10000);
  EXPECT_FALSE(copyFile(scratch.path("from"), scratch.path("to"), false));
  EXPECT_FALSE(copyFile(scratch.path("from"), scratch.path("new"), true));
  EXPECT_EQ(failureOf([&] { copyFileOver(scratch.path("from"), scratch.path("to")); }), 61);
  EXPECT_EQ(scratch.bytes("to"), "old");
  EXPECT_EQ(listFiles(scratch.path()), (Names{"from", "to"}));
}

TEST(Files, DeletesAFileOrALinkItself)
{
  const Scratch scratch;
  scratch.put("File.txt", "x");
  scratch.put("kept", "x");
  std::filesystem::create_symlink("kept", scratch.native("link"));
  deleteFile(scratch.path("FILE.TXT"));
  deleteFile(scratch.path("link"));
  EXPECT_EQ(listFiles(scratch.path()), Names{"kept"});
  EXPECT_EQ(failureOf([&] { deleteFile(scratch.path("file.txt")); }), 53);
  EXPECT_EQ(failureOf([&] { deleteFile(scratch.path("none\\file")); }), 53);
}

TEST(Files, MakesOneFolder)
{
  const Scratch scratch;
  scratch.put("file", "x");
  createFolder(scratch.path("Nová složka"));
  createFolder(scratch.path("NOVÁ složka\\below\\"));
  EXPECT_TRUE(std::filesystem::is_directory(scratch.native("Nová složka/below")));
  EXPECT_EQ(failureOf([&] { createFolder(scratch.path("nová SLOŽKA")); }), 75);
  EXPECT_EQ(failureOf([&] { createFolder(scratch.path("file")); }), 75);
  EXPECT_EQ(failureOf([&] { createFolder(scratch.path("none\\below")); }), 76);
  EXPECT_EQ(failureOf([&] { createFolder(scratch.path("file\\below")); }), 76);
}

TEST(Files, ListsNamesInOrder)
{
  const Scratch scratch;
  for (const char* name : {"b.txt", "A.txt", "č.txt", "C.txt", ".hidden", "Žába", "a b;c'.txt", "x\\..\\y"})
    scratch.put(name, "x");
  for (const char* name : {"Zeta", "alfa", "Beta"})
    std::filesystem::create_directory(scratch.native(name));
  std::filesystem::create_directory_symlink("alfa", scratch.native("gama"));
  std::filesystem::create_symlink("A.txt", scratch.native("d.txt"));
  std::filesystem::create_symlink("nowhere", scratch.native("e.txt"));
  EXPECT_EQ(listFiles(scratch.path()),
            (Names{".hidden", "a b;c'.txt", "A.txt", "b.txt", "C.txt", "d.txt", "č.txt", "Žába"}));
  EXPECT_EQ(listFolders(scratch.path() + "\\"), (Names{"alfa", "Beta", "gama", "Zeta"}));
}

TEST(Files, AnEmptyFolderListsNothing)
{
  const Scratch scratch;
  EXPECT_TRUE(listFiles(scratch.path()).empty());
  EXPECT_TRUE(listFolders(scratch.path()).empty());
}

TEST(Files, WhatIsNoFolderListsNothing)
{
  const Scratch scratch;
  scratch.put("file", "x");
  for (const char* name : {"none", "file", "file\\x"})
  {
    EXPECT_EQ(failureOf([&] { listFiles(scratch.path(name)); }), 76);
    EXPECT_EQ(failureOf([&] { listFolders(scratch.path(name)); }), 76);
  }
}

TEST(Files, KnowsTheSameFileUnderOtherNames)
{
  const Scratch scratch;
  scratch.put("Sub/File", "x");
  scratch.put("other", "x");
  std::filesystem::create_symlink("Sub/File", scratch.native("link"));
  EXPECT_TRUE(sameFile(scratch.path("sub\\FILE"), scratch.path("Sub\\..\\Sub\\File")));
  EXPECT_TRUE(sameFile(scratch.path("link"), scratch.path("Sub\\File")));
  EXPECT_TRUE(sameFile(scratch.path("sub"), scratch.path("SUB\\")));
  EXPECT_FALSE(sameFile(scratch.path("other"), scratch.path("Sub\\File")));
  EXPECT_FALSE(sameFile(scratch.path("none"), scratch.path("none")));
}

TEST(Files, ALargeCopyLetsOthersRunMeanwhile)
{
  const Scratch scratch;
  scratch.put("small", std::string(100000, 's'));
  scratch.put("large", std::string(std::size_t{40} << 20, 'l'));
  scratch.put("target", "old");
  int turns = 0;
  copyFileOver(scratch.path("small"), scratch.path("copy"), [&] { ++turns; });
  EXPECT_EQ(turns, 0);
  copyFileOver(scratch.path("large"), scratch.path("copy"), [&] { ++turns; });
  EXPECT_GE(turns, 2);
  EXPECT_EQ(scratch.bytes("copy"), scratch.bytes("large"));
  EXPECT_THROW(copyFileOver(scratch.path("large"), scratch.path("target"), [] { throw Failure(Fault::deviceError); }),
               Failure);
  EXPECT_EQ(scratch.bytes("target"), "old");
  EXPECT_EQ(scratch.count(), 4U); // no half of a file was left
}

TEST(Files, KnowsLinks)
{
  const Scratch scratch;
  scratch.put("sub/file", "x");
  std::filesystem::create_symlink("sub/file", scratch.native("link"));
  std::filesystem::create_directory_symlink("sub", scratch.native("Folder"));
  std::filesystem::create_symlink("nowhere", scratch.native("dead"));
  for (const char* const name : {"link", "LINK", "folder", "dead"})
    EXPECT_TRUE(isLink(scratch.path(name))) << name;
  for (const char* const name : {"sub", "sub\\file", "folder\\file", "none"})
    EXPECT_FALSE(isLink(scratch.path(name))) << name;
  EXPECT_FALSE(isLink(""));
  EXPECT_FALSE(isLink(std::string("a\0b", 3)));
}

TEST(Files, KnowsWhereFilesCanBeMade)
{
  const Scratch scratch;
  scratch.put("file", "x");
  EXPECT_TRUE(folderWritable(scratch.path()));
  EXPECT_TRUE(folderWritable(scratch.path() + "\\"));
  EXPECT_EQ(scratch.count(), 1U);
  EXPECT_FALSE(folderWritable(scratch.path("file")));
  EXPECT_FALSE(folderWritable(scratch.path("none")));
  EXPECT_FALSE(folderWritable("\\proc"));
}

TEST(Files, NothingStaysOpen)
{
  const Scratch scratch;
  scratch.put("from", "x");
  std::filesystem::create_directory(scratch.native("sub"));
  const std::ptrdiff_t before = openDescriptors();
  for (int i = 0; i < 3; ++i)
  {
    readFile(scratch.path("from"));
    const MappedFile mapped(scratch.path("from"));
    writeFile(scratch.path("to"), "y");
    copyFile(scratch.path("from"), scratch.path("to"), false);
    copyFile(scratch.path("from"), scratch.path("sub"), false);
    failureOf([&] { readFile(scratch.path("sub")); });
    failureOf([&] { writeFile(scratch.path("sub"), "x"); });
    failureOf([&] { writeFile("\\dev\\full", "x"); });
    listFiles(scratch.path());
    folderWritable(scratch.path());
  }
  EXPECT_EQ(openDescriptors(), before);
}

TEST(Files, TooManyOpenFilesAreFailure67)
{
  const Scratch scratch;
  scratch.put("file", "x");
  rlimit before{};
  getrlimit(RLIMIT_NOFILE, &before);
  const rlimit none{0, before.rlim_max};
  setrlimit(RLIMIT_NOFILE, &none);
  const int number = failureOf([&] { readFile(scratch.path("file")); });
  setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_EQ(number, 67);
}

} // namespace

} // namespace tarvelin::platform
