// The language packs that are shipped. A line's place is its only key, so a pack is checked line by line: its form,
// the lines that the program compares with, and, for the Czech one, the captions that the forms are born with.

#include "core/forms/all_forms.h"
#include "core/forms/kinds.h"
#include "core/language_map.h"
#include "core/strings.h"
#include "platform/codepage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tarvelin
{

namespace
{

constexpr std::size_t packLines = 462;
constexpr int firstMessage = 122;
constexpr int firstCaption = 145;

/// A shipped pack and the code page of its language.
struct PackPage
{
  std::string_view file;
  int page;
};

constexpr std::array<PackPage, 6> packPages{{{"Czech.lng", 1250},
                                             {"English.lng", 1252},
                                             {"French.lng", 1252},
                                             {"German.lng", 1252},
                                             {"Italian.lng", 1252},
                                             {"Spanish.lng", 1252}}};

/// Lines that may say the same, because they stand on different forms or are compared with each other.
const std::vector<std::set<int>> mayRepeat{
    {16, 18, 50, 281, 284, 298, 302, 313, 321, 388, 399, 406, 428}, // "Ok"
    {287, 303, 328, 334, 346, 350, 355, 370, 379, 385, 393},        // "Cancel"
    {329, 335, 347, 356, 371, 380, 386},                            // "Next"
    {297, 333, 345, 354, 369, 378, 384},                            // "Back"
    {168, 240, 278, 290, 341, 390},                                 // "Add"
    {169, 241, 251, 279, 342, 362, 391, 418},                       // "Remove", "Delete"
    {170, 242, 280, 291},                                           // "Delete all"
    {243, 419, 461},                                                // "Save"
    {149, 175, 373, 392},                                           // "Open..."
    {121, 147, 151},                                                // "Exit", "End"
    {3, 300},                                                       // the mission picker
    {15, 351},                                                      // the command that adds a chapter
    {17, 353},                                                      // the command that edits links
    {21, 166},                                                      // "Briefing"
    {22, 173},                                                      // "Overview"
    {33, 259},                                                      // west
    {34, 260},                                                      // east
    {65, 288},                                                      // the character profiles
    {101, 228},                                                     // "Weapon"
    {174, 197, 252, 363, 414, 424},                                 // "Name:"
    {176, 374},                                                     // "No picture"
    {177, 375},                                                     // "Picture size"
    {178, 376},                                                     // "Width:"
    {179, 377},                                                     // "Height:"
    {198, 276, 448},                                                // "Text:"
    {199, 275},                                                     // "Type:"
    {200, 224},                                                     // two lines for one label
    {235, 253, 364, 414},                                           // "Title:"
    {59, 106},                                                      // "Sound": a class and a sound in it
    {70, 214},                                                      // "None": glasses and respawn
    {247, 358},                                                     // the sound panel and its campaign twin
    {248, 359},
    {249, 360},
    {250, 361},
    {254, 365},
    {255, 366},
    {256, 367},
    {257, 368},
    {261, 459}, // "Add-ons"
    {411, 415}, // "Path:"
    {412, 416}, // "Parameters:"
    {445, 451}, // "Text"
    {450, 452}, // "Alpha:"
};

/// Lines that may be a word and a number: the six endings.
constexpr int firstEnding = 37;
constexpr int lastEnding = 42;

/// A pack as it lies on the disk and as the program reads it.
struct Pack
{
  std::string name;
  int page = 0;
  std::string bytes;
  std::vector<std::string> lines; ///< without their CR LF, in the pack's code page
  std::vector<std::string> texts; ///< the lines as the reader has them

  /// Text of line `number`, counted from 1.
  const std::string& line(int number) const { return texts.at(static_cast<std::size_t>(number - 1)); }

  std::string at(int number) const { return name + ", line " + std::to_string(number) + ": " + line(number); }
};

std::filesystem::path packFolder()
{
  return std::filesystem::path(TARVELIN_ROOT) / "Bfdata" / "languages" / "Tv";
}

Pack readPack(const std::filesystem::path& path)
{
  Pack pack;
  pack.name = path.filename().string();
  const auto known = [&](const PackPage& entry) { return entry.file == pack.name; };
  const auto* const entry = std::find_if(packPages.begin(), packPages.end(), known);
  EXPECT_NE(entry, packPages.end()) << pack.name << " has no code page here";
  pack.page = entry == packPages.end() ? 1250 : entry->page;

  std::ifstream file(path, std::ios::binary);
  pack.bytes.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  std::size_t start = 0;
  for (std::size_t end = pack.bytes.find("\r\n"); end != std::string::npos; end = pack.bytes.find("\r\n", start))
  {
    pack.lines.push_back(pack.bytes.substr(start, end - start));
    pack.texts.push_back(trim(platform::decode(pack.lines.back(), pack.page)));
    start = end + 2;
  }
  EXPECT_EQ(start, pack.bytes.size()) << pack.name << " does not end in CR LF";
  return pack;
}

std::vector<Pack> readPacks()
{
  std::vector<Pack> packs;
  for (const auto& entry : std::filesystem::directory_iterator(packFolder()))
  {
    if (entry.path().extension() == ".lng")
      packs.push_back(readPack(entry.path()));
  }
  return packs;
}

bool mayBeTheSame(int one, int other)
{
  return std::any_of(mayRepeat.begin(), mayRepeat.end(),
                     [&](const std::set<int>& group) { return group.contains(one) && group.contains(other); });
}

/// True for a word with a number and nothing else, such as "Text 12".
bool isNumberedWord(const std::string& text)
{
  const std::size_t word = text.find_last_not_of("0123456789");
  if (word == std::string::npos)
    return true;
  return word + 1 < text.size() && trim(text.substr(0, word + 1)).find(' ') == std::string::npos;
}

/// True for an ASCII control and for the characters that stand for bytes which the code page leaves undefined.
bool hasControls(const std::string& utf8)
{
  for (std::size_t i = 0; i < utf8.size(); ++i)
  {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if (byte < 0x20 || byte == 0x7F)
      return true;
    if (byte == 0xC2 && i + 1 < utf8.size() && static_cast<unsigned char>(utf8[i + 1]) < 0xA0)
      return true;
  }
  return false;
}

void expectDistinct(const Pack& pack, const std::vector<int>& numbers)
{
  std::set<std::string> texts;
  for (const int number : numbers)
    EXPECT_TRUE(texts.insert(pack.line(number)).second) << pack.at(number);
}

using TargetKey = std::tuple<std::string_view, std::string_view, int>;

TargetKey keyOf(const CaptionLine& line)
{
  return {line.form, line.field, line.index};
}

/// What a target says before any pack is read; trimmed, as the lines are.
std::string captionAtFirst(const CaptionLine& line)
{
  const Form* const form = findForm(line.form);
  EXPECT_NE(form, nullptr) << line.form;
  if (form == nullptr)
    return {};
  if (line.target == CaptionTarget::title)
    return trim(form->caption());
  const bool isElement = line.target == CaptionTarget::element;
  const Field* const field = form->find(line.field, isElement ? line.index : Field::noIndex);
  EXPECT_NE(field, nullptr) << line.form << "." << line.field;
  if (field == nullptr)
    return {};
  if (line.target == CaptionTarget::tab)
    return trim(dynamic_cast<const TabStrip&>(*field).tabCaption(line.index));
  return trim(field->caption());
}

class LanguageFiles : public testing::Test
{
protected:
  void SetUp() override
  {
    m_packs = readPacks();
    for (const PackPage& entry : packPages)
      ASSERT_NE(find(entry.file), nullptr) << entry.file;
    for (const Pack& pack : m_packs)
      ASSERT_EQ(pack.lines.size(), packLines) << pack.name;
  }

  const Pack* find(std::string_view name) const
  {
    const auto found = std::find_if(m_packs.begin(), m_packs.end(), [&](const Pack& p) { return p.name == name; });
    return found == m_packs.end() ? nullptr : &*found;
  }

  std::vector<Pack> m_packs;
};

} // namespace

TEST_F(LanguageFiles, EndEachLineInCrLfAndInNothingElse)
{
  for (const Pack& pack : m_packs)
  {
    for (std::size_t i = 0; i < pack.lines.size(); ++i)
      EXPECT_EQ(pack.lines[i].find_first_of("\r\n"), std::string::npos) << pack.name << ", line " << i + 1;
  }
}

TEST_F(LanguageFiles, HaveNoEmptyLineAndNoBlankAtTheEnds)
{
  for (const Pack& pack : m_packs)
  {
    for (int number = 1; number <= static_cast<int>(packLines); ++number)
    {
      EXPECT_FALSE(pack.line(number).empty()) << pack.at(number);
      EXPECT_EQ(platform::encode(pack.line(number), pack.page), pack.lines[static_cast<std::size_t>(number - 1)])
          << pack.at(number);
    }
  }
}

TEST_F(LanguageFiles, HoldCharactersOfTheirCodePageOnly)
{
  for (const Pack& pack : m_packs)
  {
    for (int number = 1; number <= static_cast<int>(packLines); ++number)
      EXPECT_FALSE(hasControls(pack.line(number))) << pack.at(number);
  }
}

TEST_F(LanguageFiles, EnglishIsAscii)
{
  const std::string& bytes = find("English.lng")->bytes;
  EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x7F; }));
}

