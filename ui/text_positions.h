#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A field counts characters, and its lines end with CR LF; a text widget counts UTF-16 units, and a line end is one.
namespace tarvelin::ui
{

/// A field's text as a widget holds it: every line end (CR LF, CR, LF) is one "\n".
QString shownText(std::string_view text);

/// A widget's text as a field holds it: every line end is CR LF.
std::string fieldText(QStringView shown);

/// Units that a widget holds for the first `characters` of a field's text.
int shownBefore(std::string_view text, std::size_t characters);

/// Characters of a field's text for the first `shown` units of a widget.
std::size_t charactersBefore(std::string_view text, int shown);

/// Units of a widget for a whole text.
int shownLength(std::string_view text);

/// How one text becomes another: `removed` units from `start` give way to `added`.
struct Difference
{
  int start = 0;
  int removed = 0;
  int added = 0;
};

/// The smallest single difference, never between the halves of a surrogate pair.
Difference difference(QStringView before, QStringView after);

/// Where the characters of a long text stand in its widget, found without walking the text from its start each time. A
/// line that is too long to be laid out goes on in further rows of the widget; the ends of such rows are no characters.
class ShownPlaces
{
public:
  struct Place
  {
    std::size_t at = 0; ///< byte of the field's text
    std::size_t characters = 0;
    int shown = 0;
    std::size_t rows = 0; ///< ends of rows inside of lines that stand before it
  };

  /// Units of a row that is cut, and of the longest that is not.
  static constexpr int rowLength = 4096;
  static constexpr int longestRow = 2 * rowLength;

  /// The place before a character, before a row's end that stands there.
  Place ofCharacter(std::string_view text, std::size_t characters) const;

  /// The place behind so many units.
  Place ofShown(std::string_view text, int shown) const;

  /// A whole text as the widget holds it, its long lines cut into rows from now on.
  QString show(std::string_view text);

  /// A part of the text as the widget holds it.
  QString shownPart(std::string_view text, Place from, const Place& to) const;

  /// The characters between two places of the former text gave way to `added`.
  void spliced(const Place& from, const Place& to, std::size_t added);

  /// A row ends before this character from now on.
  void endRow(const Place& place);

  std::size_t rowsBefore(std::size_t characters) const;

private:
  template <class Wanted> Place walk(std::string_view text, Place place, Wanted&& wanted) const;
  void forgetBehind(std::size_t characters) const;

  std::vector<std::size_t> m_rowEnds; ///< characters before them, rising
  mutable std::vector<Place> m_known; ///< places on the way, as far as somebody has asked
};

} // namespace tarvelin::ui
