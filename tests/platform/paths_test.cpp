#include "platform/failure.h"
#include "platform/paths.h"
#include "tests/platform/scratch.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvelin::platform
{

namespace
{

using tests::Scratch;
using tests::Variable;

int failureOfFolder(std::string_view path)
{
  try
  {
    setCurrentFolder(path);
  }
  catch (const Failure& failure)
  {
    return failure.number;
  }
  return 0;
}

class CurrentFolder
{
public:
  CurrentFolder() : m_before(std::filesystem::current_path()) {}
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;
  ~CurrentFolder() { std::filesystem::current_path(m_before); }

private:
  std::filesystem::path m_before;
};

TEST(Paths, TurnsBackslashesAndBack)
{
  EXPECT_EQ(toNative("\\no such\\folder\\x.sqm"), "/no such/folder/x.sqm");
  EXPECT_EQ(toNative("no such\\x.sqm"), "no such/x.sqm");
  EXPECT_EQ(toNative("\\"), "/");
  EXPECT_EQ(toNative(""), "");
  EXPECT_EQ(toProgram("/home/user/a b.sqm"), "\\home\\user\\a b.sqm");
  EXPECT_EQ(toProgram("relative/x"), "relative\\x");
  EXPECT_EQ(toProgram(""), "");
}

TEST(Paths, DoubledBackslashesCountOnce)
{
  const Scratch scratch;
  scratch.put("Sub/File.txt", "x");
  EXPECT_EQ(toNative(scratch.path() + "\\\\sub\\\\\\file.TXT"), scratch.native("Sub/File.txt"));
  EXPECT_EQ(toNative("\\\\none\\\\x"), "/none/x");
}

TEST(Paths, FindsEveryComponentIgnoringCase)
{
  const Scratch scratch;
  scratch.put("Missions/Útok.Eden/description.ext", "x");
  const std::string found = scratch.native("Missions/Útok.Eden/description.ext");
  EXPECT_EQ(toNative(scratch.path("MISSIONS\\úTOK.eden\\Description.ext")), found);
  EXPECT_EQ(toNative(scratch.path("missions\\ÚTOK.EDEN\\DESCRIPTION.EXT")), found);
  EXPECT_EQ(toNative(scratch.path("missions\\útok.eden\\")), scratch.native("Missions/Útok.Eden/"));
}

TEST(Paths, TheExactNameComesFirst)
{
  const Scratch scratch;
  for (const char* name : {"mission.sqm", "Mission.sqm", "MISSION.SQM"})
    scratch.put(name, "x");
  for (const char* name : {"mission.sqm", "Mission.sqm", "MISSION.SQM"})
    EXPECT_EQ(toNative(scratch.path(name)), scratch.native(name));
  EXPECT_EQ(toNative(scratch.path("MissioN.sqm")), scratch.native("MISSION.SQM")); // the first of the listing
}

TEST(Paths, WhatDoesNotExistKeepsItsSpelling)
{
  const Scratch scratch;
  scratch.put("Sub/x", "");
  EXPECT_EQ(toNative(scratch.path("sub\\New Folder\\Nový.TXT")), scratch.native("Sub/New Folder/Nový.TXT"));
  EXPECT_EQ(toNative(scratch.path("sub\\X\\Below A File")), scratch.native("Sub/x/Below A File"));
}

TEST(Paths, OddNamesAreFound)
{
  const Scratch scratch;
  for (const char* name : {"a b'c\"d;e&f", "semi;colon", "$(ls)", "kůň*?", "-r", "~", "x."})
  {
    scratch.put(name, "x");
    EXPECT_EQ(toNative(scratch.path(name)), scratch.native(name));
  }
  EXPECT_EQ(toNative(scratch.path("A B'C\"D;E&F")), scratch.native("a b'c\"d;e&f"));
}

TEST(Paths, DotsWorkAsTheyDoEverywhere)
{
  const Scratch scratch;
  scratch.put("One/x", "");
  scratch.put("Two/y", "");
  EXPECT_EQ(toNative(scratch.path("one\\..\\TWO\\.\\Y")), scratch.native("One/../Two/./y"));
}

TEST(Paths, ALinkToNowhereIsFoundByItsName)
{
  const Scratch scratch;
  std::filesystem::create_symlink("nowhere", scratch.native("Link"));
  EXPECT_EQ(toNative(scratch.path("LINK")), scratch.native("Link"));
}

TEST(Paths, RelativePathsAreFoundInTheCurrentFolder)
{
  const Scratch scratch;
  const CurrentFolder keep;
  scratch.put("Bfdata/Sounds.cfg", "x");
  setCurrentFolder(scratch.path());
  EXPECT_EQ(toNative("bfdata\\sounds.CFG"), "Bfdata/Sounds.cfg");
  EXPECT_EQ(toNative("BFDATA"), "Bfdata");
  EXPECT_EQ(toNative("..\\none.x"), "../none.x");
}

TEST(Paths, ZeroBytesAndEndlessNamesFailNothing)
{
  EXPECT_EQ(toNative(std::string_view("\\a\0b", 4)), std::string("/a\0b", 4));
  const std::string name(100000, 'x');
  EXPECT_EQ(toNative("\\" + name), "/" + name);
}

TEST(Paths, DriveLettersLeadIntoTheWinePrefix)
{
  const Scratch scratch;
  const Variable home("HOME", scratch.native().string());
  scratch.put(".wine/drive_c/Program Files/Game/Missions/x.sqm", "x");
  std::filesystem::create_directories(scratch.native(".wine/dosdevices"));
  std::filesystem::create_symlink("../drive_c", scratch.native(".wine/dosdevices/c:"));
  EXPECT_EQ(toNative("C:\\PROGRAM FILES\\game\\missions\\X.SQM"),
            scratch.native(".wine/drive_c/Program Files/Game/Missions/x.sqm"));
  EXPECT_EQ(toNative("c:"), scratch.native(".wine/drive_c"));
  EXPECT_EQ(toNative("c:\\"), scratch.native(".wine/drive_c/"));
  EXPECT_EQ(toNative("q:\\none.txt"), scratch.native(".wine/dosdevices/q:/none.txt"));
}

TEST(Paths, TheDriveOfTheRootNeedsNoPrefix)
{
  const Scratch scratch;
  const Variable home("HOME", scratch.native().string());
  scratch.put("Here.txt", "x");
  EXPECT_EQ(toNative("Z:" + scratch.path("HERE.txt")), scratch.native("Here.txt"));
  EXPECT_EQ(toNative(toWindows(scratch.path("here.txt"))), scratch.native("Here.txt"));
}

TEST(Paths, WindowsProgramsSeeTheRootAsADrive)
{
  EXPECT_EQ(toWindows("\\home\\user\\x.sqm"), "Z:\\home\\user\\x.sqm");
  EXPECT_EQ(toWindows("C:\\x.sqm"), "C:\\x.sqm");
  EXPECT_EQ(toWindows("relative\\x.sqm"), "relative\\x.sqm");
  EXPECT_EQ(toWindows(""), "");
}

TEST(Paths, DrivesAreTheRootAndTheLettersOfThePrefix)
{
  const Scratch scratch;
  const Variable home("HOME", scratch.native().string());
  EXPECT_EQ(drives(), std::vector<std::string>{"\\"});
  const auto devices = scratch.native(".wine/dosdevices");
  std::filesystem::create_directories(devices);
  std::filesystem::create_directories(scratch.native(".wine/drive_c"));
  std::filesystem::create_symlink("/", devices / "z:");
  std::filesystem::create_symlink("../drive_c", devices / "c:");
  std::filesystem::create_symlink("/dev/null", devices / "d::"); // a device of Wine's, no drive
  std::filesystem::create_symlink("/no such folder", devices / "e:");
  std::filesystem::create_symlink("/dev/null", devices / "com1");
  EXPECT_EQ(drives(), (std::vector<std::string>{"\\", "c:", "z:"}));
}

TEST(Paths, TheCurrentFolderIsSetAndTold)
{
  const Scratch scratch;
  const CurrentFolder keep;
  scratch.put("Sub/x", "");
  setCurrentFolder(scratch.path("SUB\\"));
  EXPECT_EQ(currentFolder(), scratch.path("Sub"));
  setCurrentFolder("..");
  EXPECT_EQ(currentFolder(), scratch.path());
  setCurrentFolder("\\");
  EXPECT_EQ(currentFolder(), "\\");
}

TEST(Paths, WhatIsNoFolderCanNotBecomeTheCurrentOne)
{
  const Scratch scratch;
  const std::string before = currentFolder();
  scratch.put("file", "");
  EXPECT_EQ(failureOfFolder(scratch.path("none")), 76);
  EXPECT_EQ(failureOfFolder(scratch.path("file")), 76);
  EXPECT_EQ(failureOfFolder(""), 76);
  EXPECT_EQ(failureOfFolder(std::string_view("\\\0", 2)), 76);
  EXPECT_EQ(currentFolder(), before);
}

TEST(Paths, UserFoldersComeFromTheEnvironment)
{
  const Variable home("HOME", "/home/někdo/");
  EXPECT_EQ(homeFolder(), "\\home\\někdo");
  {
    const Variable data("XDG_DATA_HOME", "/data/of user/");
    EXPECT_EQ(userDataFolder(), "\\data\\of user");
  }
  for (const std::optional<std::string>& unusable :
       {std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("relative")})
  {
    const Variable data("XDG_DATA_HOME", unusable);
    EXPECT_EQ(userDataFolder(), "\\home\\někdo\\.local\\share");
  }
}

TEST(Paths, WithoutAHomeThereAreNoUserFolders)
{
  const Variable home("HOME", std::nullopt);
  const Variable data("XDG_DATA_HOME", std::nullopt);
  EXPECT_EQ(homeFolder(), "");
  EXPECT_EQ(userDataFolder(), "");
  EXPECT_EQ(drives(), std::vector<std::string>{"\\"});
}

TEST(Paths, TheExecutableIsThisTest)
{
  struct stat told;
  struct stat running;
  ASSERT_EQ(stat(toNative(executablePath()).c_str(), &told), 0);
  ASSERT_EQ(stat("/proc/self/exe", &running), 0);
  EXPECT_EQ(told.st_ino, running.st_ino);
  EXPECT_TRUE(executablePath().starts_with('\\'));
}

} // namespace

} // namespace tarvelin::platform
