#include "mission/number_texts.h"

#include "platform/failure.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace tarvelin
{

namespace
{

constexpr int significantDigits = 7;

/// Seven significant digits at most, a point, neither a zero in front of it nor an exponent: "2", ".25", "-.5", "0".
std::string plainText(float value)
{
  if (!std::isfinite(value))
    throw Failure(Fault::overflow);
  if (value == 0)
    return "0"; // a negative zero too
  char buffer[32];
  const char* const end = std::to_chars(buffer, buffer + sizeof buffer, std::abs(value), std::chars_format::scientific,
                                        significantDigits - 1)
                              .ptr;
  const std::string_view scientific(buffer, static_cast<std::size_t>(end - buffer)); // "d.dddddde+XX"
  const std::size_t exponentAt = scientific.find('e');
  std::string digits = std::string(scientific.substr(0, 1)) + std::string(scientific.substr(2, exponentAt - 2));
  digits.erase(digits.find_last_not_of('0') + 1);
  const int exponent = std::stoi(std::string(scientific.substr(exponentAt + 1)));
  const std::string sign = value < 0 ? "-" : "";
  if (exponent < 0)
    return sign + "." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= whole)
    return sign + digits + std::string(whole - digits.size(), '0');
  return sign + digits.insert(whole, ".");
}

/// The whole part, a point, and what follows the point of the plain text; `pointless(plain)` when it has none.
template <class Pointless> std::string twoParts(float value, Pointless pointless)
{
  const std::string plain = plainText(value);
  const std::size_t point = plain.find('.');
  return plainText(std::trunc(value)) + "." + (point == std::string::npos ? pointless(plain) : plain.substr(point + 1));
}

} // namespace

std::string localText(float value, std::string_view decimalSeparator)
{
  std::string text = plainText(value);
  const std::size_t point = text.find('.');
  if (point == std::string::npos)
    return text;
  text.replace(point, 1, decimalSeparator);
  if (point == 0 || text[point - 1] == '-')
    text.insert(point, "0");
  return text;
}

std::string placeText(float value)
{
  return twoParts(value, [](const std::string& plain) { return plain; }); // "2.2": missions have it so
}

std::string colourText(float value)
{
  return twoParts(value, [](const std::string&) { return "00"; });
}

} // namespace tarvelin
