#include "platform/registry.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/fold.h"
#include "platform/linux/environment.h"
#include "platform/paths.h"
#include "platform/utf8.h"

#include <algorithm>
#include <utility>
#include <vector>

// The files of a Wine prefix: a line [KEY] for each key, under it a line "NAME"="TEXT" for each value, "@" being the
// key's default. Keys and texts are in ASCII with C escapes; others are \xNNNN, the units of UTF-16.
namespace tarvelin::platform
{

namespace
{

constexpr int digitOf(char c, int base)
{
  int digit = base;
  if (c >= '0' && c <= '9')
    digit = c - '0';
  else if (c >= 'a' && c <= 'f')
    digit = c - 'a' + 10;
  else if (c >= 'A' && c <= 'F')
    digit = c - 'A' + 10;
  return digit < base ? digit : -1;
}

char32_t number(std::string_view text, std::size_t& at, int base, std::size_t digits)
{
  char32_t value = 0;
  for (; digits > 0 && at < text.size() && digitOf(text[at], base) >= 0; --digits, ++at)
    value = value * static_cast<char32_t>(base) + static_cast<char32_t>(digitOf(text[at], base));
  return value;
}

struct LetterEscape
{
  char letter;
  char meaning;
};

constexpr LetterEscape letterEscapes[] = {
    {'a', '\a'}, {'b', '\b'}, {'e', '\x1B'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'v', '\v'},
};

// The unit behind a backslash; `at` stands behind the backslash and moves on.
char32_t escaped(std::string_view text, std::size_t& at)
{
  const char letter = text[at];
  if (digitOf(letter, 8) >= 0)
    return number(text, at, 8, 3);
  ++at;
  if (letter == 'x' && at < text.size() && digitOf(text[at], 16) >= 0)
    return number(text, at, 16, 4);
  for (const LetterEscape& row : letterEscapes)
    if (row.letter == letter)
      return static_cast<unsigned char>(row.meaning);
  return static_cast<unsigned char>(letter);
}

constexpr bool isFirstHalf(char32_t unit)
{
  return unit >= 0xD800 && unit < 0xDC00;
}

constexpr bool isSecondHalf(char32_t unit)
{
  return unit >= 0xDC00 && unit < 0xE000;
}

// Joins the halves of UTF-16 pairs; a half alone becomes "?".
class TextOfUnits
{
public:
  void put(char32_t unit)
  {
    if (m_half != 0 && isSecondHalf(unit))
      unit = 0x10000 + ((m_half - 0xD800) << 10) + (unit - 0xDC00);
    else if (m_half != 0)
      m_text += '?';
    m_half = isFirstHalf(unit) ? unit : 0;
    if (m_half == 0)
      appendCharacter(m_text, unit == notACharacter || isSecondHalf(unit) ? U'?' : unit);
  }

