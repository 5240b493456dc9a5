// The pictures were made by another program.

#include "platform/png_image.h"
#include "tests/platform/hex.h"

#include <gtest/gtest.h>
#include <vector>

using namespace tarvelin::platform;
using tarvelin::tests::bytesOfHex;

namespace
{

using Pixels = std::vector<std::uint32_t>;

constexpr const char* filters =
    "89504e470d0a1a0a0000000d49484452000000030000000508020000000f13c1f5000000354944415478da636064fdc5c2fa8f9d9589919b"
    "9599999d058898b81838b9d839b9f838994599f9d9f9d8d985d859806220593e1600747b0336cf241d50000000" // rows of all filters
    "0049454e44ae426082";
constexpr const char* interlaced =
    "89504e470d0a1a0a0000000d4948445200000005000000050800000001df0349af0000002c4944415478da63606060617070616062706250"
    "5052616064665054667074661010141216613030343236010032190353ac328cea0000000049454e44ae426082";

struct Case
{
  const char* what;
  const char* file;
  Pixels pixels;
};

TEST(PngImage, Kinds)
{
  const Case cases[] = {
      {"black and white, one bit",
       "89504e470d0a1a0a0000000d494844520000000a000000010100000000cf8e02d30000000b4944415478da6358ea0000018d00e63c3e96c"
       "4"
       "0000000049454e44ae426082",
       {0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0xFF000000,
        0xFFFFFFFF}},
      {"grey, two bits, one of the greys transparent",
       "89504e470d0a1a0a0000000d494844520000000400000001020000000096e748b00000000274524e530002989dac140000000a494441547"
       "8"
       "da63900600001d001c237c8fac0000000049454e44ae426082",
       {0xFF000000, 0xFF555555, 0x00AAAAAA, 0xFFFFFFFF}},
      {"grey, sixteen bits",
       "89504e470d0a1a0a0000000d494844520000000200000001100000000081d9fc150000000d4944415478da631032f9ff1f0003e60245f11"
       "c"
       "84650000000049454e44ae426082",
       {0xFF121212, 0xFFFFFFFF}},
      {"a palette with transparency",
       "89504e470d0a1a0a0000000d4948445200000003000000010403000000e9ce098700000009504c5445010203040506070809258556f0000"
       "0"
       "000274524e5380004d1055730000000b4944415478da636054000000250022e98287e50000000049454e44ae426082",
       {0x80010203, 0x00040506, 0xFF070809}},
      {"grey with alpha",
       "89504e470d0a1a0a0000000d49484452000000020000000108040000005e2bb7010000000d4944415478da63106850f80f00030401b0298"
       "f"
       "dea10000000049454e44ae426082",
       {0x80101010, 0xFF202020}},
      {"colours with alpha, sixteen bits",
       "89504e470d0a1a0a0000000d49484452000000010000000110060000004f8518ca000000114944415478da631064506a30feefc20000082"
       "e"
       "022acfe33c020000000049454e44ae426082",
       {0x44112234}},
      {"colours, one of them transparent",
       "89504e470d0a1a0a0000000d49484452000000020000000108020000007b40e8dd0000000674524e53000400050006748ec68f0000000f4"
       "9"
       "44415478da636064626661650300003f001698c168130000000049454e44ae426082",
       {0xFF010203, 0x00040506}},
      {"every filter",
       filters,
       {0xFF0105FA, 0xFF0405FE, 0xFF070502, 0xFF0B0503, 0xFF0E0C07, 0xFF11130B, 0xFF15050C, 0xFF181310, 0xFF1B2114,
        0xFF1F0515, 0xFF221A19, 0xFF252F1D, 0xFF29051E, 0xFF2C2122, 0xFF2F3D26}},
  };
  for (const Case& given : cases)
  {
    const auto image = imageOfPng(bytesOfHex(given.file));
    ASSERT_TRUE(image) << given.what;
    EXPECT_EQ(image->pixels, given.pixels) << given.what;
    EXPECT_EQ(static_cast<std::size_t>(image->width * image->height), given.pixels.size()) << given.what;
  }
}

TEST(PngImage, Interlaced)
{
  const auto image = imageOfPng(bytesOfHex(interlaced));
  ASSERT_TRUE(image);
  Pixels want; // each pixel tells its row and its column
  for (std::uint32_t y = 0; y < 5; ++y)
    for (std::uint32_t x = 0; x < 5; ++x)
      want.push_back(0xFF000000 | (y * 16 + x) * 0x010101);
  EXPECT_EQ(image->pixels, want);
}

TEST(PngImage, CutOffAnywhere)
{
  for (const char* const file : {filters, interlaced})
  {
    const std::string bytes = bytesOfHex(file);
    for (std::size_t size = 0; size < bytes.size(); ++size)
      EXPECT_FALSE(imageOfPng(bytes.substr(0, size))) << size;
  }
}

TEST(PngImage, ADamagedByte)
{
  const std::string bytes = bytesOfHex(filters);
  for (std::size_t at = 0; at < bytes.size() - 12; ++at) // behind it is the end, of which only the name counts
  {
    std::string damaged = bytes;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
    EXPECT_FALSE(imageOfPng(damaged)) << at;
  }
}

TEST(PngImage, WhatIsWrittenIsRead)
{
  const IconImage image{2, 2, {0x80112233, 0xFF000000, 0x00FFFFFF, 0x01020304}};
  const auto read = imageOfPng(pngBytes(image));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->pixels, image.pixels);
}

} // namespace
