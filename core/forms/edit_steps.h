#pragma once

#include "core/forms/text_style.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace tarvelin
{

/// A piece of a rich text. The runs count from the piece's first character.
struct StyledPiece
{
  std::string text;
  std::size_t length = 0; ///< in characters
  std::vector<StyleRun> runs;
};

/// One change of a rich text: at `start` one piece gave way to another. When only the look changed, both texts are
/// empty.
struct StyledChange
{
  std::size_t start = 0;
  StyledPiece before;
  StyledPiece after;

  bool looksOnly() const { return before.text.empty() && after.text.empty(); }
};

/// What the user did in one go, with all that came of it, in its order.
struct EditStep
{
  std::vector<StyledChange> changes;
  std::size_t selStart = 0; ///< selection before the step
  std::size_t selLength = 0;
  std::size_t caret = 0; ///< behind it
};

/// The user's edits of a rich text, to be taken back and made again. Typing goes on in one step until the next word
/// begins, deleting until it stops.
class EditSteps
{
public:
  bool canUndo() const { return !m_done.empty(); }
  bool canRedo() const { return !m_undone.empty(); }
  void clear();

  /// A user's edit begins: `removed` characters from `start` give way to `added`. The selection is that before it.
  void begin(std::size_t start, std::size_t removed, std::string_view added, std::size_t selStart,
             std::size_t selLength);

  /// The edit under way, and all that came of it, is over.
  void end(std::size_t caret);

  /// True while a step takes changes: an edit is under way, or `joinLast` found one.
  bool open() const { return m_depth > 0; }

  /// What follows until `end` belongs to the last step. False when there is none.
  bool joinLast();

  void add(StyledChange change);

  /// Takes the last step out to be undone, and the last undone to be made again; there must be one.
  EditStep takeBack();
  EditStep makeAgain();

private:
  enum class Kind
  {
    other,
    typing,
    deleting,
  };

  static constexpr std::size_t most = 2000; ///< steps that are kept

  bool goesOn(Kind kind, std::size_t start, std::size_t removed, std::string_view added) const;

  std::deque<EditStep> m_done;
  std::vector<EditStep> m_undone;
  int m_depth = 0;
  Kind m_kind = Kind::other; ///< of the last step
  bool m_wordEnded = false;  ///< a separator was the last thing typed
};

} // namespace tarvelin
