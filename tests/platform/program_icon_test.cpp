// A desktop made up for each test: its entries, themes and pictures. Each picture has a colour of its own.

#include "platform/failure.h"
#include "platform/png_image.h"
#include "platform/program_icon.h"
#include "tests/platform/scratch.h"

#include <gtest/gtest.h>

using namespace tarvelin::platform;
using tarvelin::Failure;
using tarvelin::tests::Scratch;
using tarvelin::tests::Variable;

namespace
{

std::string picture(int side, std::uint32_t colour)
{
  return pngBytes({side, side, std::vector<std::uint32_t>(static_cast<std::size_t>(side * side), colour)});
}

class ProgramIcon : public testing::Test
{
protected:
  void SetUp() override
  {
    program("bin/tool");
    program("bin/other");
  }

  void program(const std::string& name) const
  {
    home.put(name, "#!/bin/sh\n");
    std::filesystem::permissions(home.native(name), std::filesystem::perms::owner_all);
  }

  void entry(const std::string& name, const std::string& lines) const
  {
    home.put("system/applications/" + name, "[Desktop Entry]\nType=Application\n" + lines);
  }

  /// Colour of a program's icon; 0 for none.
  std::uint32_t colour(const std::string& program = "bin/tool") const
  {
    const auto image = programIcon(home.path(program));
    if (!image)
      return 0;
    EXPECT_LE(image->width, 32);
    return image->pixels.at(image->pixels.size() / 2);
  }

  static constexpr std::uint32_t red = 0xFFFF0000;
  static constexpr std::uint32_t green = 0xFF00FF00;
  static constexpr std::uint32_t blue = 0xFF0000FF;

