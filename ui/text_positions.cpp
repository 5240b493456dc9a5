#include "ui/text_positions.h"

#include "platform/utf8.h"

#include <algorithm>
#include <iterator>
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

using Place = ShownPlaces::Place;

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

bool endsLine(char byte)
{
  return byte == '\r' || byte == '\n';
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

namespace
{

constexpr std::size_t knownStep = 1024; // characters between two known places

} // namespace

/// Walks on from a place while `wanted(place)` holds, and keeps places on the way.
template <class Wanted> Place ShownPlaces::walk(std::string_view text, Place place, Wanted&& wanted) const
{
  const auto rowEnds = [&] { return place.rows < m_rowEnds.size() && m_rowEnds[place.rows] == place.characters; };
  while ((place.at < text.size() || rowEnds()) && wanted(place))
  {
    if (rowEnds())
    {
      ++place.shown;
      ++place.rows;
    }
    else
      step(text, place);
    const std::size_t last = m_known.empty() ? 0 : m_known.back().characters;
    if (place.characters >= last + knownStep && !rowEnds())
      m_known.push_back(place);
  }
  return place;
}

Place ShownPlaces::ofCharacter(std::string_view text, std::size_t characters) const
{
  const auto behind = std::ranges::lower_bound(m_known, characters, {}, &Place::characters); // none that has passed it
  const Place from = behind == m_known.begin() ? Place{} : *std::prev(behind);
  return walk(text, from, [characters](const Place& place) { return place.characters < characters; });
}

Place ShownPlaces::ofShown(std::string_view text, int shown) const
{
  const auto behind = std::ranges::upper_bound(m_known, shown, {}, &Place::shown);
  const Place from = behind == m_known.begin() ? Place{} : *std::prev(behind);
  return walk(text, from, [shown](const Place& place) { return place.shown < shown; });
}

QString ShownPlaces::show(std::string_view text)
{
  m_known.clear();
  m_rowEnds.clear();
  QString shown = shownText(text);
  qsizetype start = 0;
  bool fits = true;
  while (fits && start < shown.size())
  {
    qsizetype end = shown.indexOf(u'\n', start);
    end = end < 0 ? shown.size() : end;
    fits = end - start <= longestRow;
    start = end + 1;
  }
  if (fits)
    return shown;
  std::vector<qsizetype> cuts;
  int rowStart = 0;
  for (Place place; place.at < text.size();)
  {
    const bool lineEnd = endsLine(text[place.at]);
    if (!lineEnd && place.shown - rowStart >= rowLength)
    {
      m_rowEnds.push_back(place.characters);
      cuts.push_back(place.shown);
      rowStart = place.shown;
    }
    step(text, place);
    if (lineEnd)
      rowStart = place.shown;
  }
  QString cut;
  cut.reserve(shown.size() + static_cast<qsizetype>(cuts.size()));
  start = 0;
  for (const qsizetype end : cuts)
  {
    cut += QStringView(shown).mid(start, end - start);
    cut += u'\n';
    start = end;
  }
  cut += QStringView(shown).mid(start);
  return cut;
}

QString ShownPlaces::shownPart(std::string_view text, Place from, const Place& to) const
{
  QString part;
  while (from.rows < to.rows)
  {
    const Place rowEnd = ofCharacter(text, m_rowEnds[from.rows]);
    part += shownText(text.substr(from.at, rowEnd.at - from.at)) + u'\n';
    from = rowEnd;
    ++from.rows;
  }
  return part + shownText(text.substr(from.at, to.at - from.at));
}

void ShownPlaces::spliced(const Place& from, const Place& to, std::size_t added)
{
  forgetBehind(from.characters);
  const auto first = m_rowEnds.begin() + static_cast<std::ptrdiff_t>(from.rows);
  const auto kept = m_rowEnds.erase(first, m_rowEnds.begin() + static_cast<std::ptrdiff_t>(to.rows));
  for (auto end = kept; end != m_rowEnds.end(); ++end)
    *end = *end - to.characters + from.characters + added;
}

void ShownPlaces::endRow(const Place& place)
{
  forgetBehind(place.characters);
  m_rowEnds.insert(m_rowEnds.begin() + static_cast<std::ptrdiff_t>(place.rows), place.characters);
}

std::size_t ShownPlaces::rowsBefore(std::size_t characters) const
{
  return static_cast<std::size_t>(std::ranges::lower_bound(m_rowEnds, characters) - m_rowEnds.begin());
}

void ShownPlaces::forgetBehind(std::size_t characters) const
{
  m_known.erase(std::ranges::lower_bound(m_known, characters, {}, &Place::characters), m_known.end());
}

} // namespace tarvelin::ui
