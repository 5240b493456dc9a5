#include "platform/clock.h"

#include "platform/windows/wide.h"

#include <chrono>

namespace tarvelin::platform
{

namespace
{

SYSTEMTIME now()
{
  SYSTEMTIME time;
  GetLocalTime(&time);
  return time;
}

std::string textOf(const wchar_t* text, int size)
{
  return size > 1 ? narrow(std::wstring_view(text, static_cast<std::size_t>(size - 1))) : std::string();
}

} // namespace

LocalTime localTime()
{
  const SYSTEMTIME time = now();
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

std::string dateText()
{
  const SYSTEMTIME time = now();
  wchar_t text[128];
  return textOf(text, GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text, 128, nullptr));
}

std::string timeText()
{
  const SYSTEMTIME time = now();
  wchar_t text[128];
  return textOf(text, GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, nullptr, text, 128));
}

double monotonicSeconds()
{
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace tarvelin::platform
