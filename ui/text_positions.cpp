#include "ui/text_positions.h"

#include "platform/utf8.h"

#include <algorithm>
#include <limits>

namespace tarvelin::ui
{
namespace
{

constexpr char16_t unknown = 0xFFFD;

/// Characters that a text document keeps for itself or ends a paragraph at.
bool isReserved(char32_t character)
{
  return character == 0 || character == 0xFDD0 || character == 0xFDD1 || character == 0x2028 || character == 0x2029 ||
         character == 0xFFFC || character == platform::notACharacter;
}

/// Where a walk through a field's text has come to.
struct Place
{
  std::size_t at = 0; ///< byte
  std::size_t characters = 0;
  int shown = 0;
};

/// Passes what a widget shows as one: a character, or a line end.
void step(std::string_view text, Place& place)
{
  const auto byte = static_cast<unsigned char>(text[place.at]);
  if (byte < 0x80)
  {
    const bool lineEnd = byte == '\r' && place.at + 1 < text.size() && text[place.at + 1] == '\n';
    place.at += lineEnd ? 2 : 1;
    place.characters += lineEnd ? 2 : 1;
    ++place.shown;
    return;
  }
  const char32_t character = platform::nextCharacter(text, place.at);
  ++place.characters;
  place.shown += !isReserved(character) && character > 0xFFFF ? 2 : 1;
}

/// Walks while `wanted(place)` holds.
template <class Wanted> Place walk(std::string_view text, Wanted&& wanted)
{
  Place place;
  while (place.at < text.size() && wanted(place))
    step(text, place);
  return place;
}

} // namespace

QString shownText(std::string_view text)
{
  QString shown;
  shown.reserve(static_cast<qsizetype>(text.size()));
  for (std::size_t at = 0; at < text.size();)
  {
    const char32_t character = platform::nextCharacter(text, at);
    if (character == '\r')
    {
      if (at < text.size() && text[at] == '\n')
        ++at;
      shown += QChar(u'\n');
    }
    else if (isReserved(character))
      shown += QChar(unknown);
    else if (character > 0xFFFF)
    {
      shown += QChar(QChar::highSurrogate(character));
      shown += QChar(QChar::lowSurrogate(character));
    }
    else
      shown += QChar(static_cast<char16_t>(character));
  }
  return shown;
}

std::string fieldText(QStringView shown)
{
  QString text = shown.toString();
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (const char16_t lineEnd : {u'\r', u'\x2028', u'\x2029'}) // a document's own
    text.replace(QChar(lineEnd), QChar(u'\n'));
  text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  text.remove(QChar(0));
  return text.toStdString();
}

int shownBefore(std::string_view text, std::size_t characters)
{
  return walk(text, [characters](const Place& place) { return place.characters < characters; }).shown;
}

std::size_t charactersBefore(std::string_view text, int shown)
{
  return walk(text, [shown](const Place& place) { return place.shown < shown; }).characters;
}

int shownLength(std::string_view text)
{
  return shownBefore(text, std::numeric_limits<std::size_t>::max());
}

Difference difference(QStringView before, QStringView after)
{
  const qsizetype shorter = std::min(before.size(), after.size());
  qsizetype start = 0;
  while (start < shorter && before[start] == after[start])
    ++start;
  if (start > 0 && before[start - 1].isHighSurrogate())
    --start;
  qsizetype end = 0;
  while (end < shorter - start && before[before.size() - 1 - end] == after[after.size() - 1 - end])
    ++end;
  if (end > 0 && before[before.size() - end].isLowSurrogate())
    --end;
  return {static_cast<int>(start), static_cast<int>(before.size() - start - end),
          static_cast<int>(after.size() - start - end)};
}

} // namespace tarvelin::ui
