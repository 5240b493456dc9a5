#include "core/strings.h"
#include "mission/keyword_scanner.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace tarvelin;

namespace
{

constexpr std::string_view keywords[] = {
    "DAY", "MONTH", "CLASS MISSION", "CLASS MARKERS", "ADDONS[]", "ADDONS[]={}", "NAME", "FILLNAME", "{",
    "}",   "AA",    "AAA",           "ABAB"};

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
      line += random() % 6 == 0 ? std::string(keywords[random() % std::size(keywords)])
                                : std::string(1, letters[random() % letters.size()]);
    std::uint64_t want = 0;
    for (std::size_t bit = 0; bit < std::size(keywords); ++bit)
      if (upper(line).find(keywords[bit]) != std::string::npos)
        want |= std::uint64_t{1} << bit;
    ASSERT_EQ(found(scanner, line), want) << line;
  }
}

/// The lines that a finder finds, by their starts.
std::vector<std::size_t> linesFound(std::string_view text)
{
  const KeywordScanner scanner(keywords);
  KeywordFinder finder(keywords, text);
  std::vector<std::size_t> starts;
  for (std::size_t from = 0; (from = finder.lineFrom(from)) < text.size();)
  {
    starts.push_back(from);
    from = text.size() - scanner.scan(text.substr(from)).rest.size();
  }
  return starts;
}

std::vector<std::size_t> linesWalked(std::string_view text)
{
  const KeywordScanner scanner(keywords);
  std::vector<std::size_t> starts;
  for (std::string_view rest = text; !rest.empty();)
  {
    const KeywordScanner::Line line = scanner.scan(rest);
    if (line.keywords != 0)
      starts.push_back(text.size() - rest.size());
    rest = line.rest;
  }
  return starts;
}

TEST(KeywordFinder, FindsTheLinesThatAWalkFinds)
{
  std::mt19937 random(9);
  for (const std::size_t size : {0u, 1u, 50u, 1000u, 65536u, 65537u, 200000u, 300000u})
    for (const unsigned rarity : {1u, 30u, 3000u})
    {
      std::string text;
      while (text.size() < size)
      {
        if (random() % rarity == 0)
          text += keywords[random() % std::size(keywords)];
        text += random() % 40 == 0 ? "\r\n" : random() % 300 == 0 ? "\r" : std::string(1, "xyzdanm=0"[random() % 9]);
      }
      text.resize(size);
      ASSERT_EQ(linesFound(text), linesWalked(text)) << size << " bytes, one in " << rarity;
    }
}

TEST(KeywordFinder, FindsAKeywordAtEveryPlace)
{
  std::string text(70000, '.');
  for (std::size_t at = 16300; at < 16500; ++at) // around the seam of two machines
  {
    text.replace(at, 13, "class MISSION");
    ASSERT_EQ(linesFound(text).size(), 1u) << at;
    text.replace(at, 13, ".............");
  }
  for (std::size_t at = 65500; at < 65560; ++at) // around the seam of two windows
  {
    text.replace(at, 13, "class MISSION");
    ASSERT_EQ(linesFound(text).size(), 1u) << at;
    text.replace(at, 13, ".............");
  }
}

} // namespace
