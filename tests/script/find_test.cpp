#include "script/find.h"

#include <gtest/gtest.h>
#include <string>

using namespace tarvelin;

namespace
{

constexpr std::size_t none = static_cast<std::size_t>(-1);

std::size_t place(std::string_view text, std::string_view needle, std::size_t from, bool matchCase = false,
                  bool wholeWord = false)
{
  return findText(text, needle, from, {matchCase, wholeWord}).value_or(none);
}

TEST(Find, BeginsAtTheGivenCharacter)
{
  EXPECT_EQ(place("abcabc", "abc", 0), 0U);
  EXPECT_EQ(place("abcabc", "abc", 1), 3U);
  EXPECT_EQ(place("abcabc", "abc", 4), none);
  EXPECT_EQ(place("abc", "abc", 3), none);
  EXPECT_EQ(place("abc", "abc", 1000), none);
  EXPECT_EQ(place("", "a", 0), none);
  EXPECT_EQ(place("abc", "", 0), none);
}

TEST(Find, Case)
{
  EXPECT_EQ(place("xABC", "abc", 0), 1U);
  EXPECT_EQ(place("xABC abc", "abc", 0, true), 5U);
  EXPECT_EQ(place("ŽÁBA žába", "žába", 1), 5U);
  EXPECT_EQ(place("ŽÁBA žába", "žába", 0, true), 5U);
}

TEST(Find, WholeWords)
{
  EXPECT_EQ(place("abcd abc", "abc", 0, false, true), 5U);
  EXPECT_EQ(place("_abc abc1 1abc žabc abcž abc", "abc", 0, false, true), 25U);
  EXPECT_EQ(place("(abc)", "abc", 0, false, true), 1U);
  EXPECT_EQ(place("abc", "abc", 0, false, true), 0U);
  EXPECT_EQ(place("aaaa aa", "aa", 0, false, true), 5U);
  EXPECT_EQ(place("abcd", "abc", 0, false, true), none);
}

} // namespace
