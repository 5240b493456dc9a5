#include "platform/file_types.h"
#include "tests/platform/scratch.h"

#include <gtest/gtest.h>

using namespace tarvelin::platform;
using tarvelin::tests::Scratch;
using tarvelin::tests::Variable;

namespace
{

/// A user whose folders are the test's own.
struct User
{
  Scratch home;
  Variable homeVariable{"HOME", home.native().string()};
  Variable data{"XDG_DATA_HOME", home.native("data").string()};
  Variable config{"XDG_CONFIG_HOME", home.native("config").string()};
  Variable others{"XDG_DATA_DIRS", home.native("system").string()};
};

constexpr const char* handler = "Tarvelin.exe";

TEST(FileTypes, NothingIsKnownAtFirst)
{
  const User user;
  EXPECT_EQ(fileTypeHandler(".sqm"), std::nullopt);
  EXPECT_FALSE(fileHandlerExists(handler));
  EXPECT_FALSE(removeFileTypeHandler(".sqm"));
  EXPECT_FALSE(removeFileHandler(handler, ".sqm"));
}

TEST(FileTypes, AHandlerComesAndGoes)
{
  const User user;
  ASSERT_TRUE(setFileTypeHandler(".sqm", handler));
  EXPECT_EQ(fileTypeHandler(".sqm"), "tarvelin.desktop") << "its entry is not there yet";
  ASSERT_TRUE(setFileHandlerCommand(handler, ".sqm", "Open in Tarvelin", "\\opt\\tarvelin.exe"));
  EXPECT_EQ(fileTypeHandler(".sqm"), handler);
  EXPECT_TRUE(fileHandlerExists(handler));
  EXPECT_EQ(fileTypeHandler(".abc"), std::nullopt);
  EXPECT_TRUE(setFileTypeHandler(".sqm", handler)) << "a second time";
  EXPECT_EQ(user.home.bytes("config/mimeapps.list"), "[Default Applications]\napplication/x-sqm=tarvelin.desktop\n");
  EXPECT_TRUE(removeFileHandler(handler, ".sqm"));
  EXPECT_TRUE(removeFileTypeHandler(".sqm"));
  EXPECT_EQ(fileTypeHandler(".sqm"), std::nullopt);
  EXPECT_FALSE(fileHandlerExists(handler));
}

TEST(FileTypes, TheListOfDefaultsKeepsWhatOthersWrote)
{
  const User user;
  user.home.put("config/mimeapps.list", "[Added Associations]\napplication/x-sqm=a.desktop;\n\n"
                                        "[Default Applications]\ntext/html=b.desktop\n\n[Removed Associations]\n");
  ASSERT_TRUE(setFileTypeHandler(".sqm", handler));
  EXPECT_EQ(user.home.bytes("config/mimeapps.list"),
            "[Added Associations]\napplication/x-sqm=a.desktop;\n\n[Default Applications]\n"
            "application/x-sqm=tarvelin.desktop\ntext/html=b.desktop\n\n[Removed Associations]\n");
  ASSERT_TRUE(removeFileTypeHandler(".sqm"));
  EXPECT_EQ(user.home.bytes("config/mimeapps.list"),
            "[Added Associations]\napplication/x-sqm=a.desktop;\n\n"
            "[Default Applications]\ntext/html=b.desktop\n\n[Removed Associations]\n");
}

TEST(FileTypes, TheCommandIsQuoted)
{
  const User user;
  user.home.put("my $tools 100%/tarvelin", "");
  ASSERT_TRUE(setFileHandlerCommand(handler, ".sqm", "Open", user.home.path("my $tools 100%/tarvelin") + ".exe"));
  const std::string entry = user.home.bytes("data/applications/tarvelin.desktop");
  const std::string folder = user.home.native().string();
  EXPECT_NE(entry.find("\nExec=env \"" + folder + "/my \\\\$tools 100%%/tarvelin\" %f\n"), std::string::npos) << entry;
  EXPECT_NE(entry.find("\nName=Tarvelin\n"), std::string::npos);
  user.home.put("my tools/tarvelin", "");
  ASSERT_TRUE(setFileHandlerCommand(handler, ".sqm", "Open", user.home.path("my tools/tarvelin") + ".exe"));
  EXPECT_NE(
      user.home.bytes("data/applications/tarvelin.desktop").find("\nExec=\"" + folder + "/my tools/tarvelin\" %f\n"),
      std::string::npos);
}

TEST(FileTypes, AnotherProgramsTypeAndDefault)
{
  const User user;
  user.home.put("system/mime/globs2", "# head\n50:text/x-else:*.sqmx\n50:application/x-other:*.sqm\n");
  EXPECT_EQ(fileTypeHandler(".sqm"), "") << "known, but nobody's";
  user.home.put("data/applications/mimeapps.list", "[Default Applications]\napplication/x-other=c.desktop;d.desktop\n");
  EXPECT_EQ(fileTypeHandler(".sqm"), "c.desktop");
  user.home.put("config/mimeapps.list", "[Default Applications]\napplication/x-other=e.desktop\n");
  EXPECT_EQ(fileTypeHandler(".sqm"), "e.desktop") << "the user's configuration comes first";
}

TEST(FileTypes, Icons)
{
  const User user;
  EXPECT_FALSE(setFileHandlerIcon(handler, ".sqm", user.home.path("missing.ico")));
  EXPECT_TRUE(setFileHandlerIcon(handler, ".sqm", user.home.path("tarvelin.exe")))
      << "a native program has none inside";
  user.home.put("bad.ico", "no icon");
  EXPECT_FALSE(setFileHandlerIcon(handler, ".sqm", user.home.path("bad.ico")));
  EXPECT_FALSE(user.home.has("data/icons"));
}

TEST(FileTypes, AUserWithoutFolders)
{
  const User user;
  const Variable none("HOME", std::nullopt);
  const Variable noData("XDG_DATA_HOME", std::nullopt);
  const Variable noConfig("XDG_CONFIG_HOME", std::nullopt);
  EXPECT_FALSE(setFileTypeHandler(".sqm", handler));
  EXPECT_FALSE(setFileHandlerCommand(handler, ".sqm", "Open", "\\x.exe"));
  EXPECT_EQ(fileTypeHandler(".sqm"), std::nullopt);
}

TEST(FileTypes, AFolderThatCannotBeMadeIsRefused)
{
  const User user;
  user.home.put("data", "a file in the folder's place");
  EXPECT_FALSE(setFileTypeHandler(".sqm", handler));
  EXPECT_FALSE(setFileHandlerCommand(handler, ".sqm", "Open", "\\x.exe"));
}

} // namespace
