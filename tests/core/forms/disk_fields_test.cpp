// File, folder and drive lists, and pictures.

#include "core/attempt.h"
#include "core/forms/kinds.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <gtest/gtest.h>
#include <string>

using namespace tarvelin;
namespace fs = std::filesystem;

namespace
{

struct DiskForm : Form
{
  DiskForm() : Form("form", "Form") {}
  DriveList drives{this, "drives"};
  FolderList folders{this, "folders"};
  FileList files{this, "files", "*.sqm*"};
  Picture picture{this, "picture"};
};

int failureOf(auto action)
{
  int number = 0;
  attempt(action, [&](const Failure& failure) { number = failure.number; });
  return number;
}

std::string joined(const std::vector<std::string>& names)
{
  std::string all;
  for (const std::string& name : names)
    all += name + "|";
  return all;
}

TEST(Patterns, StarsAndQuestionMarksIgnoringCase)
{
  EXPECT_TRUE(matchesPattern("mission.sqm", "*.sqm*"));
  EXPECT_TRUE(matchesPattern("MISSION.SQM.bak", "*.sqm*"));
  EXPECT_FALSE(matchesPattern("mission.sq", "*.sqm*"));
  EXPECT_TRUE(matchesPattern("Žluť.JPG", "*.jpg;*.paa*"));
  EXPECT_TRUE(matchesPattern("x.paa2", "*.jpg;*.paa*"));
  EXPECT_TRUE(matchesPattern("anything", "*.*"));
  EXPECT_TRUE(matchesPattern("ž.x", "?.x"));
  EXPECT_FALSE(matchesPattern("žž.x", "?.x"));
  EXPECT_TRUE(matchesPattern("a.b.c", "*.b*c"));
  EXPECT_FALSE(matchesPattern("a", ""));
  EXPECT_FALSE(matchesPattern("a", ";;"));
  EXPECT_TRUE(matchesPattern(std::string(5000, 'a'), "*a*a*a*a*a*a*"));
  EXPECT_FALSE(matchesPattern(std::string(5000, 'a'), "*a*a*a*a*a*b"));
}

TEST(DiskLists, ListTheDisk)
{
  const test::Scratch scratch;
  for (const char* const name : {"b.sqm", "A.SQM", "c.txt", "ž; 'x'.sqm"})
    test::writeBytes(scratch / name, "x");
  fs::create_directory(scratch / "folder.sqm");
  fs::create_directory(scratch / "Another");
  const std::string path = platform::toProgram(scratch.path().string());
  DiskForm form;
  int changes = 0;
  form.folders.onChange = [&] { ++changes; };
  form.folders.setPath(path + "\\");
  EXPECT_EQ(form.folders.path(), path);
  EXPECT_EQ(joined(form.folders.names()), "Another|folder.sqm|");
  form.folders.setPath(path);
  EXPECT_EQ(changes, 1);
  form.folders.userSetPath(path);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(failureOf([&] { form.folders.setPath(path + "\\nowhere"); }), 76);
  EXPECT_EQ(form.folders.path(), path);

  form.files.setPath(path);
  EXPECT_EQ(joined(form.files.names()), "A.SQM|b.sqm|ž; 'x'.sqm|");
  form.files.userSelect("b.sqm");
  EXPECT_EQ(form.files.selected(), "b.sqm");
  EXPECT_EQ(failureOf([&] { form.files.userSelect("c.txt"); }), 53);
  fs::remove(scratch / "b.sqm");
  form.files.refresh();
  EXPECT_EQ(form.files.selected(), "");
  form.files.setPattern("*.txt");
  EXPECT_EQ(joined(form.files.names()), "c.txt|");
  fs::remove_all(scratch.path());
  form.files.refresh();
  EXPECT_EQ(joined(form.files.names()), "");
}

TEST(DiskLists, FoldersBeginAtTheRoot)
{
  const test::Scratch scratch;
  fs::create_directories(scratch / "Mise.Eden");
  const fs::path before = fs::current_path();
  fs::current_path(scratch.path());
  const std::string here = platform::currentFolder();
  DiskForm form;
  form.folders.setPath("Mise.Eden\\");
  fs::current_path(before);
  EXPECT_EQ(form.folders.path(), here + "\\Mise.Eden");
}

TEST(DiskLists, DrivesOfTheMachine)
{
  DiskForm form;
  form.drives.setDrive("\\home");
  EXPECT_EQ(form.drives.drive(), "\\");
  EXPECT_EQ(form.drives.root(), "\\");
  EXPECT_EQ(failureOf([&] { form.drives.setDrive("q:\\x"); }), 68);
  EXPECT_EQ(form.drives.drive(), "\\");
}

/// A JPEG's head: the mark, an application segment, the frame header with the size.
std::string jpeg(int width, int height)
{
  const auto word = [](int number) { return std::string{static_cast<char>(number >> 8), static_cast<char>(number)}; };
  return "\xFF\xD8\xFF\xE0" + word(16) + "JFIF" + std::string(10, '\0') + "\xFF\xFF\xC0" + word(11) + "\x08" +
         word(height) + word(width) + "\x01\x01\x11" + std::string(1, '\0') + "\xFF\xD9";
}

TEST(Picture, ReadsTheSizeOfAJpeg)
{
  const test::Scratch scratch;
  const std::string path = platform::toProgram((scratch / "p.jpg").string());
  test::writeBytes(scratch / "p.jpg", jpeg(640, 300));
  DiskForm form;
  form.picture.load(path);
  EXPECT_EQ(form.picture.width(), 640);
  EXPECT_EQ(form.picture.height(), 300);
  EXPECT_EQ(form.picture.path(), path);
  form.picture.clear();
  EXPECT_EQ(form.picture.path(), "");
  EXPECT_EQ(form.picture.width(), 0);
}

TEST(Picture, ReadsTheSizeOfABitmap)
{
  const test::Scratch scratch;
  std::string bytes = "BM" + std::string(52, '\0');
  bytes[18] = 32;
  bytes[22] = 16;
  test::writeBytes(scratch / "p.bmp", bytes);
  const PictureSize size = pictureSize(platform::toProgram((scratch / "p.bmp").string()));
  EXPECT_EQ(size.width, 32);
  EXPECT_EQ(size.height, 16);
}

TEST(Picture, WhatIsNoPictureFailsAndLeavesTheFormer)
{
  const test::Scratch scratch;
  const auto path = [&](const char* name) { return platform::toProgram((scratch / name).string()); };
  DiskForm form;
  test::writeBytes(scratch / "good.jpg", jpeg(8, 9));
  form.picture.load(path("good.jpg"));
  test::writeBytes(scratch / "text.jpg", "no picture");
  test::writeBytes(scratch / "empty.jpg", "");
  test::writeBytes(scratch / "nosize.jpg", "\xFF\xD8\xFF\xD9");
  test::writeBytes(scratch / "zero.jpg", jpeg(0, 5));
  for (const char* const name : {"text.jpg", "empty.jpg", "nosize.jpg", "zero.jpg"})
    EXPECT_EQ(failureOf([&] { form.picture.load(path(name)); }), 481) << name;
  EXPECT_EQ(failureOf([&] { form.picture.load(path("missing.jpg")); }), 53);
  EXPECT_EQ(form.picture.path(), path("good.jpg"));
  EXPECT_EQ(form.picture.height(), 9);
  // cut at every place before the size is whole
  const std::string whole = jpeg(8, 9);
  for (std::size_t length = 0; length < 30; ++length)
  {
    test::writeBytes(scratch / "cut.jpg", whole.substr(0, length));
    EXPECT_EQ(failureOf([&] { form.picture.load(path("cut.jpg")); }), 481) << length;
  }
}

} // namespace