  Scratch home;
  Variable homeVariable{"HOME", home.native().string()};
  Variable data{"XDG_DATA_HOME", home.native("data").string()};
  Variable config{"XDG_CONFIG_HOME", home.native("config").string()};
  Variable others{"XDG_DATA_DIRS", home.native("system").string() + "::" + home.native("more").string()};
  Variable path{"PATH", home.native("bin").string()};
};

TEST_F(ProgramIcon, NothingAtAll)
{
  EXPECT_EQ(colour(), 0U);
  EXPECT_THROW(programIcon(home.path("bin/missing")), Failure);
  EXPECT_THROW(programIcon(home.path("bin/missing.exe")), Failure);
  EXPECT_THROW(programIcon(""), Failure);
  EXPECT_THROW(programIcon(home.path("bin")), Failure) << "a folder";
  home.put("notes.txt", "text");
  EXPECT_EQ(programIcon(home.path("notes.txt")), std::nullopt);
}

TEST_F(ProgramIcon, OfTheEntryThatStartsIt)
{
  entry("a.desktop", "Exec=other %f\nIcon=otherpicture\n");
  entry("z.desktop", "Exec=tool --new %F\nIcon=toolpicture\n");
  home.put("system/icons/hicolor/32x32/apps/toolpicture.png", picture(32, red));
  home.put("system/icons/hicolor/32x32/apps/otherpicture.png", picture(32, blue));
  EXPECT_EQ(colour(), red);
  EXPECT_EQ(colour("bin/other"), blue);
  const auto byName = programIcon("tool");
  ASSERT_TRUE(byName) << "a program of PATH";
  EXPECT_EQ(byName->pixels.front(), red);
  const auto byWindowsName = programIcon(home.path("bin/tool") + ".exe");
  ASSERT_TRUE(byWindowsName) << "as it is started";
  EXPECT_EQ(byWindowsName->pixels.front(), red);
}

TEST_F(ProgramIcon, ByAQuotedPathOrALink)
{
  program("my tools/x");
  std::filesystem::create_symlink(home.native("my tools/x"), home.native("bin/link"));
  entry("sub/folder/x.desktop",
        "Exec=\"" + home.native("my tools/x").string() + "\" %f\nIcon=" + home.native("x.png").string() + "\n");
  home.put("x.png", picture(32, green));
  EXPECT_EQ(colour("my tools/x"), green);
  EXPECT_EQ(colour("bin/link"), green);
}

TEST_F(ProgramIcon, OfTheEntryOfItsNameFirst)
{
  entry("a.desktop", "Exec=tool --part\nIcon=part\n");
  entry("tool.desktop", "Exec=tool\nIcon=whole\n");
  home.put("system/icons/hicolor/32x32/apps/part.png", picture(32, blue));
  home.put("system/icons/hicolor/32x32/apps/whole.png", picture(32, red));
  EXPECT_EQ(colour(), red);
  home.put("data/applications/tool.desktop", "[Desktop Entry]\nExec=tool\nIcon=own\n");
  home.put("data/icons/hicolor/32x32/apps/own.png", picture(32, green));
  EXPECT_EQ(colour(), green) << "the user's own entry counts more";
}

TEST_F(ProgramIcon, ByItsNameWithoutAnEntry)
{
  home.put("more/pixmaps/tool.png", picture(48, red));
  EXPECT_EQ(colour(), red);
  home.put("system/icons/hicolor/256x256/apps/tool.png", picture(256, green));
  EXPECT_EQ(colour(), green) << "a theme counts more than the folder of old pictures";
}

TEST_F(ProgramIcon, TheNearestSize)
{
  home.put("system/icons/hicolor/index.theme",
           "[Icon Theme]\nName=Hicolor\nDirectories=16x16/apps,48x48/apps,128x128/apps,scalable/apps\n\n"
           "[16x16/apps]\nSize=16\nType=Threshold\n\n[48x48/apps]\nSize=48\nType=Threshold\n\n"
           "[128x128/apps]\nSize=128\nType=Fixed\n\n[scalable/apps]\nSize=64\nMinSize=1\nMaxSize=256\nType=Scalable\n");
  home.put("system/icons/hicolor/128x128/apps/tool.png", picture(128, blue));
  EXPECT_EQ(colour(), blue);
  home.put("more/icons/hicolor/48x48/apps/tool.png", picture(48, green));
  EXPECT_EQ(colour(), green);
  home.put(".icons/hicolor/16x16/apps/tool.png", picture(16, red));
  EXPECT_EQ(colour(), green) << "as near, but the smaller one";
  home.put("system/icons/hicolor/32x32/apps/tool.png", picture(32, red));
  EXPECT_EQ(colour(), green) << "a folder that the theme does not name";
}

TEST_F(ProgramIcon, OfTheUsersThemeAndThoseItInherits)
{
  home.put("config/gtk-3.0/settings.ini", "[Settings]\ngtk-icon-theme-name = Mine\n");
  home.put("data/icons/Mine/index.theme",
           "[Icon Theme]\nInherits=Parent,hicolor\nDirectories=apps/32\n[apps/32]\nSize=32\nType=Fixed\n");
  home.put("system/icons/Parent/index.theme",
           "[Icon Theme]\nInherits=Mine\nDirectories=32\n[32]\nSize=32\nType=Fixed\n"); // round and round
  home.put("system/icons/hicolor/32x32/apps/tool.png", picture(32, red));
  EXPECT_EQ(colour(), red);
  home.put("system/icons/Parent/32/tool.png", picture(32, blue));
  EXPECT_EQ(colour(), blue);
  home.put("more/icons/Mine/apps/32/tool.png", picture(32, green));
  EXPECT_EQ(colour(), green);
}

TEST_F(ProgramIcon, WhatCannotBeReadIsPassedOver)
{
  entry("tool.desktop", "Exec=tool\nIcon=gone\n");
  home.put("system/icons/hicolor/32x32/apps/tool.png", picture(32, red).substr(0, 60));
  home.put("system/icons/hicolor/32x32/apps/tool.svg", "<svg/>");
  home.put("system/icons/hicolor/48x48/apps/tool.png", picture(48, green));
  EXPECT_EQ(colour(), green);
}

TEST_F(ProgramIcon, AToolkitReadsOtherPictures)
{
  home.put("system/icons/hicolor/scalable/apps/tool.svg", "<svg/>");
  EXPECT_EQ(colour(), 0U);
  otherPictures = [](std::string_view file, int side) -> std::optional<IconImage>
  {
    if (!file.ends_with("/scalable/apps/tool.svg"))
      return std::nullopt;
    return IconImage{side, side, std::vector<std::uint32_t>(static_cast<std::size_t>(side * side), blue)};
  };
  EXPECT_EQ(colour(), blue);
  otherPictures = nullptr;
}

TEST_F(ProgramIcon, BadEntries)
{
  entry("a.desktop", "Exec=\nIcon=x\n");
  entry("b.desktop", "Exec=\"tool\nIcon=../../x\n");
  entry("tool.desktop", std::string("\xFF\0", 2) + "\n=\n[Desktop Entry\nExec\nExec=tool\nIcon=\n");
  home.put("system/applications/folder.desktop/x", "");
  EXPECT_EQ(colour(), 0U);
}

TEST(FittedImage, IsTheMeanOfWhatIsSeen)
{
  IconImage image{64, 64, std::vector<std::uint32_t>(64 * 64, 0xFF204060)};
  image.pixels[0] = 0x00FFFFFF; // transparent, so without a colour
  image.pixels[2] = 0xFF406080;
  const IconImage small = fitted(image, 32);
  EXPECT_EQ(small.width, 32);
  EXPECT_EQ(small.height, 32);
  EXPECT_EQ(small.pixels[0], 0xBF204060U);
  EXPECT_EQ(small.pixels[1], 0xFF284868U);
  EXPECT_EQ(small.pixels[1023], 0xFF204060U);
  EXPECT_EQ(fitted({64, 2, std::vector<std::uint32_t>(128, 1)}, 32).height, 1);
  EXPECT_EQ(fitted({3, 5, std::vector<std::uint32_t>(15, 7)}, 32).pixels.size(), 15U) << "a small one stays";
}

} // namespace
