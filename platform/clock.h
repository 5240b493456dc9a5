#pragma once

#include <string>

// The clock.
namespace tarvelin::platform
{

struct LocalTime
{
  int year = 0;
  int month = 0; ///< 1 to 12
  int day = 0;   ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

LocalTime localTime();

/// Today in the form of the machine's locale, "2026-11-21" in the C locale. UTF-8.
std::string dateText();

/// The time of day in the form of the machine's locale, "14:05:09" in the C locale. UTF-8.
std::string timeText();

/// Seconds of a clock that only goes forward.
double monotonicSeconds();

} // namespace tarvelin::platform
