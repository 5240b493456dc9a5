#include "platform/utf8.h"

namespace tarvelin::platform
{

namespace
{

constexpr char32_t byteAt(std::string_view text, std::size_t at)
{
  return static_cast<unsigned char>(text[at]);
}

struct Form
{
  char32_t mask;
  char32_t lead;
  std::size_t followers;
  char32_t least; // a smaller character in this form is overlong
};

constexpr Form forms[] = {
    {0xE0, 0xC0, 1, 0x80},
    {0xF0, 0xE0, 2, 0x800},
    {0xF8, 0xF0, 3, 0x10000},
};

constexpr bool isCharacter(char32_t value)
{
  return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

} // namespace

char32_t nextCharacter(std::string_view text, std::size_t& at)
{
  const std::size_t start = at++;
  const char32_t lead = byteAt(text, start);
  if (lead < 0x80)
    return lead;
  for (const Form& form : forms)
  {
    if ((lead & form.mask) != form.lead || text.size() - start <= form.followers)
      continue;
    char32_t value = lead & ~form.mask;
    for (std::size_t i = 1; i <= form.followers; ++i)
    {
      const char32_t follower = byteAt(text, start + i);
      if ((follower & 0xC0) != 0x80)
        return notACharacter;
      value = value << 6 | (follower & 0x3F);
    }
    if (value < form.least || !isCharacter(value))
      return notACharacter;
    at = start + 1 + form.followers;
    return value;
  }
  return notACharacter;
}

void appendCharacter(std::string& text, char32_t character)
{
  const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
  if (character < 0x80)
  {
    put(character);
    return;
  }
  if (character < 0x800)
    put(0xC0 | character >> 6);
  else
  {
    if (character < 0x10000)
      put(0xE0 | character >> 12);
    else
    {
      put(0xF0 | character >> 18);
      put(0x80 | (character >> 12 & 0x3F));
    }
    put(0x80 | (character >> 6 & 0x3F));
  }
  put(0x80 | (character & 0x3F));
}

} // namespace tarvelin::platform