  std::string take()
  {
    if (m_half != 0)
      m_text += '?';
    m_half = 0;
    return std::move(m_text);
  }

private:
  std::string m_text;
  char32_t m_half = 0;
};

// The text from `at` to the closing character, which `at` is left behind. Nothing when the line ends before.
std::optional<std::string> textUntil(char closing, std::string_view line, std::size_t& at)
{
  TextOfUnits text;
  while (at < line.size())
  {
    if (line[at] == closing)
    {
      ++at;
      return text.take();
    }
    if (line[at] == '\\' && at + 1 < line.size())
      text.put(escaped(line, ++at));
    else
      text.put(nextCharacter(line, at));
  }
  return std::nullopt;
}

bool skip(std::string_view expected, std::string_view line, std::size_t& at)
{
  if (!line.substr(at).starts_with(expected))
    return false;
  at += expected.size();
  return true;
}

// The string of a value's line, when it is the value of that (folded) name and a string.
std::optional<std::string> stringOfLine(std::string_view line, std::string_view name)
{
  std::size_t at = 0;
  if (skip("\"", line, at))
  {
    const auto found = textUntil('"', line, at);
    if (!found || name.empty() || folded(*found) != name)
      return std::nullopt;
  }
  else if (!name.empty() || !skip("@", line, at))
    return std::nullopt;
  if (!skip("=", line, at))
    return std::nullopt;
  skip("str(2):", line, at); // one with %VARIABLES% in it, which are left as they are
  if (!skip("\"", line, at))
    return std::nullopt;
  auto text = textUntil('"', line, at);
  if (text)
    text->resize(std::min(text->size(), text->find('\0')));
  return text;
}

std::string_view nextLine(std::string_view& rest)
{
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r'))
    line.remove_suffix(1);
  return line;
}

// The names (folded) under which a key can stand in the file, the one that counts most first.
std::vector<std::string> placesOf(RegistryRoot root, std::string_view key)
{
  constexpr std::string_view software = "software\\";
  while (key.ends_with('\\'))
    key.remove_suffix(1);
  const std::string name = folded(key);
  if (name.empty())
    return {};
  if (root == RegistryRoot::classesRoot)
    return {R"(software\classes\)" + name, R"(software\wow6432node\classes\)" + name,
            R"(software\classes\wow6432node\)" + name};
  if (name.starts_with(software))
    return {name, R"(software\wow6432node\)" + name.substr(software.size())};
  return {name};
}

std::string fileOf(RegistryRoot root)
{
  return toProgram(winePrefix() + (root == RegistryRoot::currentUser ? "/user.reg" : "/system.reg"));
}

// False for most of the keys and names that do not begin as the wanted one does, told without unescaping them: a prefix
// has hundreds of thousands of them.
bool mayBeAt(std::string_view place, std::string_view line, std::size_t at)
{
  for (const char wanted : place)
  {
    const char c = at < line.size() ? line[at] : '\0';
    const bool isBackslash = line.substr(at, 2) == R"(\\)";
    if (static_cast<unsigned char>(c) >= 0x80 || static_cast<unsigned char>(wanted) >= 0x80 ||
        (c == '\\' && !isBackslash))
      return true; // to be looked at in full
    if (fold(static_cast<unsigned char>(c)) != static_cast<unsigned char>(wanted))
      return false;
    at += isBackslash ? 2 : 1;
  }
  return true;
}

// Calls `visit` with the key of each line [KEY] that may be at or below one of the places, folded, and the text behind
// that line, until it returns true.
template <typename Visit> void forEachKey(RegistryRoot root, const std::vector<std::string>& places, Visit visit)
{
  const std::string path = fileOf(root);
  if (!fileExists(path))
    return;
  const MappedFile file(path);
  std::string_view rest = file.bytes();
  while (!rest.empty())
  {
    const std::string_view line = nextLine(rest);
    std::size_t at = 0;
    if (!skip("[", line, at) ||
        std::ranges::none_of(places, [&](const std::string& place) { return mayBeAt(place, line, at); }))
      continue;
    const auto key = textUntil(']', line, at);
    if (key && visit(folded(*key), rest))
      return;
  }
}

std::optional<std::string> stringBelow(std::string_view rest, std::string_view name)
{
  while (!rest.empty() && rest.front() != '[')
  {
    const std::string_view line = nextLine(rest);
    if (line.starts_with('"') && !mayBeAt(name, line, 1))
      continue;
    if (auto text = stringOfLine(line, name))
      return text;
  }
  return std::nullopt;
}

bool isAtOrBelow(std::string_view key, std::string_view place)
{
  return key.starts_with(place) && (key.size() == place.size() || key[place.size()] == '\\');
}

} // namespace

std::optional<std::string> registryString(RegistryRoot root, std::string_view key, std::string_view value)
try
{
  std::vector<std::string> places = placesOf(root, key);
  const std::string name = folded(value);
  std::optional<std::string> best;
  forEachKey(root, places,
             [&](const std::string& found, std::string_view rest)
             {
               for (std::size_t i = 0; i < places.size(); ++i)
                 if (places[i] == found)
                   if (auto text = stringBelow(rest, name))
                   {
                     best = std::move(text);
                     places.resize(i); // only a place that counts more is still of interest
                   }
               return places.empty();
             });
  return best;
}
catch (const Failure&) // a file that can't be read tells nothing
{
  return std::nullopt;
}

bool registryKeyExists(RegistryRoot root, std::string_view key)
try
{
  const std::vector<std::string> places = placesOf(root, key);
  bool exists = false;
  forEachKey(root, places,
             [&](const std::string& found, std::string_view)
             {
               // A key that has only keys below it has no line of its own.
               for (const std::string& place : places)
                 exists = exists || isAtOrBelow(found, place);
               return exists;
             });
  return exists;
}
catch (const Failure&)
{
  return false;
}

bool setRegistryString(RegistryRoot, std::string_view, std::string_view, std::string_view)
{
  return false;
}

bool deleteRegistryKey(RegistryRoot, std::string_view)
{
  return false;
}

bool deleteRegistryValue(RegistryRoot, std::string_view, std::string_view)
{
  return false;
}

} // namespace tarvelin::platform
