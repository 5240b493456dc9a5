#include "core/strings.h"

#include "core/numbers.h"
#include "platform/failure.h"
#include "platform/fold.h"
#include "platform/utf8.h"

#include <algorithm>
#include <charconv>

namespace tarvelin
{

namespace
{

constexpr bool continues(char byte)
{
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::size_t checkedCount(int count)
{
  if (count < 0)
    throw Failure(Fault::invalidCall);
  return static_cast<std::size_t>(count);
}

std::size_t checkedStart(int start)
{
  if (start < 1)
    throw Failure(Fault::invalidCall);
  return static_cast<std::size_t>(start - 1);
}

bool digit(char c)
{
  return c >= '0' && c <= '9';
}

/// The number at the head of a text and how many bytes it takes; 0 and 0 when there is none.
std::pair<double, std::size_t> leadingNumber(std::string_view text)
{
  std::size_t end = 0;
  if (end < text.size() && (text[end] == '+' || text[end] == '-'))
    ++end;
  const std::size_t digits = end;
  while (end < text.size() && digit(text[end]))
    ++end;
  std::size_t count = end - digits;
  if (end < text.size() && text[end] == '.')
  {
    const std::size_t fraction = ++end;
    while (end < text.size() && digit(text[end]))
      ++end;
    count += end - fraction;
  }
  if (count == 0)
    return {0.0, 0};
  if (end < text.size() && (text[end] == 'e' || text[end] == 'E'))
  {
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-'))
      ++exponent;
    const std::size_t first = exponent;
    while (exponent < text.size() && digit(text[exponent]))
      ++exponent;
    if (exponent > first)
      end = exponent;
  }
  const std::size_t from = text[0] == '+' ? 1 : 0;
  double value = 0;
  const auto result = std::from_chars(text.data() + from, text.data() + end, value);
  if (result.ec == std::errc::result_out_of_range)
    throw Failure(Fault::overflow);
  return {value, end};
}

} // namespace

std::size_t length(std::string_view text)
{
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continues));
}

std::size_t characterSize(std::string_view text, std::size_t at)
{
  std::size_t end = at + 1;
  while (end < text.size() && continues(text[end]))
    ++end;
  return end - at;
}

std::size_t byteOffset(std::string_view text, std::size_t index)
{
  std::size_t at = 0;
  for (; index > 0 && at < text.size(); --index)
    at += characterSize(text, at);
  return at;
}

std::string left(std::string_view text, int count)
{
  return std::string(text.substr(0, byteOffset(text, checkedCount(count))));
}

std::string right(std::string_view text, int count)
{
  const std::size_t wanted = checkedCount(count);
  const std::size_t all = length(text);
  return std::string(text.substr(byteOffset(text, wanted < all ? all - wanted : 0)));
}

std::string mid(std::string_view text, int start)
{
  return std::string(text.substr(byteOffset(text, checkedStart(start))));
}

std::string mid(std::string_view text, int start, int count)
{
  const std::string_view rest = text.substr(byteOffset(text, checkedStart(start)));
  return std::string(rest.substr(0, byteOffset(rest, checkedCount(count))));
}

int inStr(std::string_view text, std::string_view needle)
{
  const std::size_t at = text.find(needle);
  return at == std::string_view::npos ? 0 : static_cast<int>(length(text.substr(0, at))) + 1;
}

int inStrRev(std::string_view text, std::string_view needle)
{
  const std::size_t at = text.rfind(needle);
  return at == std::string_view::npos ? 0 : static_cast<int>(length(text.substr(0, at))) + 1;
}

std::string upper(std::string_view text)
{
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();)
  {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x80)
    {
      result.push_back(static_cast<char>(platform::capital(byte)));
      ++at;
      continue;
    }
    const std::size_t start = at;
    const char32_t character = platform::nextCharacter(text, at);
    if (character == platform::notACharacter)
      result.push_back(text[start]);
    else
      platform::appendCharacter(result, platform::capital(character));
  }
  return result;
}

std::string trim(std::string_view text)
{
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos)
    return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

double val(std::string_view text)
{
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? 0.0 : leadingNumber(text.substr(first)).first;
}

short integerVal(std::string_view text)
{
  return toInt16(val(text));
}

short toInteger(std::string_view text)
{
  const std::string whole = trim(text);
  const auto [value, size] = leadingNumber(whole);
  if (size == 0 || size != whole.size())
    throw Failure(Fault::typeMismatch);
  return toInt16(value);
}

std::string numberText(double value)
{
  if (value == 0)
    return "0"; // a negative zero too
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
  std::string text(buffer, result.ptr);
  return text;
}

std::string replaced(std::string_view text, std::string_view what, std::string_view by)
{
  std::string result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at = text.find(what); at != std::string_view::npos && !what.empty(); at = text.find(what, from))
  {
    result.append(text.substr(from, at - from)).append(by);
    from = at + what.size();
  }
  return result.append(text.substr(from));
}

bool sameAscii(std::string_view a, std::string_view b)
{
  return std::ranges::equal(
      a, b, {}, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; },
      [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
}

bool sameIgnoringCase(std::string_view a, std::string_view b)
{
  return platform::equalIgnoringCase(a, b);
}

bool containsIgnoringCase(std::string_view text, std::string_view needle)
{
  return upper(text).find(upper(needle)) != std::string::npos;
}

std::string BezUvozovek(std::string_view text)
{
  std::string result(text);
  std::erase(result, '"');
  return result;
}

} // namespace tarvelin
