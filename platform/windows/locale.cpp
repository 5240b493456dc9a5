#include "platform/locale.h"

#include "platform/fold.h"
#include "platform/windows/wide.h"

namespace tarvelin::platform
{

namespace
{

std::string fact(LCTYPE type)
{
  wchar_t text[32];
  const int size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text, 32);
  return size > 1 ? narrow(std::wstring_view(text, static_cast<std::size_t>(size - 1))) : std::string();
}

} // namespace

std::string decimalSeparator()
{
  const std::string separator = fact(LOCALE_SDECIMAL);
  return separator.empty() ? "." : separator;
}

std::string language()
{
  const std::string word = folded(fact(LOCALE_SISO639LANGNAME));
  return word.size() == 2 ? word : std::string();
}

} // namespace tarvelin::platform