TEST_F(LanguageFiles, SayTheSameOnlyWhereItIsMeant)
{
  for (const Pack& pack : m_packs)
  {
    for (int one = 1; one <= static_cast<int>(packLines); ++one)
    {
      for (int other = one + 1; other <= static_cast<int>(packLines); ++other)
      {
        if (!mayBeTheSame(one, other))
        {
          EXPECT_NE(pack.line(one), pack.line(other)) << pack.at(one) << " and line " << other;
        }
      }
    }
  }
}

TEST_F(LanguageFiles, HoldNoFillers)
{
  for (const Pack& pack : m_packs)
  {
    for (int number = 1; number <= static_cast<int>(packLines); ++number)
    {
      if (number < firstEnding || number > lastEnding)
      {
        EXPECT_FALSE(isNumberedWord(pack.line(number))) << pack.at(number);
      }
      EXPECT_EQ(pack.line(number).find("??"), std::string::npos) << pack.at(number);
    }
  }
}

TEST_F(LanguageFiles, NumberTheEndingsInOrder)
{
  for (const Pack& pack : m_packs)
  {
    for (int number = firstEnding; number <= lastEnding; ++number)
    {
      const std::string& text = pack.line(number);
      const std::size_t digits = text.find_first_of("0123456789");
      if (digits != std::string::npos)
      {
        EXPECT_EQ(text.substr(digits), std::to_string(number - firstEnding + 1)) << pack.at(number);
      }
    }
  }
}

