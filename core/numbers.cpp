#include "core/numbers.h"

#include "platform/failure.h"

#include <cmath>

namespace tarvelin
{

std::int16_t toInt16(double value)
{
  const double rounded = std::nearbyint(value);
  if (!(rounded >= INT16_MIN && rounded <= INT16_MAX))
    throw Failure(Fault::overflow);
  return static_cast<std::int16_t>(rounded);
}

std::int16_t counted(std::int16_t count, int step)
{
  return toInt16(static_cast<double>(count) + step);
}

} // namespace tarvelin
