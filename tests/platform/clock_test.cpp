#include "platform/clock.h"
#include "tests/platform/scratch.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <gtest/gtest.h>
#include <thread>

namespace tarvelin::platform
{

namespace
{

using tests::Variable;

std::time_t secondsOf(const LocalTime& time)
{
  std::tm parts{};
  parts.tm_year = time.year - 1900;
  parts.tm_mon = time.month - 1;
  parts.tm_mday = time.day;
  parts.tm_hour = time.hour;
  parts.tm_min = time.minute;
  parts.tm_sec = time.second;
  parts.tm_isdst = -1;
  return std::mktime(&parts);
}

TEST(Clock, TellsTheLocalTime)
{
  const std::time_t before = std::time(nullptr);
  const std::time_t told = secondsOf(localTime());
  const std::time_t after = std::time(nullptr);
  EXPECT_LE(before, told);
  EXPECT_LE(told, after);
}

TEST(Clock, DateAndTimeAreNeutralWithoutALocale)
{
  for (const char* name : {"C", "POSIX", "C.UTF-8", "xx_NONE.UTF-8"})
  {
    const Variable locale("LC_ALL", name);
    LocalTime before;
    std::string date;
    std::string time;
    do // again when the second has passed in between
    {
      before = localTime();
      date = dateText();
      time = timeText();
    }
    while (before.second != localTime().second);
    char expected[64];
    std::snprintf(expected, sizeof(expected), "%04d-%02d-%02d", before.year, before.month, before.day);
    EXPECT_EQ(date, expected) << name;
    std::snprintf(expected, sizeof(expected), "%02d:%02d:%02d", before.hour, before.minute, before.second);
    EXPECT_EQ(time, expected) << name;
  }
}

TEST(Clock, TheForwardClockGoesForwardInSeconds)
{
  const double start = monotonicSeconds();
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  const double passed = monotonicSeconds() - start;
  EXPECT_GE(passed, 0.02);
  EXPECT_LT(passed, 10.0);
}

} // namespace

} // namespace tarvelin::platform
