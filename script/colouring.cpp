#include "script/colouring.h"

#include "core/forms/frmrejstrik.h"
#include "core/shared.h"
#include "core/strings.h"
#include "script/word_classes.h"
#include "script/word_search.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

// Words are separated by blanks and line ends; a ";" anywhere, also inside a string, begins a comment that runs to the
// end of the line. All of these are ASCII, so the text is walked by bytes.
namespace tarvelin
{

namespace
{

constexpr bool endsLine(char c)
{
  return c == '\r' || c == '\n';
}

constexpr bool separates(char c)
{
  return c == ' ' || endsLine(c);
}

int findWord(std::string_view word)
{
  return BNajdi2(0, frmrejstrik.seznam.count() - 1, word, frmrejstrik.seznam);
}

TextStyle styleOfRow(int row)
{
  const WordClass* const found = wordClass(frmrejstrik.seznam.tag(row));
  return found ? found->style.style() : TextStyle{};
}

/// The text of a script being written anew, with its styles.
class Painter
{
public:
  explicit Painter(std::size_t size) { m_text.reserve(size); }

  void put(std::string_view piece, const TextStyle& style)
  {
    if (piece.empty())
      return;
    if (m_runs.empty() || m_runs.back().style != style)
      m_runs.push_back({m_position, style});
    m_text += piece;
    m_position += length(piece);
  }

  void handTo(RichText& box) && { box.setStyled(m_text, std::move(m_runs)); }

private:
  std::string m_text;
  std::size_t m_position = 0;
  std::vector<RichText::Run> m_runs;
};

/// How a word is written and looks. A script has few different words, so each is searched once.
class Speller
{
public:
  struct Spelling
  {
    std::string_view word;
    TextStyle style;
  };

  /// The spelling of `word`, which lives as long as this does.
  const Spelling& of(std::string_view word)
  {
    const auto [place, isNew] = m_known.try_emplace(word, Spelling{word, {}});
    if (isNew)
      if (const int row = findWord(word); row >= 0)
        place->second = {frmrejstrik.seznam.text(row), styleOfRow(row)};
    return place->second;
  }

private:
  std::unordered_map<std::string_view, Spelling> m_known;
};

/// A word of the box, its closing character behind it.
struct ClosedWord
{
  std::string word;
  std::size_t start; ///< in characters
};

void colourWord(RichText& box, const ClosedWord& closed)
{
  if (closed.word.empty())
    return;
  const std::size_t size = length(closed.word);
  const int row = findWord(closed.word);
  if (row < 0)
    return box.setStyle(closed.start, size, {});
  const std::string& spelling = frmrejstrik.seznam.text(row);
  if (spelling != closed.word)
  {
    const std::size_t caret = box.selStart() + length(spelling) - size;
    const QuietEditor quiet;
    box.userEdit(closed.start, size, spelling);
    box.select(caret, 0);
  }
  box.setStyle(closed.start, length(spelling), styleOfRow(row));
}

} // namespace

QuietEditor::QuietEditor() : m_before(std::exchange(shared.PovolBarvy, Flag{0})) {}

QuietEditor::~QuietEditor()
{
  shared.PovolBarvy = m_before;
}

void ObarviSkript(RichText& box)
{
  const std::string text = box.text();
  const TextStyle comment = commentStyle.style();
  Painter painter(text.size());
  Speller speller;
  for (std::size_t at = 0; at < text.size();)
  {
    const std::size_t start = at;
    const auto piece = [&] { return std::string_view(text).substr(start, at - start); };
    if (text[at] == ';')
    {
      at = std::min(text.find_first_of("\r\n", at), text.size());
      if (at < text.size() && text[at] == '\r')
        ++at; // the line end's first character still counts as comment
      painter.put(piece(), comment);
    }
    else if (separates(text[at]))
    {
      while (at < text.size() && separates(text[at]))
        ++at;
      painter.put(piece(), {});
    }
    else
    {
      while (at < text.size() && text[at] != ';' && !separates(text[at]))
        ++at;
      const Speller::Spelling& spelling = speller.of(piece());
      painter.put(spelling.word, spelling.style);
    }
  }
  const QuietEditor quiet;
  std::move(painter).handTo(box);
}

void colourTyped(RichText& box)
{
  const std::size_t caret = box.selStart();
  if (caret == 0)
    return;
  const std::string& text = box.text();
  const std::size_t behind = box.offsetOf(caret);
  const char typed = text[behind - 1];
  std::size_t closing = behind - 1; // what ends the word: the typed character, or the CR of a line end that came whole
  if (typed == '\n' && closing > 0 && text[closing - 1] == '\r')
    --closing;

  std::size_t lineStart = closing;
  std::size_t comment = std::string::npos; // the first ";" of the line
  while (lineStart > 0 && !endsLine(text[lineStart - 1]))
    if (text[--lineStart] == ';')
      comment = lineStart;

  const auto characters = [&](std::size_t from, std::size_t to)
  { return length(std::string_view(text).substr(from, to - from)); };
  box.setTypingStyle({});
  if (comment != std::string::npos)
  {
    if (!endsLine(typed)) // one line further on the comment is over
    {
      const std::size_t size = characters(comment, behind);
      box.setStyle(caret - size, size, commentStyle.style());
      box.select(caret, 0);
    }
    return;
  }
  if (typed != ';' && !separates(typed))
    return;

  if (typed == ';') // it makes a comment of what stands behind it on the line, too
  {
    const std::size_t lineEnd = std::min(text.find_first_of("\r\n", behind), text.size());
    box.setStyle(caret - 1, 1 + characters(behind, lineEnd), commentStyle.style());
  }
  std::size_t start = closing;
  while (start > lineStart && text[start - 1] != ' ')
    --start;
  const std::size_t end = caret - (behind - closing);
  colourWord(box, {text.substr(start, closing - start), end - characters(start, closing)});
  box.select(box.selStart(), 0);
}

} // namespace tarvelin
