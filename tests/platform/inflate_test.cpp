// The streams were packed by another program.

#include "platform/inflate.h"
#include "tests/platform/hex.h"

#include <gtest/gtest.h>

using namespace tarvelin::platform;
using tarvelin::tests::bytesOfHex;

namespace
{

constexpr std::size_t plenty = 100000;

const std::string fixedStream = bytesOfHex("78012bc94855484fcc4dd55128c16029e4a7c1d9c50023f30e0d");
const std::string fixedText = "the game, the game, the game of the games";

const std::string ownStream =
    bytesOfHex("780105c10101000008c3a0acecf6cf202016b9006251296890b4a850126574308de444c43864b5"
               "1b4963284a35728160841bc899253a4058408a5615b7ad05042024622282012496883a4bf3403c72"
               "5b");
const std::string ownText =
    "aaabaacbaabadbaaaaaaaabaacbaabbbabbaaaabcaaaabababcbaabbbaaabbababaabbacaabdaaaacabcaababadabaabaabaacaadaaaba"
    "cbbcdcaabababcaacaaabbaabbabbbcaabadbaaaaabaaaacaabaaadcaaaaabadacacbabaabdaaaaaaabaaacbaaaaaababbaabcbbbbbaad"
    "cccbcbaaaaaabaaaaaaaaabaaababaabaacabaabaabaaaacaaaaaaaababaacbabaabaabbdacbabca";

const std::string longStream = bytesOfHex(
    "78daedc6591500200800b04a7820dabf983d78dbd762ccb5f3d47d6166666666666666666666666666666666d6761f09a2361e");

TEST(Inflate, AFixedCode)
{
  EXPECT_EQ(inflated(fixedStream, plenty), fixedText);
}

TEST(Inflate, ACodeOfItsOwn)
{
  EXPECT_EQ(inflated(ownStream, plenty), ownText);
}

TEST(Inflate, LongRepeats)
{
  std::string text;
  for (int i = 0; i < 900; ++i)
    text += "0123456789";
  EXPECT_EQ(inflated(longStream, plenty), text);
  EXPECT_EQ(inflated(longStream, text.size()), text);
  EXPECT_FALSE(inflated(longStream, text.size() - 1)) << "more than is wanted";
}

TEST(Inflate, StoredBytes)
{
  EXPECT_EQ(inflated(bytesOfHex("7801010300fcff616263024d0127"), plenty), "abc");
  EXPECT_EQ(stored("abc"), bytesOfHex("7801010300fcff616263024d0127"));
  const std::string text(70000, 'x'); // two blocks
  EXPECT_EQ(inflated(stored(text), plenty), text);
  EXPECT_FALSE(inflated(stored(text), 69999));
  EXPECT_FALSE(inflated(bytesOfHex("7801010300fdff616263024d0127"), plenty)) << "lengths that disagree";
}

TEST(Inflate, CutOffAnywhere)
{
  for (const std::string& stream : {fixedStream, ownStream, longStream})
    for (std::size_t size = 0; size < stream.size(); ++size)
      EXPECT_FALSE(inflated(stream.substr(0, size), plenty)) << size;
}

TEST(Inflate, ADamagedByte)
{
  for (const std::string& stream : {fixedStream, ownStream, longStream})
    for (std::size_t at = 0; at < stream.size(); ++at)
      for (const int change : {0x01, 0x10, 0x80, 0xFF})
      {
        std::string damaged = stream;
        damaged[at] = static_cast<char>(damaged[at] ^ change);
        const auto text = inflated(damaged, plenty); // the checksum is weak: not every other text is found out
        EXPECT_LE(text.value_or("").size(), plenty) << at;
      }
  std::string damaged = fixedStream;
  damaged.back() ^= 1;
  EXPECT_FALSE(inflated(damaged, plenty)) << "the checksum";
  EXPECT_FALSE(inflated("\x79" + fixedStream.substr(1), plenty)) << "the head";
  EXPECT_FALSE(inflated(bytesOfHex("78bb0000000063"), plenty)) << "it needs a dictionary";
  EXPECT_FALSE(inflated(bytesOfHex("780107"), plenty)) << "no such block";
}

} // namespace
