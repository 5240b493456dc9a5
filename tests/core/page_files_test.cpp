// The pages that are shipped: the help and the tips. They are read as a browser reads them: declared character set,
// title, links and pictures; what they print in bold are the captions that the window shows in the page's language.

#include "core/strings.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "tests/test_home.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelin
{

namespace
{

namespace fs = std::filesystem;

constexpr int tipsPerLanguage = 15;
constexpr std::size_t longestTip = 450; // characters that the window of the tips shows without scrolling
constexpr std::uintmax_t allPictures = 1'500'000;
constexpr unsigned widestPicture = 640;

/// A language pack, its code page and the folder of the help in its language (empty for none).
struct Language
{
  std::string_view pack;
  int page;
  std::string_view help;
};

constexpr std::array<Language, 6> languages{{{"Czech", 1250, "cs"},
                                             {"English", 1252, "en"},
                                             {"French", 1252, ""},
                                             {"German", 1252, ""},
                                             {"Italian", 1252, ""},
                                             {"Spanish", 1252, ""}}};

/// Captions that no language pack has a line for; they look the same in every language.
const std::set<std::string> fixedCaptions{"...",         "F",           "Add",         "Clear",       "Wav --> Ogg",
                                          "Wav --> Lip", "Wss --> Wav", "Wav --> Wss", "Nový",        "Uložit",
                                          "Obarvit",     "Najít...",    "Rejstřík...", "Nastavení..."};

fs::path dataFolder()
{
  return fs::path(TARVELIN_ROOT) / "Bfdata";
}

fs::path helpFolder()
{
  return dataFolder() / "dokumentace";
}

std::vector<fs::path> filesBelow(const fs::path& folder, const std::string& extension)
{
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file() && (extension.empty() || entry.path().extension() == extension))
      files.push_back(entry.path());
  std::ranges::sort(files);
  return files;
}

/// What the first group of `pattern` takes, each time that it is found.
std::vector<std::string> all(const std::string& text, const std::string& pattern)
{
  const std::regex expression(pattern, std::regex::icase);
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), expression), end; it != end; ++it)
    found.push_back((*it)[1]);
  return found;
}

std::string replaced(std::string text, std::string_view what, std::string_view with)
{
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
    text.replace(at, what.size(), with);
  return text;
}

/// Text as it is seen: entities decoded.
std::string seen(std::string text)
{
  for (const auto& [entity, character] :
       {std::pair{"&lt;", "<"}, std::pair{"&gt;", ">"}, std::pair{"&quot;", "\""}, std::pair{"&amp;", "&"}})
    text = replaced(text, entity, character);
  return text;
}

/// A caption without its mnemonic and without the colon behind it.
std::string plainCaption(std::string caption)
{
  std::erase(caption, '&');
  caption = trim(caption);
  if (caption.ends_with(':'))
    caption.pop_back();
  return trim(caption);
}

std::set<std::string> captionsOf(const Language& language)
{
  const fs::path pack = dataFolder() / "languages" / "Tv" / (std::string(language.pack) + ".lng");
  std::set<std::string> captions = fixedCaptions;
  for (const std::string& line : all(platform::decode(test::readBytes(pack), language.page), "([^\r\n]+)"))
    captions.insert(plainCaption(line));
  return captions;
}

/// Every text in bold on the pages of `folder` is a caption of the language.
void expectCaptions(const fs::path& folder, const Language& language)
{
  const std::set<std::string> captions = captionsOf(language);
  for (const fs::path& file : filesBelow(folder, ".html"))
    for (const std::string& bold : all(test::readBytes(file), "<b>([^<]*)</b>"))
      EXPECT_TRUE(captions.contains(seen(bold)))
          << file << " quotes " << bold << ", which " << language.pack << ".lng does not say";
}

bool isUtf8(const std::string& bytes)
{
  for (std::size_t i = 0; i < bytes.size();)
  {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const std::size_t more = byte < 0x80 ? 0 : byte >= 0xC2 && byte < 0xE0 ? 1 : byte >= 0xE0 && byte < 0xF0 ? 2 : 9;
    if (more == 9 || i + more >= bytes.size())
      return false;
    for (std::size_t k = 1; k <= more; ++k)
      if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0) != 0x80)
        return false;
    i += more + 1;
  }
  return true;
}

void expectHead(const fs::path& file)
{
  const std::string page = test::readBytes(file);
  EXPECT_TRUE(isUtf8(page)) << file;
  const auto declared = all(page.substr(0, 1024), "<meta[^>]*charset=([a-z0-9-]+)");
  EXPECT_EQ(declared, std::vector<std::string>{"utf-8"}) << file;
  const auto titles = all(page, "<title>([^<]*)</title>");
  ASSERT_EQ(titles.size(), 1U) << file;
  EXPECT_NE(trim(titles[0]), "") << file;
  EXPECT_EQ(page.find("<script"), std::string::npos) << file;
}

/// The file that a link of the page `from` means; a name in the wrong case is not found, as on most systems.
fs::path targetOf(const fs::path& from, const std::string& link)
{
  const std::string file = link.substr(0, link.find('#'));
  return file.empty() ? from : (from.parent_path() / file).lexically_normal();
}

bool hasAnchor(const fs::path& file, const std::string& name)
{
  const auto anchors = all(test::readBytes(file), "<a name=\"([^\"]*)\"");
  return std::ranges::find(anchors, name) != anchors.end();
}

