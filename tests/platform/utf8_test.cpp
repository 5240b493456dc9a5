#include "platform/utf8.h"

#include <gtest/gtest.h>
#include <vector>

namespace tarvelin::platform
{

namespace
{

std::vector<char32_t> charactersOf(std::string_view text)
{
  std::vector<char32_t> characters;
  for (std::size_t at = 0; at < text.size();)
    characters.push_back(nextCharacter(text, at));
  return characters;
}

using Characters = std::vector<char32_t>;

TEST(Utf8, ReadsCharactersOfEveryLength)
{
  EXPECT_EQ(charactersOf("až€😀"), (Characters{U'a', U'ž', U'€', U'😀'}));
  EXPECT_EQ(charactersOf(std::string_view("\0\x7F", 2)), (Characters{0, 0x7F}));
}

TEST(Utf8, TheSmallestAndTheLargestOfEachLengthComeBack)
{
  for (const char32_t character :
       {U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xD7FF', U'\xE000', U'\xFFFF', U'\x10000', U'\x10FFFF'})
  {
    std::string text;
    appendCharacter(text, character);
    EXPECT_EQ(charactersOf(text), Characters{character});
  }
}

TEST(Utf8, PassesInvalidBytesOneByOne)
{
  constexpr char32_t bad = notACharacter;
  EXPECT_EQ(charactersOf("\x80z"), (Characters{bad, U'z'}));
  EXPECT_EQ(charactersOf("\xE2\x82"), (Characters{bad, bad}));
  EXPECT_EQ(charactersOf("\xE2\x82z"), (Characters{bad, bad, U'z'}));
  EXPECT_EQ(charactersOf("\xC1\xBF"), (Characters{bad, bad}));
  EXPECT_EQ(charactersOf("\xE0\x80\x80"), (Characters{bad, bad, bad}));
  EXPECT_EQ(charactersOf("\xED\xBF\xBF"), (Characters{bad, bad, bad}));
  EXPECT_EQ(charactersOf("\xF8\x88\x80\x80\x80"), (Characters{bad, bad, bad, bad, bad}));
}

} // namespace

} // namespace tarvelin::platform