TEST_F(LanguageFiles, KeepApartWhatIsCompared)
{
  for (const Pack& pack : m_packs)
  {
    expectDistinct(pack, {10, 12, 49});     // titles of the chooser
    expectDistinct(pack, {15, 16});         // the two captions of the command that adds a chapter
    expectDistinct(pack, {17, 18});         // and of the one that edits links
    expectDistinct(pack, {21, 22, 23, 24}); // what is created
    expectDistinct(pack, {25, 26, 27, 28, 29, 30, 31, 32});
    expectDistinct(pack, {33, 34, 35, 36}); // the sides
    expectDistinct(pack, {37, 38, 39, 40, 41, 42, 43, 44});
    expectDistinct(pack, {45, 46, 47, 48}); // the links
    expectDistinct(pack, {67, 68, 69});
    expectDistinct(pack, {70, 71, 72, 73});
    expectDistinct(pack, {10, 12, 15, 16, 17, 33, 34, 35, 36, 45, 46, 47, 48, 73, 92, 93, 103});
  }
}

TEST_F(LanguageFiles, CommandsOfTheTreeBeginWithTheirFirstState)
{
  for (const Pack& pack : m_packs)
  {
    EXPECT_EQ(pack.line(351), pack.line(15)) << pack.name;
    EXPECT_EQ(pack.line(353), pack.line(17)) << pack.name;
    EXPECT_EQ(pack.line(18), "Ok") << pack.name; // a chapter is renamed only while the command says just this
  }
}

