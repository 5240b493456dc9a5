#include "platform/linux/system_locale.h"

#include <algorithm>
#include <iconv.h>
#include <string_view>

namespace tarvelin::platform
{

namespace
{

locale_t opened(const char* name)
{
  return newlocale(LC_ALL_MASK, name, locale_t{});
}

std::string asciiOf(std::string_view bytes)
{
  std::string text(bytes);
  std::ranges::replace_if(
      text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; }, '?');
  return text;
}

} // namespace

SystemLocale::SystemLocale() : m_locale(opened(""))
{
  if (m_locale == locale_t{}) // the environment names one that is not installed
    m_locale = opened("C");
}

SystemLocale::~SystemLocale()
{
  freelocale(m_locale);
}

std::string SystemLocale::toUtf8(std::string_view bytes) const
{
  const iconv_t converter = iconv_open("UTF-8", info(CODESET));
  if (converter ==
      reinterpret_cast<iconv_t>(-1)) // a charset that only the locale knows: the text is ASCII for the most
    return asciiOf(bytes);
  std::string input(bytes);
  std::string text(input.size() * 4, '\0');
  char* from = input.data();
  char* to = text.data();
  std::size_t fromLeft = input.size();
  std::size_t toLeft = text.size();
  while (iconv(converter, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1) && fromLeft > 0)
  {
    ++from;
    --fromLeft;
    *to++ = '?';
    --toLeft;
  }
  iconv_close(converter);
  text.resize(text.size() - toLeft);
  return text;
}

} // namespace tarvelin::platform
