#include "platform/icon_image.h"
#include "platform/png_image.h"

#include <gtest/gtest.h>
#include <string>

using namespace tarvelin::platform;

namespace
{

void little(std::string& out, std::uint32_t value, int size)
{
  for (int i = 0; i < size; ++i)
    out += static_cast<char>(value >> 8 * i & 0xFF);
}

/// A bitmap of an icon: header, then `rest` (colours, pixels, mask).
std::string bitmap(int width, int height, int depth, const std::string& rest)
{
  std::string out;
  little(out, 40, 4);
  little(out, static_cast<std::uint32_t>(width), 4);
  little(out, static_cast<std::uint32_t>(height * 2), 4);
  little(out, 1, 2);
  little(out, static_cast<std::uint32_t>(depth), 2);
  out.append(24, '\0');
  return out + rest;
}

struct Entry
{
  int side;
  int depth;
  std::string data;
};

std::string iconFile(const std::vector<Entry>& entries)
{
  std::string out;
  little(out, 0x10000, 4);
  little(out, static_cast<std::uint32_t>(entries.size()), 2);
  std::size_t at = 6 + 16 * entries.size();
  for (const Entry& entry : entries)
  {
    little(out, static_cast<std::uint32_t>(entry.side), 1);
    little(out, static_cast<std::uint32_t>(entry.side), 1);
    little(out, 0x10000, 4);
    little(out, static_cast<std::uint32_t>(entry.depth), 2);
    little(out, static_cast<std::uint32_t>(entry.data.size()), 4);
    little(out, static_cast<std::uint32_t>(at), 4);
    at += entry.data.size();
  }
  for (const Entry& entry : entries)
    out += entry.data;
  return out;
}

TEST(IconImage, AMonochromeIconWithItsMask)
{
  const std::string colours("\x10\x20\x30\0\x40\x50\x60\0", 8); // two colours: blue, green, red
  const std::string pixels("\x40\0\0\0", 4);                    // one row of two: colour 0, colour 1
  const std::string mask("\x80\0\0\0", 4);                      // the left one is transparent
  const auto image = iconOfFile(iconFile({{2, 1, bitmap(2, 1, 1, colours + pixels + mask)}}));
  ASSERT_TRUE(image);
  EXPECT_EQ(image->width, 2);
  EXPECT_EQ(image->height, 1);
  EXPECT_EQ(image->pixels, (std::vector<std::uint32_t>{0x00302010, 0xFF605040}));
}

TEST(IconImage, SixteenColours)
{
  std::string colours;
  for (std::uint32_t i = 0; i < 16; ++i)
    little(colours, i * 0x010101, 4);
  const auto image = iconOfFile(
      iconFile({{2, 4, bitmap(2, 2, 4, colours + std::string("\xF1\0\0\0\x2E\0\0\0", 8) + std::string(8, '\0'))}}));
  ASSERT_TRUE(image);
  EXPECT_EQ(image->pixels, (std::vector<std::uint32_t>{0xFF020202, 0xFF0E0E0E, 0xFF0F0F0F, 0xFF010101}))
      << "rows are stored from below";
}

TEST(IconImage, TransparencyOfItsOwnCountsMoreThanTheMask)
{
  const std::string pixels("\x01\x02\x03\x80\x04\x05\x06\0", 8);
  const auto image = iconOfFile(iconFile({{2, 32, bitmap(2, 1, 32, pixels + std::string(4, '\xFF'))}}));
  ASSERT_TRUE(image);
  EXPECT_EQ(image->pixels, (std::vector<std::uint32_t>{0x80030201, 0x00060504}));
}

TEST(IconImage, TheSizeNearestTo32InMostColours)
{
  const auto plain = [](int side, char value)
  {
    const std::string rows(static_cast<std::size_t>(side) * static_cast<std::size_t>(side) * 4, value);
    return bitmap(side, side, 32, rows + std::string(static_cast<std::size_t>(side) * 8, '\0'));
  };
  const auto image = iconOfFile(
      iconFile({{16, 32, plain(16, 1)}, {32, 8, plain(32, 2)}, {32, 32, plain(32, 3)}, {48, 32, plain(48, 4)}}));
  ASSERT_TRUE(image);
  EXPECT_EQ(image->width, 32);
  EXPECT_EQ(image->pixels[0], 0x03030303U);
  const auto other = iconOfFile(iconFile({{32, 32, "\x89PNG that is not read"}, {16, 32, plain(16, 1)}}));
  ASSERT_TRUE(other);
  EXPECT_EQ(other->width, 16) << "what cannot be read is passed over";
}

TEST(IconImage, DamagedFilesGiveNone)
{
  const std::string pixels(4 * 4 * 4, '\x7F');
  const std::string good = iconFile({{4, 32, bitmap(4, 4, 32, pixels + std::string(16, '\0'))}});
  ASSERT_TRUE(iconOfFile(good));
  for (std::size_t size = 0; size < good.size() - 16; ++size)
    EXPECT_FALSE(iconOfFile(good.substr(0, size))) << size;
  for (const int depth : {0, 2, 5, 16, 64})
    EXPECT_FALSE(iconOfFile(iconFile({{4, depth, bitmap(4, 4, depth, pixels)}}))) << depth;
  for (const int side : {0, -1, 257, 1 << 30})
    EXPECT_FALSE(iconOfFile(iconFile({{4, 32, bitmap(side, 4, 32, pixels)}}))) << side;
  EXPECT_FALSE(executableIcon(""));
  EXPECT_FALSE(executableIcon("MZ"));
  EXPECT_FALSE(executableIcon(std::string(4096, '\xFF')));
  EXPECT_FALSE(executableIcon("\x7F"
                              "ELF" +
                              std::string(1000, '\0')));
}

TEST(IconImage, ABitmapOnWhite)
{
  const std::string bytes = bitmapBytes({1, 1, {0x80000000}});
  ASSERT_EQ(bytes.size(), 58U);
  EXPECT_EQ(bytes.substr(0, 6), std::string("BM\x3A\0\0\0", 6));
  EXPECT_EQ(bytes.substr(54), std::string("\x7F\x7F\x7F\0", 4)) << "half of black over white";
}

TEST(IconImage, APng)
{
  const std::string bytes = pngBytes({1, 1, {0x80112233}});
  EXPECT_EQ(bytes.substr(0, 33), std::string("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\0\x01\0\0\0\x01\x08\x06\0\0\0"
                                             "\x1F\x15\xC4\x89",
                                             33));
  // zlib head, one stored block of 5 bytes (no filter, red, green, blue, alpha), their checksum
  EXPECT_EQ(bytes.substr(41, 16), std::string("\x78\x01\x01\x05\0\xFA\xFF\0\x11\x22\x33\x80\x01\x95\0\xE7", 16));
  EXPECT_EQ(bytes.substr(bytes.size() - 12), std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12));
}

} // namespace
