// The catalogues that are shipped: their form as files, and that the program finds in them what an author picks.

#include "app/assemble.h"
#include "core/forms/form2.h"
#include "core/forms/form4.h"
#include "core/forms/frmcamp3.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmrejstrik.h"
#include "core/islands.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/strings.h"
#include "platform/codepage.h"
#include "platform/paths.h"
#include "script/catalogue.h"
#include "script/colouring.h"
#include "script/word_classes.h"
#include "script/word_search.h"
#include "tests/lib/class_file.h"
#include "tests/test_home.h"
#include "tools/mission_readme.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelin
{

namespace
{

namespace fs = std::filesystem;

constexpr std::array catalogues{"commands.dat", "edit.dat",    "Faces.dat",    "Speakers.dat", "fonts.dat",
                                "Rscdef.dat",   "islands.dat", "ofpsites.dat", "Readme.txt",   "oggwav/Readme.txt"};

fs::path dataFolder()
{
  return fs::path(TARVELIN_ROOT) / "Bfdata";
}

std::string bytesOf(const std::string& name)
{
  return test::readBytes(dataFolder() / name);
}

/// The lines of a catalogue without their CR LF.
std::vector<std::string> linesOf(const std::string& name)
{
  const std::string bytes = bytesOf(name);
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end = bytes.find("\r\n"); end != std::string::npos; end = bytes.find("\r\n", start))
  {
    lines.push_back(bytes.substr(start, end - start));
    start = end + 2;
  }
  return lines;
}

bool contains(std::string_view text, std::string_view part)
{
  return text.find(part) != std::string_view::npos;
}

/// Each is above the one before it by its upper-case text, so none stands twice.
void expectAscending(const std::vector<std::string>& texts, const std::string& where)
{
  for (std::size_t i = 1; i < texts.size(); ++i)
    EXPECT_LT(upper(texts[i - 1]), upper(texts[i])) << where;
}

void expectDistinct(const std::vector<std::string>& texts, const std::string& where)
{
  std::set<std::string> seen;
  for (const std::string& text : texts)
    EXPECT_TRUE(seen.insert(upper(text)).second) << where << ": " << text;
}

/// The first (`which` 0) or second lines of a catalogue of pairs.
std::vector<std::string> half(const std::vector<std::string>& pairs, std::size_t which)
{
  std::vector<std::string> result;
  for (std::size_t i = which; i < pairs.size(); i += 2)
    result.push_back(pairs[i]);
  return result;
}

/// Commands under one sub-heading.
struct CommandGroup
{
  std::string heading, subheading;
  std::vector<std::string> commands;
};

std::vector<CommandGroup> commandGroups()
{
  std::vector<CommandGroup> groups;
  std::string heading;
  for (const std::string& line : linesOf("commands.dat"))
  {
    if (contains(line, "@"))
      heading = line.substr(line.find('@') + 1);
    else if (contains(line, "#"))
      groups.push_back({heading, line.substr(line.find('#') + 1), {}});
    else if (!groups.empty() && groups.back().heading == heading)
      groups.back().commands.push_back(line);
    else
      ADD_FAILURE() << line << " has no sub-heading";
  }
  return groups;
}

struct CatalogueWord
{
  std::string heading, text;
};

std::vector<CatalogueWord> catalogueWords()
{
  std::vector<CatalogueWord> words;
  std::string heading;
  for (const std::string& line : linesOf("edit.dat"))
  {
    if (contains(line, "@"))
      heading = line.substr(line.find('@') + 1);
    else
      words.push_back({heading, line});
  }
  return words;
}

bool isNameCharacter(char c)
{
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

/// True when `word` stands in the line by itself. A sign may touch what it works on.
bool usesWord(const std::string& line, const std::string& word)
{
  if (!isNameCharacter(word.front()))
    return contains(line, word);
  for (std::size_t at = line.find(word); at != std::string::npos; at = line.find(word, at + 1))
  {
    const bool begins = at == 0 || !isNameCharacter(line[at - 1]);
    const std::size_t end = at + word.size();
    if (begins && (end == line.size() || !isNameCharacter(line[end])))
      return true;
  }
  return false;
}

/// The program with a copy of the shipped data as its own.
class DataInTheProgram : public testing::Test
{
protected:
  DataInTheProgram()
  {
    fs::copy(dataFolder(), m_home / "Bfdata", fs::copy_options::recursive);
    assembleProgram();
    setProgramFolder(platform::toProgram(m_home.path().string()));
  }

  ~DataInTheProgram() override
  {
    setProgramFolder({});
    assembleProgram();
  }

private:
  test::Scratch m_home;
};

int found(const std::string& text, const Rows& list)
{
  return BNajdi2(0, list.count() - 1, text, list);
}

} // namespace

TEST(DataFiles, EndEachLineInCrLfAndInNothingElse)
{
  for (const std::string name : catalogues)
  {
    const std::string bytes = bytesOf(name);
    ASSERT_TRUE(bytes.ends_with("\r\n")) << name;
    for (const std::string& line : linesOf(name))
      EXPECT_FALSE(line.find_first_of("\r\n") != std::string::npos) << name << ": " << line;
  }
}

// The program reads them in the code page of whatever machine it runs on.
TEST(DataFiles, SayTheSameInEveryCodePage)
{
  for (const std::string name : catalogues)
  {
    for (const std::string& line : linesOf(name))
      EXPECT_TRUE(std::ranges::all_of(line, [](char c) { return c >= ' ' && c < 0x7F; })) << name << ": " << line;
  }
}

TEST(DataFiles, HaveNoBlankAtTheEndsOfCatalogueLines)
{
  for (const std::string name : catalogues)
  {
    for (const std::string& line : linesOf(name))
    {
      EXPECT_FALSE(line.ends_with(' ')) << name << ": " << line;
      if (!name.ends_with("Readme.txt") && name != "Rscdef.dat")
      {
        EXPECT_FALSE(line.empty() || line.starts_with(' ')) << name << ": " << line;
      }
    }
  }
}

TEST(CommandCatalogue, HasCommandsUnderEveryHeading)
{
  std::set<std::string> filled;
  for (const CommandGroup& group : commandGroups())
  {
    EXPECT_FALSE(group.heading.empty()) << group.subheading;
    EXPECT_FALSE(group.subheading.empty()) << group.heading;
    EXPECT_FALSE(group.commands.empty()) << group.heading << " " << group.subheading;
    filled.insert(group.heading);
  }
  for (const std::string& line : linesOf("commands.dat"))
  {
    if (contains(line, "@"))
    {
      EXPECT_TRUE(filled.contains(line.substr(line.find('@') + 1))) << line;
    }
  }
}

TEST(CommandCatalogue, NamesNoNodeTwice)
{
  std::vector<std::string> keys;
  for (const std::string& line : linesOf("commands.dat"))
  {
    if (contains(line, "@"))
      keys.push_back(line.substr(line.find('@') + 1));
  }
  for (const CommandGroup& group : commandGroups())
  {
    keys.push_back(group.heading + group.subheading);
    for (const std::string& command : group.commands)
      keys.push_back(group.heading + group.subheading + command);
  }
  expectDistinct(keys, "commands.dat");
}

TEST(CommandCatalogue, IsAlphabeticalInsideAGroup)
{
  for (const CommandGroup& group : commandGroups())
    expectAscending(group.commands, group.heading + ", " + group.subheading);
}

TEST(CommandCatalogue, ShowsEveryCommandAndOperator)
{
  std::vector<std::string> commands;
  for (const CommandGroup& group : commandGroups())
    commands.insert(commands.end(), group.commands.begin(), group.commands.end());
  for (const CatalogueWord& word : catalogueWords())
  {
    if (word.heading != "PRIKAZY" && word.heading != "OPERATORY")
      continue;
    EXPECT_TRUE(std::ranges::any_of(commands, [&](const std::string& line) { return usesWord(line, word.text); }))
        << word.text;
  }
}

TEST(WordCatalogue, HasTheClassesInTheirOrder)
{
  std::vector<std::string> headings;
  for (const std::string& line : linesOf("edit.dat"))
  {
    if (contains(line, "@"))
      headings.push_back(line);
  }
  std::vector<std::string> expected;
  for (const WordClass& entry : wordClasses)
    expected.push_back("@" + std::string(entry.heading));
  EXPECT_EQ(headings, expected);
  EXPECT_EQ(linesOf("edit.dat").front(), expected.front());
}

TEST(WordCatalogue, IsAlphabeticalInsideAClass)
{
  for (const std::string_view heading : {"ZBRANE", "OPERATORY", "PRIKAZY", "ACTIONKON", "ANIMACE"})
  {
    std::vector<std::string> words;
    for (const CatalogueWord& word : catalogueWords())
    {
      if (word.heading == heading)
        words.push_back(word.text);
    }
    EXPECT_FALSE(words.empty()) << heading;
    expectAscending(words, std::string(heading));
  }
}

TEST(WordCatalogue, HoldsEachWordOnce)
{
  std::vector<std::string> words;
  for (const CatalogueWord& word : catalogueWords())
    words.push_back(word.text);
  expectDistinct(words, "edit.dat");
}

// A blank ends a word of a script and a ";" begins a comment, so such words would never be looked up. Names of actions
// have blanks all the same: they are there for the index.
TEST(WordCatalogue, HoldsWordsThatTheEditorLooksUp)
{
  for (const CatalogueWord& word : catalogueWords())
    EXPECT_EQ(word.text.find_first_of(word.heading == "ACTIONKON" ? ";" : " ;"), std::string::npos) << word.text;
}

TEST_F(DataInTheProgram, TheTreeShowsEveryCommand)
{
  NactiPrikazy(programFile("\\Bfdata\\commands.dat"));
  EXPECT_EQ(frmmain.prikazy.count(), static_cast<int>(linesOf("commands.dat").size()));
  for (const CommandGroup& group : commandGroups())
  {
    for (const std::string& command : group.commands)
    {
      const Tree::Node* const node = frmmain.prikazy.find(group.heading + group.subheading + command);
      ASSERT_NE(node, nullptr) << command;
      EXPECT_EQ(node->text, command);
      EXPECT_EQ(node->parent->text, group.subheading);
    }
  }
}

TEST_F(DataInTheProgram, EveryWordOfScriptsIsFoundInAnyCase)
{
  const List& words = frmrejstrik.seznam;
  NactiDruhePrikazy(programFile("\\Bfdata\\edit.dat"));
  EXPECT_EQ(words.count(), static_cast<int>(catalogueWords().size()));
  for (const CatalogueWord& word : catalogueWords())
  {
    const int row = found(upper(word.text), words);
    ASSERT_GE(row, 0) << word.text;
    EXPECT_EQ(words.text(row), word.text);
    ASSERT_NE(wordClass(words.tag(row)), nullptr) << word.text;
    EXPECT_EQ(wordClass(words.tag(row))->heading, word.heading) << word.text;
  }
}

// An inserted line is coloured at once: its operands must not turn into something else.
TEST_F(DataInTheProgram, CommandsKeepTheirSpellingInTheEditor)
{
  NactiDruhePrikazy(programFile("\\Bfdata\\edit.dat"));
  for (const CommandGroup& group : commandGroups())
  {
    for (const std::string& command : group.commands)
    {
      frmmain.skript.set(command);
      ObarviSkript(frmmain.skript);
      EXPECT_EQ(frmmain.skript.text(), command);
    }
  }
}

TEST(Faces, AreDistinctPairs)
{
  const std::vector<std::string> lines = linesOf("Faces.dat");
  EXPECT_EQ(lines.size() % 2, 0U);
  expectDistinct(half(lines, 0), "codes");
  expectDistinct(half(lines, 1), "names");
  for (const std::string& code : half(lines, 0))
    EXPECT_TRUE(std::ranges::all_of(code, isNameCharacter)) << code;
}

// Only the first 53 can be selected again.
TEST(Faces, BeginWithThoseThatEveryGameHas)
{
  const std::vector<std::string> codes = half(linesOf("Faces.dat"), 0);
  ASSERT_GE(codes.size(), 53U);
  EXPECT_EQ(codes[0], "Default");
  for (std::size_t i = 1; i <= 52; ++i)
    EXPECT_EQ(codes[i], "Face" + std::to_string(i));
}

// The row of a face from a file is told by its words alone.
TEST(Faces, AreNotCalledLikeTheCustomFaceOfAnyLanguage)
{
  const std::vector<std::string> names = half(linesOf("Faces.dat"), 1);
  constexpr std::size_t customFaceLine = 73;
  int packs = 0;
  for (const auto& pack : fs::directory_iterator(dataFolder() / "languages" / "Tv"))
  {
    const std::string file = "languages/Tv/" + pack.path().filename().string();
    EXPECT_EQ(std::ranges::find(names, linesOf(file).at(customFaceLine - 1)), names.end()) << file;
    ++packs;
  }
  EXPECT_GT(packs, 0);
}

TEST_F(DataInTheProgram, EveryFaceHasItsCode)
{
  const std::vector<std::string> lines = linesOf("Faces.dat");
  Form2.load();
  const int faces = static_cast<int>(lines.size() / 2);
  ASSERT_EQ(Form2.ksichty.count(), faces + 1); // behind them the face from a file
  for (int i = 0; i < faces; ++i)
  {
    EXPECT_EQ(shared.KodyObliceju.at(i), lines[static_cast<std::size_t>(2 * i)]);
    EXPECT_EQ(Form2.ksichty.text(i), lines[static_cast<std::size_t>(2 * i + 1)]);
  }
}

TEST_F(DataInTheProgram, EveryFaceHasItsPicture)
{
  const std::vector<std::string> codes = half(linesOf("Faces.dat"), 0);
  std::set<std::string> drawings;
  Form2.load();
  Form2.cmdadd.click();
  for (std::size_t i = 0; i < codes.size(); ++i)
  {
    Form2.Image1.clear();
    Form2.ksichty.select(static_cast<int>(i));
    EXPECT_EQ(Form2.Image1.path(), programFile("\\Bfdata\\dtface\\" + codes[i] + ".jpg"));
    EXPECT_EQ(Form2.Image1.width(), 128) << codes[i];
    EXPECT_EQ(Form2.Image1.height(), 128) << codes[i];
    EXPECT_TRUE(drawings.insert(bytesOf("dtface/" + codes[i] + ".jpg")).second) << codes[i] << " looks like another";
  }
  for (const auto& entry : fs::directory_iterator(dataFolder() / "dtface"))
    EXPECT_NE(std::ranges::find(codes, entry.path().stem().string()), codes.end()) << entry.path().filename();
}

TEST_F(DataInTheProgram, EveryMapCanBeShown)
{
  std::set<std::string> drawings;
  for (const auto& entry : fs::directory_iterator(dataFolder() / "pic"))
  {
    const std::string name = entry.path().filename().string();
    frmmain.Ostrovy.clear();
    frmmain.Ostrovy.load(programFile("\\bfdata\\pic\\" + name));
    EXPECT_GE(frmmain.Ostrovy.width(), 260) << name; // as large as its place
    EXPECT_GT(frmmain.Ostrovy.height(), frmmain.Ostrovy.width()) << name;
    EXPECT_TRUE(drawings.insert(bytesOf("pic/" + name)).second) << name << " looks like another";
  }
  EXPECT_GE(drawings.size(), 12U);
}

// They are copied to each user at the first start.
TEST(Pictures, AreSmallTogether)
{
  std::uintmax_t bytes = 0;
  for (const char* const folder : {"dtface", "pic"})
  {
    for (const auto& entry : fs::directory_iterator(dataFolder() / folder))
      bytes += entry.file_size();
  }
  EXPECT_LT(bytes, 2'000'000U);
}

TEST(Speakers, AreSortedPairs)
{
  const std::vector<std::string> lines = linesOf("Speakers.dat");
  EXPECT_EQ(lines.size() % 2, 0U);
  expectAscending(half(lines, 1), "Speakers.dat");
}

TEST_F(DataInTheProgram, EverySpeakerIsFound)
{
  const std::vector<std::string> voices = half(linesOf("Speakers.dat"), 1);
  Form2.load();
  ASSERT_EQ(Form2.hlasy.count(), static_cast<int>(voices.size()));
  for (std::size_t i = 0; i < voices.size(); ++i)
    EXPECT_EQ(found(voices[i], Form2.hlasy), static_cast<int>(i)) << voices[i];
}

TEST(Fonts, AreSorted)
{
  expectAscending(linesOf("fonts.dat"), "fonts.dat");
}

// The titles look a font up by its beginning, so one that begins another must not be hidden by it. With SteelfishB128
// in the list the middle of its rest would be SteelfishB64CE, and SteelfishB64 could not be chosen to stay.
TEST_F(DataInTheProgram, EveryFontIsFound)
{
  const std::vector<std::string> fonts = linesOf("fonts.dat");
  frmdalsinast.load();
  ASSERT_EQ(frmdalsinast.pisma.count(), static_cast<int>(fonts.size()));
  for (std::size_t i = 0; i < fonts.size(); ++i)
  {
    EXPECT_EQ(found(fonts[i], frmdalsinast.pisma), static_cast<int>(i)) << fonts[i];
    EXPECT_EQ(BNajdi(0, frmdalsinast.pisma.count() - 1, fonts[i], frmdalsinast.pisma), static_cast<int>(i)) << fonts[i];
  }
}

TEST(TitleBases, AreWellFormedClasses)
{
  const test::ClassFile file(bytesOf("Rscdef.dat"));
  EXPECT_EQ(test::told(file.refusals()), "");
}

// The classes are ended as strictly as in the game's own files, and no value leans on the line's end.
TEST(TitleBases, LeaveNothingForTheGameToForgive)
{
  for (const std::string& line : linesOf("Rscdef.dat"))
  {
    if (contains(line, "="))
    {
      EXPECT_TRUE(line.ends_with(";")) << line;
    }
  }
}

// Without any of these the game refuses a control that leaves it out.
TEST(TitleBases, HaveTheMembersThatTheGameAsksFor)
{
  const test::ClassFile file(bytesOf("Rscdef.dat"));
  for (const auto& [name, style] : std::map<std::string, std::string>{{"RSCTEXT", "0"}, {"RSCPICTURE", "48"}})
  {
    ASSERT_TRUE(file.root().classes.contains(name));
    const std::map<std::string, std::string>& members = file.root().classes.at(name)->members;
    for (const char* const member :
         {"TYPE", "IDC", "STYLE", "X", "Y", "W", "H", "TEXT", "FONT", "SIZEEX", "LINESPACING"})
      EXPECT_TRUE(members.contains(member)) << name << " " << member;
    EXPECT_EQ(members.at("TYPE"), "0");
    EXPECT_EQ(members.at("IDC"), "-1");
    EXPECT_EQ(members.at("STYLE"), style);
    for (const char* const colour : {"COLORBACKGROUND[]", "COLORTEXT[]"})
    {
      ASSERT_TRUE(members.contains(colour)) << name << " " << colour;
      EXPECT_EQ(std::ranges::count(members.at(colour), ','), 3) << name << " " << colour;
    }
    const std::vector<std::string> fonts = linesOf("fonts.dat");
    const std::string& font = members.at("FONT");
    EXPECT_NE(std::ranges::find(fonts, font), fonts.end()) << font;
  }
}

TEST_F(DataInTheProgram, EveryIslandHasASuffix)
{
  const std::vector<std::string> lines = linesOf("islands.dat");
  EXPECT_EQ(lines.size() % 2, 0U);
  expectDistinct(half(lines, 0), "islands");
  expectDistinct(half(lines, 1), "suffixes");
  NactiOstrovy(programFile("\\Bfdata\\islands.dat"));
  ASSERT_EQ(frmcamp3.penaltyland.count(), static_cast<int>(lines.size() / 2));
  for (int i = 0; i < frmcamp3.penaltyland.count(); ++i)
  {
    EXPECT_EQ(frmcamp3.penaltyland.text(i), lines[static_cast<std::size_t>(2 * i)]);
    EXPECT_EQ(shared.OstrovyKoncovky.at(i), lines[static_cast<std::size_t>(2 * i + 1)]);
  }
}

TEST_F(DataInTheProgram, TheLinksAreAddresses)
{
  const std::vector<std::string> sites = linesOf("ofpsites.dat");
  expectDistinct(sites, "ofpsites.dat");
  Form4.load();
  ASSERT_EQ(Form4.List1.count(), static_cast<int>(sites.size()));
  for (int i = 0; i < Form4.List1.count(); ++i)
  {
    const std::string& address = Form4.List1.text(i);
    EXPECT_TRUE(address.starts_with("http://") && address.ends_with("/") && !contains(address, " ")) << address;
  }
}

TEST(Readme, HasTheFourTagsAndNoOther)
{
  std::string text = bytesOf("Readme.txt");
  for (const char* const tag : {"<MISSION>", "<ADDONS>", "<NAME>", "<MAIL>"})
  {
    EXPECT_TRUE(contains(text, tag)) << tag;
    text = replaced(text, tag, "");
  }
  EXPECT_EQ(text.find_first_of("<>"), std::string::npos);
}

TEST_F(DataInTheProgram, TheReadmeIsFilled)
{
  frmmain.txtJmenoMise.set("Night raid");
  shared.Nastaveni.UzivatelJmeno = "Eva Author";
  shared.Nastaveni.UzivatelMail = "eva@somewhere";
  frmdalsinast.addony.clear();
  frmdalsinast.addony.add("header");
  frmdalsinast.addony.add("hunter", 1);
  NactiReadme(programFile("\\Bfdata\\Readme.txt"), frmdalsinast.txtdokument);
  const std::string text = frmdalsinast.txtdokument.text();
  for (const char* const part : {" Night raid\r\n", "    Eva Author\r\n", "  eva@somewhere\r\n", "\r\nhunter\r\n"})
    EXPECT_TRUE(contains(text, part)) << part;
  EXPECT_FALSE(contains(text, "<"));
}

// German is read on machines of both code pages.
TEST(LanguageOfBothPages, GermanUsesTheLettersThatTheyShare)
{
  const std::string bytes = bytesOf("languages/Tv/German.lng");
  ASSERT_FALSE(bytes.empty());
  EXPECT_EQ(platform::decode(bytes, 1250), platform::decode(bytes, 1252));
}

} // namespace tarvelin
