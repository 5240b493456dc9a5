#pragma once

#include "core/forms/edit_steps.h"
#include "core/forms/text.h"
#include "core/forms/text_style.h"

#include <memory>
#include <vector>

namespace tarvelin
{

/// A text with a style for each character, kept as runs.
class RichText : public Text
{
public:
  using Run = StyleRun;

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

  /// From now on the user's edits are kept as steps, each with what its change handler made of text and styles. A text
  /// that is set or appended to by the program ends them all; one that is styled anew belongs to the last step.
  void keepSteps();

  bool canUndo() const { return m_steps && m_steps->canUndo(); }
  bool canRedo() const { return m_steps && m_steps->canRedo(); }

  /// Takes the last step back, or makes it again: text, styles and caret are as they were. The change handler does not
  /// run, for its work is a part of the step.
  void undo();
  void redo();

protected:
  void spliced(const FieldChange& splice) override;
  void editBegins(const FieldChange& edit, std::string_view added) override;
  void editEnds() override;

private:
  std::size_t runOf(std::size_t position) const;
  std::size_t split(std::size_t position);
  void joinAround(std::size_t first, std::size_t last);
  std::vector<Run> runsIn(std::size_t start, std::size_t count) const;
  void moveRuns(const FieldChange& splice);
  StyledChange replaceText(std::string_view now);
  void put(std::size_t start, const StyledPiece& before, const StyledPiece& after, bool looksOnly);

  std::vector<Run> m_runs; ///< the first starts at 0; empty for an empty text
  TextStyle m_typing;
  std::unique_ptr<EditSteps> m_steps; ///< null while nobody keeps them
  bool m_quiet = false;               ///< what happens now is no step
};

} // namespace tarvelin