/// Everything that can be reached from a page by links and pictures, the page too. Fails for what is not there.
std::set<fs::path> reachedFrom(const fs::path& start)
{
  std::set<fs::path> reached{start};
  std::vector<fs::path> waiting{start};
  while (!waiting.empty())
  {
    const fs::path file = waiting.back();
    waiting.pop_back();
    if (file.extension() != ".html")
      continue;
    for (const std::string& link : all(test::readBytes(file), "(?:href|src)=\"([^\"]*)\""))
    {
      const fs::path target = targetOf(file, link);
      EXPECT_TRUE(fs::is_regular_file(target)) << file << " links to " << link;
      if (!fs::is_regular_file(target))
        continue;
      if (const std::size_t hash = link.find('#'); hash != std::string::npos)
      {
        EXPECT_TRUE(hasAnchor(target, link.substr(hash + 1))) << file << " links to " << link;
      }
      if (reached.insert(target).second)
        waiting.push_back(target);
    }
  }
  return reached;
}

/// File names of the help in one language, below its folder.
std::set<std::string> namesBelow(const fs::path& folder)
{
  std::set<std::string> names;
  for (const fs::path& file : filesBelow(folder, ""))
    names.insert(file.lexically_relative(folder).generic_string());
  return names;
}

unsigned widthOf(const std::string& png)
{
  unsigned width = 0;
  for (std::size_t i = 16; i < 20; ++i)
    width = width << 8 | static_cast<unsigned char>(png.at(i));
  return width;
}

} // namespace

TEST(HelpFiles, everyPageHasATitleAndDeclaresItsCharacterSet)
{
  const auto pages = filesBelow(helpFolder(), ".html");
  ASSERT_FALSE(pages.empty());
  for (const fs::path& page : pages)
    expectHead(page);
}

TEST(HelpFiles, everythingIsReachedFromTheFirstPageAndNoLinkIsDead)
{
  const std::set<fs::path> reached = reachedFrom(helpFolder() / "index.html");
  for (const fs::path& file : filesBelow(helpFolder(), ""))
    EXPECT_TRUE(reached.contains(file)) << "nothing leads to " << file;
}

TEST(HelpFiles, czechAndEnglishHaveTheSamePages)
{
  EXPECT_EQ(namesBelow(helpFolder() / "cs"), namesBelow(helpFolder() / "en"));
}

TEST(HelpFiles, theWizardsLastFormFindsItsTenthStep)
{
  for (const char* const language : {"cs", "en"})
  {
    const fs::path page = helpFolder() / language / "campaign.html";
    for (int step = 1; step <= 10; ++step)
      EXPECT_TRUE(hasAnchor(page, "step" + std::to_string(step))) << page << " step " << step;
    const auto links = all(test::readBytes(helpFolder() / "index.html"),
                           "href=\"(" + std::string(language) + "/campaign\\.html#step10)\"");
    EXPECT_EQ(links.size(), 1U) << language;
  }
}

TEST(HelpFiles, captionsAreThoseOfTheWindow)
{
  for (const Language& language : languages)
    if (!language.help.empty())
      expectCaptions(helpFolder() / language.help, language);
}

TEST(HelpFiles, picturesFitTheWindowAndStaySmall)
{
  std::uintmax_t sum = 0;
  const auto pictures = filesBelow(helpFolder(), ".png");
  ASSERT_FALSE(pictures.empty());
  for (const fs::path& picture : pictures)
  {
    const std::string bytes = test::readBytes(picture);
    ASSERT_TRUE(bytes.starts_with("\x89PNG\r\n\x1A\n")) << picture;
    EXPECT_LE(widthOf(bytes), widestPicture) << picture;
    sum += bytes.size();
  }
  EXPECT_LT(sum, allPictures);
}

TEST(TipFiles, everyLanguagePackHasItsFolder)
{
  std::set<std::string> packs;
  std::set<std::string> folders;
  for (const fs::directory_entry& entry : fs::directory_iterator(dataFolder() / "languages" / "Tv"))
    packs.insert(entry.path().stem().string());
  for (const fs::directory_entry& entry : fs::directory_iterator(dataFolder() / "tips"))
    folders.insert(entry.path().filename().string());
  EXPECT_EQ(folders, packs);
}

TEST(TipFiles, fifteenInEachLanguageInTheOrderOfTheirNumbers)
{
  std::vector<std::string> expected;
  for (int tip = 1; tip <= tipsPerLanguage; ++tip)
    expected.push_back((tip < 10 ? "tip0" : "tip") + std::to_string(tip) + ".html");
  for (const Language& language : languages)
  {
    const fs::path folder = dataFolder() / "tips" / language.pack;
    EXPECT_EQ(platform::listFiles(platform::toProgram(folder.string())), expected) << language.pack;
  }
}

TEST(TipFiles, eachIsAShortPageOfItsOwn)
{
  for (const Language& language : languages)
  {
    std::set<std::string> bodies;
    for (const fs::path& file : filesBelow(dataFolder() / "tips" / language.pack, ".html"))
    {
      expectHead(file);
      const auto bodyOf = all(test::readBytes(file), "<p>([\\s\\S]*)</p>");
      ASSERT_EQ(bodyOf.size(), 1U) << file;
      EXPECT_LE(length(seen(std::regex_replace(bodyOf[0], std::regex("<[^>]*>"), ""))), longestTip) << file;
      EXPECT_TRUE(bodies.insert(bodyOf[0]).second) << file << " says what another tip says";
    }
  }
}

TEST(TipFiles, captionsAreThoseOfTheWindow)
{
  for (const Language& language : languages)
    expectCaptions(dataFolder() / "tips" / language.pack, language);
}

} // namespace tarvelin