TEST_F(LanguageFiles, TokensAndTagsCanBeFound)
{
  for (const Pack& pack : m_packs)
  {
    for (const int token : {92, 93})
      EXPECT_EQ(pack.line(token).find(','), std::string::npos) << pack.at(token);
    EXPECT_EQ(pack.line(103).find_first_of("<>"), std::string::npos) << pack.at(103);
  }
}

TEST_F(LanguageFiles, BaseNamesOfClassesAreOneWord)
{
  for (const Pack& pack : m_packs)
  {
    for (const int name : {57, 59, 61})
      EXPECT_EQ(pack.line(name).find(' '), std::string::npos) << pack.at(name);
    const std::string& profile = pack.line(88); // the field that it goes to takes Latin letters alone
    EXPECT_TRUE(std::all_of(profile.begin(), profile.end(),
                            [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }))
        << pack.at(88);
  }
}

TEST_F(LanguageFiles, CzechNamesTheSidesThatClearingKnows)
{
  const Pack& czech = *find("Czech.lng");
  EXPECT_EQ(upper(czech.line(33)), "ZÁPAD");
  EXPECT_EQ(upper(czech.line(34)), "VÝCHOD");
  EXPECT_EQ(upper(czech.line(35)), "PARTYZÁNI");
  EXPECT_EQ(upper(czech.line(36)), "CIVILISTÉ");
}

TEST_F(LanguageFiles, CzechCaptionsAreThoseOfTheForms)
{
  renewForms();
  const Pack& czech = *find("Czech.lng");
  ASSERT_EQ(captionLines().size(), packLines + 1 - firstCaption);

  // A later line, or a copy behind it, may go to a target once more: the last one stays.
  std::map<TargetKey, int> lastLine;
  int number = firstCaption;
  for (const CaptionLine& line : captionLines())
  {
    lastLine[keyOf(line)] = number;
    for (const CaptionCopy& copy : captionCopies())
    {
      if (keyOf(copy.from) == keyOf(line) && lastLine.contains(keyOf(copy.to)))
        lastLine[keyOf(copy.to)] = number;
    }
    ++number;
  }

  EXPECT_EQ(findForm("frmrejstrik")->caption(), ""); // the one form that is born without a title
  for (const CaptionLine& line : captionLines())
  {
    if (line.form == "frmrejstrik" && line.target == CaptionTarget::title)
      continue;
    const int last = lastLine.at(keyOf(line));
    EXPECT_EQ(czech.line(last), captionAtFirst(line)) << line.form << "." << line.field << ", line " << last;
  }
}

TEST_F(LanguageFiles, CzechDefaultTextsAreThoseOfTheForms)
{
  renewForms();
  const Pack& czech = *find("Czech.lng");
  const std::vector<std::tuple<int, std::string_view, std::string_view>> texts{
      {53, "frmmain", "txtJmenoMise"},  {53, "frmmain", "onloadintro"},   {55, "frmmain", "txtBrifingJmeno"},
      {55, "frmmain", "txtSpojenci"},   {56, "frmmain", "onloadmission"}, {58, "frmmain", "txtradiojmeno"},
      {60, "frmmain", "txtnazev"},      {62, "frmmain", "txthudbanazev"}, {64, "frmmain", "txtzvuk"},
      {74, "frmcamp1", "txtkampJmeno"},
  };
  for (const auto& [number, form, name] : texts)
  {
    const Field* const field = findForm(form)->find(name);
    ASSERT_NE(field, nullptr) << form << "." << name;
    EXPECT_EQ(czech.line(number), trim(field->caption())) << form << "." << name;
  }
  const std::vector<std::pair<int, std::string_view>> numbered{
      {57, "txtjmenoradia"}, {59, "txtjmenozvuku"}, {61, "txtjmenohudby"}};
  for (const auto& [number, name] : numbered)
    EXPECT_EQ(czech.line(number) + "1", findForm("frmmain")->find(name)->caption()) << name;
}

TEST_F(LanguageFiles, MessagesAreSentences)
{
  for (const Pack& pack : m_packs)
  {
    for (int number = firstMessage; number < firstCaption; ++number)
      EXPECT_NE(pack.line(number).find(' '), std::string::npos) << pack.at(number);
  }
}

} // namespace tarvelin
