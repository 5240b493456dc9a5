// The table that tells translators what each line of a pack is for: it is whole, it names the fields that the lines go
// to, and the shipped packs keep what it asks of them.

#include "core/forms/all_forms.h"
#include "core/forms/kinds.h"
#include "core/language_map.h"
#include "core/strings.h"
#include "platform/codepage.h"
#include "tests/test_home.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvelin
{

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t packLines = 462;
constexpr std::size_t texts = 121;
constexpr std::size_t firstCaption = 145;

/// A row of the table.
struct LineRow
{
  std::string number, what, where, purpose;
};

std::vector<LineRow> tableRows()
{
  const std::string table = test::readBytes(fs::path(TARVELIN_ROOT) / "docs" / "language-lines.md");
  std::vector<LineRow> rows;
  std::size_t start = 0;
  for (std::size_t end = table.find('\n'); end != std::string::npos; end = table.find('\n', start))
  {
    const std::string line = table.substr(start, end - start);
    start = end + 1;
    if (line.size() < 3 || !line.starts_with("| ") || line[2] < '0' || line[2] > '9')
      continue;
    std::vector<std::string> cells;
    for (std::size_t from = 1; from < line.size();)
    {
      const std::size_t to = std::min(line.find('|', from), line.size());
      cells.push_back(trim(line.substr(from, to - from)));
      from = to + 1;
    }
    cells.resize(4);
    rows.push_back({cells[0], cells[1], cells[2], cells[3]});
  }
  return rows;
}

/// The fields of a caption line as the table names them.
std::string placeOf(const CaptionLine& line)
{
  const std::string form(line.form);
  const std::string field = form + "." + std::string(line.field);
  switch (line.target)
  {
  case CaptionTarget::title: return "`" + form + "`";
  case CaptionTarget::field: return "`" + field + "`";
  case CaptionTarget::element: return "`" + field + "(" + std::to_string(line.index) + ")`";
  case CaptionTarget::tab: return "`" + field + "`, tab " + std::to_string(line.index + 1);
  }
  return {};
}

std::string wordFor(const CaptionLine& line)
{
  if (line.target == CaptionTarget::title)
    return "title";
  if (line.target == CaptionTarget::tab)
    return "tab";
  const bool isElement = line.target == CaptionTarget::element;
  const Field* const field = findForm(line.form)->find(line.field, isElement ? line.index : Field::noIndex);
  if (field == nullptr)
    return {};
  const std::map<Kind, std::string> words{{Kind::label, "label"},     {Kind::command, "button"},
                                          {Kind::check, "check box"}, {Kind::option, "option"},
                                          {Kind::group, "frame"},     {Kind::menu, "menu"}};
  const auto found = words.find(field->kind());
  return found == words.end() ? std::string(kindName(field->kind())) : found->second;
}

struct Pack
{
  std::string name;
  std::vector<std::string> lines;

  const std::string& line(std::size_t number) const { return lines.at(number - 1); }
};

std::vector<Pack> packs()
{
  std::vector<Pack> result;
  for (const auto& entry : fs::directory_iterator(fs::path(TARVELIN_ROOT) / "Bfdata" / "languages" / "Tv"))
  {
    Pack pack{entry.path().filename().string(), {}};
    const std::string text = platform::decode(test::readBytes(entry.path()), pack.name == "Czech.lng" ? 1250 : 1252);
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start))
    {
      pack.lines.push_back(text.substr(start, end - start));
      start = end + 2;
    }
    result.push_back(pack);
  }
  return result;
}

class LanguageLines : public testing::Test
{
protected:
  void SetUp() override
  {
    renewForms();
    ASSERT_EQ(rows.size(), packLines);
    ASSERT_EQ(all.size(), 6U);
    for (const Pack& pack : all)
      ASSERT_EQ(pack.lines.size(), packLines) << pack.name;
  }

  const std::vector<LineRow> rows = tableRows();
  const std::vector<Pack> all = packs();
};

} // namespace

TEST_F(LanguageLines, StandInTheirOrderWithAllTheirCells)
{
  for (std::size_t i = 0; i < rows.size(); ++i)
  {
    EXPECT_EQ(rows[i].number, std::to_string(i + 1));
    for (const std::string* const cell : {&rows[i].what, &rows[i].where, &rows[i].purpose})
      EXPECT_FALSE(cell->empty()) << "line " << i + 1;
  }
}

TEST_F(LanguageLines, OfCaptionsNameTheFieldAndItsKind)
{
  for (std::size_t i = 0; i < captionLines().size(); ++i)
  {
    const LineRow& row = rows.at(firstCaption - 1 + i);
    EXPECT_EQ(row.where, placeOf(captionLines()[i])) << "line " << row.number;
    EXPECT_EQ(row.what, wordFor(captionLines()[i])) << "line " << row.number;
  }
}

