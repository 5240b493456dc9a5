#include "platform/codepage.h"

#include "platform/codepage_tables.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tarvelin::platform
{

namespace
{

struct CharacterByte
{
  char16_t character;
  unsigned char byte;
};

using Inverse = std::array<CharacterByte, 128>;

constexpr Inverse inverseOf(const UpperHalf& upper)
{
  Inverse inverse{};
  for (std::size_t i = 0; i < upper.size(); ++i)
    inverse[i] = {upper[i], static_cast<unsigned char>(0x80 + i)};
  std::ranges::sort(inverse, {}, &CharacterByte::character);
  return inverse;
}

struct Page
{
  const UpperHalf& characters;
  Inverse bytes; // ordered by character
};

constexpr int firstPage = 1250;

constexpr Page pages[] = {
    {windows1250, inverseOf(windows1250)}, {windows1251, inverseOf(windows1251)}, {windows1252, inverseOf(windows1252)},
    {windows1253, inverseOf(windows1253)}, {windows1254, inverseOf(windows1254)}, {windows1255, inverseOf(windows1255)},
    {windows1256, inverseOf(windows1256)}, {windows1257, inverseOf(windows1257)}, {windows1258, inverseOf(windows1258)},
};

const Page& pageOf(int number)
{
  const bool known = number >= firstPage && number < firstPage + static_cast<int>(std::size(pages));
  return pages[known ? number - firstPage : 0];
}

// Where the next byte beyond ASCII lies, looking at eight bytes at a time.
std::size_t endOfAscii(std::string_view text, std::size_t at)
{
  constexpr std::uint64_t highBits = 0x8080808080808080;
  for (std::uint64_t eight = 0; at + sizeof(eight) <= text.size(); at += sizeof(eight))
  {
    std::memcpy(&eight, text.data() + at, sizeof(eight));
    if ((eight & highBits) != 0)
      break;
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80)
    ++at;
  return at;
}

char byteOf(const Page& page, char32_t character)
{
  const auto found = std::ranges::lower_bound(
      page.bytes, character, {}, [](const CharacterByte& pair) { return static_cast<char32_t>(pair.character); });
  return found != page.bytes.end() && found->character == character ? static_cast<char>(found->byte) : '?';
}

struct LanguagePage
{
  std::string_view language;
  int page;
};

constexpr LanguagePage languagePages[] = {
    {"cs", 1250},  {"sk", 1250},  {"pl", 1250},  {"hu", 1250},  {"sl", 1250},  {"hr", 1250},  {"bs", 1250},
    {"ro", 1250},  {"sq", 1250},  {"ru", 1251},  {"uk", 1251},  {"be", 1251},  {"bg", 1251},  {"sr", 1251},
    {"mk", 1251},  {"el", 1253},  {"tr", 1254},  {"et", 1257},  {"lv", 1257},  {"lt", 1257},  {"de", 1252},
    {"fr", 1252},  {"es", 1252},  {"it", 1252},  {"pt", 1252},  {"nl", 1252},  {"sv", 1252},  {"da", 1252},
    {"no", 1252},  {"nb", 1252},  {"nn", 1252},  {"fi", 1252},  {"is", 1252},  {"fo", 1252},  {"ga", 1252},
    {"gd", 1252},  {"gv", 1252},  {"cy", 1252},  {"kw", 1252},  {"br", 1252},  {"ca", 1252},  {"eu", 1252},
    {"gl", 1252},  {"ast", 1252}, {"an", 1252},  {"oc", 1252},  {"co", 1252},  {"sc", 1252},  {"fur", 1252},
    {"lij", 1252}, {"scn", 1252}, {"rm", 1252},  {"lb", 1252},  {"gsw", 1252}, {"nds", 1252}, {"fy", 1252},
    {"li", 1252},  {"wa", 1252},  {"hsb", 1252}, {"dsb", 1252}, {"mt", 1252},  {"se", 1252},
};

} // namespace

int codePageOfLocale(std::string_view locale)
{
  std::string language(locale.substr(0, locale.find_first_of("_-.@")));
  for (char& letter : language)
    if (letter >= 'A' && letter <= 'Z')
      letter = static_cast<char>(letter + ('a' - 'A'));
  if (locale.ends_with("@latin")) // Serbian, Belarusian in Latin letters
    return firstPage;
  for (const LanguagePage& row : languagePages)
    if (row.language == language)
      return row.page;
  return firstPage;
}

std::string decode(std::string_view bytes, int page)
{
  const UpperHalf& characters = pageOf(page).characters;
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (std::size_t at = 0; at < bytes.size();)
  {
    const std::size_t end = endOfAscii(bytes, at);
    text.append(bytes, at, end - at);
    at = end;
    for (; at < bytes.size() && static_cast<unsigned char>(bytes[at]) >= 0x80; ++at)
      appendCharacter(text, characters[static_cast<unsigned char>(bytes[at]) - 0x80U]);
  }
  return text;
}

std::string encode(std::string_view text, int page)
{
  const Page& target = pageOf(page);
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();)
  {
    const std::size_t end = endOfAscii(text, at);
    bytes.append(text, at, end - at);
    at = end;
    while (at < text.size() && static_cast<unsigned char>(text[at]) >= 0x80)
      bytes.push_back(byteOf(target, nextCharacter(text, at)));
  }
  return bytes;
}

} // namespace tarvelin::platform
