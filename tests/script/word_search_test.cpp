#include "core/forms/frmload.h"
#include "core/forms/kinds.h"
#include "script/word_search.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace tarvelin;

namespace
{

struct Words : Form
{
  Words() : Form("words", "") { frmload.log.set(""); }
  List list{this, "list", List::Style::sorted};
  List plain{this, "plain"};
};

void fill(List& list, std::initializer_list<const char*> words)
{
  for (const char* const word : words)
    list.add(word);
}

TEST(WordSearch, EveryRowIsFoundInListsOfEverySize)
{
  for (int size = 1; size <= 70; ++size)
  {
    Words words;
    for (int i = 0; i < size; ++i)
      words.list.add(std::string(1, static_cast<char>('A' + i / 10)) + std::to_string(i % 10));
    for (int i = 0; i < size; ++i)
      EXPECT_EQ(BNajdi2(0, size - 1, words.list.text(i), words.list), i) << size << " rows";
    for (const char* const missing : {"", "0", "A", "A55", "D4x", "Z"})
      EXPECT_EQ(BNajdi2(0, size - 1, missing, words.list), -1) << size << " rows, " << missing;
  }
  EXPECT_EQ(frmload.log.text(), "");
}

TEST(WordSearch, AHalfGoesToTheEvenRow)
{
  Words words;
  fill(words.list, {"a1", "a2", "a3", "a4", "b"});
  EXPECT_EQ(BNajdi(0, 1, "a", words.list), 0) << "(0+1)/2";
  EXPECT_EQ(BNajdi(1, 2, "a", words.list), 2) << "(1+2)/2";
  EXPECT_EQ(BNajdi(0, 3, "a", words.list), 2) << "(0+3)/2";
  EXPECT_EQ(BNajdi(0, 4, "a", words.list), 2);
  EXPECT_EQ(BNajdi(2, 3, "a", words.list), 2) << "(2+3)/2";
}

TEST(WordSearch, ARowIsCutToTheNeedleAndTrimmed)
{
  Words words;
  fill(words.list, {"ab cd", "žluť"});
  EXPECT_EQ(BNajdi(0, 1, "AB", words.list), 0);
  EXPECT_EQ(BNajdi(0, 1, "ab ", words.list), -1) << "the row is trimmed, the needle is not";
  EXPECT_EQ(BNajdi(0, 1, "ŽLU", words.list), 1) << "characters, not bytes";
  EXPECT_EQ(BNajdi(0, 1, "ab cd e", words.list), -1);
}

TEST(WordSearch, AnUnsortedListIsSearchedAsItStands)
{
  Words words;
  fill(words.plain, {"b", "a"});
  EXPECT_EQ(BNajdi2(0, 1, "B", words.plain), 0);
  EXPECT_EQ(BNajdi2(0, 1, "A", words.plain), -1) << "it sorts before the first row";
}

TEST(WordSearch, RowsThatAreNotThereAreLogged)
{
  Words words;
  EXPECT_EQ(BNajdi2(0, -1, "a", words.list), -1);
  EXPECT_EQ(BNajdi(0, -1, "a", words.list), -1);
  EXPECT_EQ(frmload.log.text(), "") << "an empty list is no failure";
  words.list.add("a");
  EXPECT_EQ(BNajdi2(7, 9, "a", words.list), -1);
  EXPECT_NE(frmload.log.text().find("Nastala chyba ve funkci BNajdi2: 5, "), std::string::npos);
  EXPECT_NE(frmload.log.text().find("Funkce byla volána s parametry: 7,9,a"), std::string::npos);
  constexpr int most = std::numeric_limits<int>::max();
  EXPECT_EQ(BNajdi(most, most, "a", words.list), -1);
  EXPECT_NE(frmload.log.text().find("Nastala chyba ve funkci BNajdi: 5, "), std::string::npos);
}

} // namespace
