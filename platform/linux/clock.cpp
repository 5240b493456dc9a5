#include "platform/clock.h"

#include "platform/linux/system_locale.h"

#include <chrono>
#include <ctime>
#include <string_view>

namespace tarvelin::platform
{

namespace
{

std::tm now()
{
  const std::time_t seconds = std::time(nullptr);
  std::tm parts{};
  localtime_r(&seconds, &parts);
  return parts;
}

bool isNeutral(const SystemLocale& locale)
{
  const std::string_view name = locale.info(_NL_LOCALE_NAME(LC_TIME));
  return name == "C" || name == "POSIX" || name.starts_with("C.");
}

// The form of the locale, or `neutral` where the locale has no habits of its own.
std::string formatted(const char* form, const char* neutral)
{
  const SystemLocale locale;
  const std::tm time = now();
  char text[256];
  const std::size_t size = strftime_l(text, sizeof(text), isNeutral(locale) ? neutral : form, &time, locale.get());
  return locale.toUtf8(std::string_view(text, size));
}

} // namespace

LocalTime localTime()
{
  const std::tm time = now();
  return {time.tm_year + 1900, time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec};
}

std::string dateText()
{
  return formatted("%x", "%Y-%m-%d");
}

std::string timeText()
{
  return formatted("%X", "%H:%M:%S");
}

double monotonicSeconds()
{
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace tarvelin::platform
