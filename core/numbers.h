#pragma once

#include <cstdint>

namespace tarvelin
{

/// A flag of the program: -1 true, 0 false.
using Flag = std::int16_t;

constexpr Flag flagOf(bool on)
{
  return on ? Flag{-1} : Flag{0};
}

/// A number rounded to a 16-bit integer, a half to the even one. Throws 6 when it is out of range.
std::int16_t toInt16(double value);

/// `count + step` as a 16-bit count. Throws 6 when it is out of range.
std::int16_t counted(std::int16_t count, int step = 1);

} // namespace tarvelin
