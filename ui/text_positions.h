#pragma once

#include <QString>
#include <cstddef>
#include <string>
#include <string_view>

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

} // namespace tarvelin::ui
