#include "platform/fold.h"
#include "platform/utf8.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace tarvelin::platform
{

namespace
{

struct Pair
{
  const char* capitals;
  const char* smalls;
};

constexpr Pair pairs[] = {
    {"DESCRIPTION.EXT", "description.ext"},
    {"PŘÍLIŠ ŽLUŤOUČKÝ KŮŇ ÚPĚL ĎÁBELSKÉ ÓDY", "příliš žluťoučký kůň úpěl ďábelské ódy"},
    {"ŁĄĘŻŹĆŃÓŚ", "łąężźćńóś"},
    {"ŐŰÖÜ ĽĹŔÂĂȘȚ ÆØÅÑŸÞ", "őűöü ľĺŕâășț æøåñÿþ"},
    {"ĞŞ ĀČĒĢĪĶĻŅŠŪŽ ĖŲ", "ğş āčēģīķļņšūž ėų"},
    {"ΆΈΉΊΌΎΏ ΑΒΓΔΩΪΫΣ", "άέήίόύώ αβγδωϊϋσ"},
    {"ЀЁЂЇЏ АБВЯ ҐӁҒԮ Ӏ", "ѐёђїџ абвя ґӂғԯ ӏ"},
};

TEST(Fold, MakesSmallLetters)
{
  for (const Pair& pair : pairs)
  {
    EXPECT_EQ(folded(pair.capitals), pair.smalls);
    EXPECT_EQ(folded(pair.smalls), pair.smalls);
    EXPECT_TRUE(equalIgnoringCase(pair.capitals, pair.smalls));
  }
}

std::string inCapitals(std::string_view text)
{
  std::string result;
  for (std::size_t at = 0; at < text.size();)
    appendCharacter(result, capital(nextCharacter(text, at)));
  return result;
}

TEST(Fold, MakesCapitals)
{
  for (const Pair& pair : pairs)
  {
    EXPECT_EQ(inCapitals(pair.smalls), pair.capitals);
    EXPECT_EQ(inCapitals(pair.capitals), pair.capitals);
  }
  EXPECT_EQ(inCapitals("0123 [\\]^_`{|}~@ ×÷ß 漢😀"), "0123 [\\]^_`{|}~@ ×÷ß 漢😀");
  EXPECT_EQ(capital(U'ς'), U'Σ');
  EXPECT_EQ(capital(U'ſ'), U'S');
}

TEST(Fold, LeavesWhatIsNoCapital)
{
  for (const char* text : {"", "0123 [\\]^_`{|}~@", "×÷ß", "ĸŉı", "漢字😀", "\xFF\x80 a\xC5"})
    EXPECT_EQ(folded(text), text);
}

TEST(Fold, FinalSigmaAndLongSAreTheCommonLetters)
{
  EXPECT_TRUE(equalIgnoringCase("ΟΔΟΣ", "οδος"));
  EXPECT_EQ(fold(U'ſ'), U's');
}

TEST(Fold, TellsDifferentNamesApart)
{
  EXPECT_FALSE(equalIgnoringCase("a", "ab"));
  EXPECT_FALSE(equalIgnoringCase("ab", "a"));
  EXPECT_FALSE(equalIgnoringCase("č", "c"));
  EXPECT_FALSE(equalIgnoringCase("@", "`"));
  EXPECT_FALSE(equalIgnoringCase("\xFF", "\xFE"));
  EXPECT_FALSE(equalIgnoringCase("\xE8", "è")); // a byte that is no UTF-8 is not the letter of its number
}

TEST(Fold, OrdersIgnoringCase)
{
  std::vector<std::string> names = {"b", "C", "a", "č", "_x", "A", "B2", "B10", "Ž", "ž", "", "aa", "\xFF"};
  std::ranges::sort(names, lessIgnoringCase);
  const std::vector<std::string> expected = {"", "_x", "A", "a", "aa", "b", "B10", "B2", "C", "č", "Ž", "ž", "\xFF"};
  EXPECT_EQ(names, expected);
}

TEST(Fold, NothingIsLessThanItself)
{
  for (const char* name : {"", "a", "Kůň", "\xFF"})
    EXPECT_FALSE(lessIgnoringCase(name, name));
}

} // namespace

} // namespace tarvelin::platform
