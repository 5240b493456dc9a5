#pragma once

#include <span>
#include <string_view>

namespace tarvelin
{

/// What a caption line of a language pack sets.
enum class CaptionTarget
{
  title,   ///< the form's own caption
  field,   ///< a field
  element, ///< an element of a field array
  tab,     ///< a tab's caption
};

/// One caption line of a language pack. Its place in the table is its line: the first stands on line 145.
struct CaptionLine
{
  std::string_view form;
  std::string_view field; ///< empty for a title
  CaptionTarget target;
  int index; ///< of the element or the tab
};

/// The 318 caption lines in their order.
std::span<const CaptionLine> captionLines();

/// A caption that goes to a second field as well, right after its line.
struct CaptionCopy
{
  CaptionLine from;
  CaptionLine to;
};

std::span<const CaptionCopy> captionCopies();

} // namespace tarvelin
