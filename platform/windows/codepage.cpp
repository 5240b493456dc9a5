#include "platform/codepage.h"

#include "platform/windows/wide.h"

namespace tarvelin::platform
{

namespace
{

bool isKnown(UINT page)
{
  return page >= 1250 && page <= 1258;
}

UINT pageOfUser()
{
  DWORD page = 0;
  GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                  reinterpret_cast<wchar_t*>(&page), sizeof(page) / sizeof(wchar_t));
  return page;
}

} // namespace

int codePage()
{
  static const UINT system = GetACP();
  if (isKnown(system))
    return static_cast<int>(system);
  static const UINT user = pageOfUser(); // a system that was switched to UTF-8 still knows the page of its language
  return isKnown(user) ? static_cast<int>(user) : 1250;
}

} // namespace tarvelin::platform
