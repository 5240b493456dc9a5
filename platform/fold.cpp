#include "platform/fold.h"

#include "platform/utf8.h"

namespace tarvelin::platform
{

namespace
{

// Every `stride`-th character of a range has its small letter `distance` further on.
struct CapitalRange
{
  char32_t first;
  char32_t last;
  char32_t stride;
  int distance;
};

constexpr CapitalRange capitals[] = {
    {0x0041, 0x005A, 1, 32}, // ASCII
    // Latin-1
    {0x00C0, 0x00D6, 1, 32},
    {0x00D8, 0x00DE, 1, 32},
    // Latin Extended-A
    {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1},
    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},
    {0x0178, 0x0178, 1, -121},
    {0x0179, 0x017D, 2, 1},
    {0x017F, 0x017F, 1, -268}, // long s
    {0x0218, 0x021A, 2, 1},    // the Romanian letters with commas
    // Greek
    {0x0386, 0x0386, 1, 38},
    {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64},
    {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32},
    {0x03C2, 0x03C2, 1, 1}, // final sigma
    // Cyrillic
    {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},
    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},
    {0x04D0, 0x052E, 2, 1},
};

// The bytes that are no UTF-8 keep a place of their own above all characters.
char32_t nextFolded(std::string_view text, std::size_t& at)
{
  const std::size_t start = at;
  const char32_t character = nextCharacter(text, at);
  return character == notACharacter ? 0x110000 + static_cast<unsigned char>(text[start]) : fold(character);
}

} // namespace

char32_t fold(char32_t character)
{
  if (character < 0x80)
    return character >= U'A' && character <= U'Z' ? character + 32 : character;
  for (const CapitalRange& range : capitals)
    if (character >= range.first && character <= range.last && (character - range.first) % range.stride == 0)
      return static_cast<char32_t>(static_cast<int>(character) + range.distance);
  return character;
}

char32_t capital(char32_t character)
{
  if (character < 0x80)
    return character >= U'a' && character <= U'z' ? character - 32 : character;
  if (character == 0x017F) // long s
    return U'S';
  if (character == 0x03C2) // final sigma
    return 0x03A3;
  for (const CapitalRange& range : capitals)
  {
    const auto large = static_cast<char32_t>(static_cast<int>(character) - range.distance);
    if (large >= range.first && large <= range.last && (large - range.first) % range.stride == 0)
      return large;
  }
  return character;
}

std::string folded(std::string_view text)
{
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();)
  {
    const std::size_t start = at;
    const char32_t character = nextCharacter(text, at);
    if (character == notACharacter)
      result.push_back(text[start]);
    else
      appendCharacter(result, fold(character));
  }
  return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b)
{
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size())
    if (nextFolded(a, i) != nextFolded(b, j))
      return false;
  return i == a.size() && j == b.size();
}

bool lessIgnoringCase(std::string_view a, std::string_view b)
{
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size())
  {
    const char32_t left = nextFolded(a, i);
    const char32_t right = nextFolded(b, j);
    if (left != right)
      return left < right;
  }
  if (i == a.size() && j == b.size())
    return a < b;
  return i == a.size();
}

} // namespace tarvelin::platform
