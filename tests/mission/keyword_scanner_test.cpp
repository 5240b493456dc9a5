#include "mission/keyword_scanner.h"

#include "core/strings.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace tarvelin;

namespace
{

constexpr std::string_view keywords[] = {"DAY", "MONTH", "CLASS MISSION", "CLASS MARKERS", "ADDONS[]", "ADDONS[]={}",
                                         "NAME", "FILLNAME", "{", "}", "AA", "AAA", "ABAB"};

std::uint64_t found(const KeywordScanner& scanner, std::string_view line)
{
  return line.empty() ? 0 : scanner.scan(line).keywords;
}

std::uint64_t bits(std::initializer_list<int> places)
{
  std::uint64_t all = 0;
  for (const int place : places)
    all |= std::uint64_t{1} << place;
  return all;
}

TEST(KeywordScanner, FindsKeywordsAnywhereInAnyCase)
{
  const KeywordScanner scanner(keywords);
  EXPECT_EQ(found(scanner, "text=\"Monday\";"), bits({0}));
  EXPECT_EQ(found(scanner, "\tclass MARKERS"), bits({3}));
  EXPECT_EQ(found(scanner, "class  Markers"), 0u);
  EXPECT_EQ(found(scanner, "addOns[]={};"), bits({4, 5, 8, 9}));
  EXPECT_EQ(found(scanner, "fillName=1"), bits({6, 7}));
  EXPECT_EQ(found(scanner, "mmonthonth day name"), bits({0, 1, 6}));
  EXPECT_EQ(found(scanner, "aaab abab"), bits({10, 11, 12}));
  EXPECT_EQ(found(scanner, "clclass missiass mission"), 0u);
  EXPECT_EQ(found(scanner, "class class mission"), bits({2}));
  EXPECT_EQ(found(scanner, std::string_view("da\0day", 6)), bits({0}));
  EXPECT_EQ(found(scanner, "d\xE1y \xFF\x80"), 0u);
}

TEST(KeywordScanner, LinesEndAtCrLfOrLfOrCr)
{
  const KeywordScanner scanner(keywords);
  std::string_view text = "day\r\n\nmonth\rda\ny";
  std::string lines;
  while (!text.empty())
  {
    const KeywordScanner::Line line = scanner.scan(text);
    lines += std::string(line.text) + ":" + std::to_string(line.keywords) + "|";
    text = line.rest;
  }
  EXPECT_EQ(lines, "day:1|:0|month:2|da:0|y:0|"); // a keyword does not go on in the next line
}

TEST(KeywordScanner, FindsWhatASearchForEachKeywordFinds)
{
  const KeywordScanner scanner(keywords);
  std::mt19937 random(3);
  const std::string letters = "adyAbB{}[]=mnoth clsk iere";
  for (int round = 0; round < 20000; ++round)
  {
    std::string line;
    for (std::size_t i = 0; i < 24; ++i)
      line += random() % 6 == 0 ? std::string(keywords[random() % std::size(keywords)]) : std::string(1, letters[random() % letters.size()]);
    std::uint64_t want = 0;
    for (std::size_t bit = 0; bit < std::size(keywords); ++bit)
      if (upper(line).find(keywords[bit]) != std::string::npos)
        want |= std::uint64_t{1} << bit;
    ASSERT_EQ(found(scanner, line), want) << line;
  }
}

} // namespace