TEST_F(LanguageLines, OfTextsAreOfTheKindsThatTheTableExplains)
{
  const std::set<std::string> ofTexts{"title", "label",  "button", "text",     "item",
                                      "word",  "prefix", "spare",  "question", "progress"};
  for (std::size_t number = 1; number < firstCaption; ++number)
  {
    const std::string& what = rows[number - 1].what;
    EXPECT_TRUE(number > texts ? what == "message" || what == "question" : ofTexts.contains(what)) << "line " << number;
  }
}

TEST_F(LanguageLines, OfTextsNameFieldsThatThereAre)
{
  for (std::size_t number = 1; number < firstCaption; ++number)
  {
    std::string_view where = rows[number - 1].where;
    for (std::size_t open = where.find('`'); open != std::string_view::npos; open = where.find('`'))
    {
      const std::size_t close = where.find('`', open + 1);
      const std::string name(where.substr(open + 1, close - open - 1));
      const std::size_t dot = name.find('.');
      const Form* const form = findForm(name.substr(0, dot));
      ASSERT_NE(form, nullptr) << name;
      if (dot != std::string::npos)
      {
        EXPECT_NE(form->find(name.substr(dot + 1)), nullptr) << name;
      }
      where.remove_prefix(close + 1);
    }
  }
}

TEST_F(LanguageLines, ThatAreComparedAreThoseThatTheProgramComparesAndDiffer)
{
  std::set<std::size_t> compared;
  for (std::size_t number = 1; number < firstCaption; ++number)
  {
    if (rows[number - 1].purpose.find("compared") != std::string::npos)
      compared.insert(number);
  }
  EXPECT_EQ(compared, (std::set<std::size_t>{10, 12, 15, 16, 17, 33, 34, 35, 36, 45, 46, 47, 48, 73, 92, 93, 103}));
  for (const Pack& pack : all)
  {
    std::set<std::string> said;
    for (const std::size_t number : compared)
      EXPECT_TRUE(said.insert(pack.line(number)).second) << pack.name << ", line " << number;
  }
}

TEST_F(LanguageLines, ThatAreTheSameAsOthersSayTheSame)
{
  int found = 0;
  for (std::size_t number = 1; number <= packLines; ++number)
  {
    constexpr std::string_view mark = "the same as line ";
    const std::string& purpose = rows[number - 1].purpose;
    const std::size_t at = purpose.find(mark);
    if (at == std::string::npos)
      continue;
    const std::size_t other = std::stoul(purpose.substr(at + mark.size()));
    for (const Pack& pack : all)
      EXPECT_EQ(pack.line(number), pack.line(other)) << pack.name << ", line " << number;
    ++found;
  }
  EXPECT_EQ(found, 4); // the two commands of the tree, told from both ends
}

TEST_F(LanguageLines, ThatAreWordsHaveNoBlank)
{
  for (const Pack& pack : all)
  {
    for (std::size_t number = 1; number <= packLines; ++number)
    {
      if (rows[number - 1].what == "word")
      {
        EXPECT_EQ(pack.line(number).find(' '), std::string::npos) << pack.name << ", line " << number;
      }
    }
  }
}

// A question without its mark, or another line with one, was put in the wrong place. A request may end in a colon.
TEST_F(LanguageLines, ThatAreQuestionsAskSomething)
{
  for (const Pack& pack : all)
  {
    for (std::size_t number = 1; number < firstCaption; ++number)
    {
      const std::string& line = pack.line(number);
      const std::string& what = rows[number - 1].what;
      if (what == "question")
      {
        EXPECT_TRUE(line.ends_with('?') || line.ends_with(':')) << pack.name << ", line " << number << ": " << line;
      }
      else
      {
        EXPECT_FALSE(line.ends_with('?')) << pack.name << ", line " << number << ": " << line;
      }
    }
  }
}

TEST_F(LanguageLines, OfOneMenuAndOfOneStripOfTabsDiffer)
{
  // The lines below each of the menus; the menus themselves stand side by side.
  const std::vector<std::vector<std::size_t>> together{{148, 152, 157, 162}, {149, 150, 151},
                                                       {153, 154, 155, 156}, {158, 159, 160, 161},
                                                       {163, 164, 165},      {166, 173, 180, 181, 201, 227, 245, 258},
                                                       {259, 260, 261, 262}, {432, 438, 440, 457, 459}};
  std::set<std::size_t> seen;
  for (const Pack& pack : all)
  {
    for (const std::vector<std::size_t>& group : together)
    {
      std::set<std::string> captions, mnemonics;
      for (const std::size_t number : group)
      {
        const std::string& line = pack.line(number);
        EXPECT_TRUE(captions.insert(upper(line)).second) << pack.name << ", line " << number;
        const std::size_t mark = line.find('&');
        if (mark != std::string::npos)
        {
          EXPECT_TRUE(mnemonics.insert(upper(mid(line.substr(mark + 1), 1, 1))).second) << pack.name << ", " << line;
        }
        seen.insert(number);
      }
    }
  }
  for (std::size_t number = 1; number <= packLines; ++number)
  {
    const std::string& what = rows[number - 1].what;
    EXPECT_EQ(seen.contains(number), what == "menu" || what == "tab") << "line " << number;
  }
}

} // namespace tarvelin
