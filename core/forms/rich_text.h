#pragma once

#include "core/forms/text.h"

#include <vector>

namespace tarvelin
{

/// How a character of a rich text looks.
struct TextStyle
{
  Colour color = 0;
  bool bold = false;
  bool italic = false;

  bool operator==(const TextStyle&) const = default;
};

/// A text with a style for each character, kept as runs.
class RichText : public Text
{
public:
  /// A run of equal style: from character `start` to the start of the next run.
  struct Run
  {
    std::size_t start = 0;
    TextStyle style;

    bool operator==(const Run&) const = default;
  };

  using Text::Text;
  Kind kind() const override { return Kind::richtext; }

  /// Style of character `position`; the default style behind the end.
  TextStyle styleAt(std::size_t position) const;

  /// Styles `count` characters from `start`, cut to the text.
  void setStyle(std::size_t start, std::size_t count, const TextStyle& style);

  /// Style of the characters that come in from now on at the caret, until it is set again.
  void setTypingStyle(const TextStyle& style) { m_typing = style; }

  const std::vector<Run>& runs() const { return m_runs; }

  /// Replaces text and styles as one change; the change handler runs when the text did change. `runs` begin at 0,
  /// rising; an empty list is the default style throughout.
  void setStyled(std::string_view text, std::vector<Run> runs);

protected:
  void spliced(std::size_t start, std::size_t removed, std::size_t added) override;

private:
  std::size_t runOf(std::size_t position) const;
  std::size_t split(std::size_t position);
  void joinAround(std::size_t first, std::size_t last);

  std::vector<Run> m_runs; ///< the first starts at 0; empty for an empty text
  TextStyle m_typing;
};

} // namespace tarvelin
