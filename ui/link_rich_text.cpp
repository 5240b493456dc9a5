// Rich text fields: a text editor whose colours and faces are laid over the document, so that they never stand in the
// way of undo.
#include "core/forms/rich_text.h"
#include "ui/edit_link.h"
#include "ui/links.h"

#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextEdit>
#include <vector>

namespace tarvelin::ui
{
namespace
{

/// Paints the runs of a rich text, line by line.
class RunPainter : public QSyntaxHighlighter
{
public:
  RunPainter(RichText& text, QTextEdit& edit) : QSyntaxHighlighter(edit.document()), m_text(text), m_edit(edit) {}

  /// The text is another one: the starts of its lines are to be counted anew.
  void forgetLines() { m_lines.clear(); }

  /// Not while the document is ahead of the field.
  void pause(bool on) { m_paused = on; }

  /// Paints the lines that hold `count` characters from `start`.
  void paint(std::size_t start, std::size_t count)
  {
    countLines();
    const auto behind = [this](std::size_t at)
    { return static_cast<int>(std::upper_bound(m_lines.begin(), m_lines.end(), at) - m_lines.begin()); };
    const int last = behind(start + count);
    for (int line = std::max(0, behind(start) - 1); line < last; ++line)
      rehighlightBlock(document()->findBlockByNumber(line));
  }

private:
  void highlightBlock(const QString& line) override
  {
    countLines();
    const auto number = static_cast<std::size_t>(currentBlock().blockNumber());
    const std::vector<RichText::Run>& runs = m_text.runs();
    if (m_paused || number >= m_lines.size() || runs.empty())
      return;
    const std::size_t first = m_lines[number];
    auto run = std::upper_bound(runs.begin(), runs.end(), first,
                                [](std::size_t at, const RichText::Run& other) { return at < other.start; });
    std::size_t character = first;
    for (int unit = 0; unit < line.size();)
    {
      const TextStyle& style = (run - 1)->style;
      const std::size_t end = run == runs.end() ? std::string::npos : run->start;
      const int from = unit;
      for (; unit < line.size() && character < end; ++character)
        unit += line[unit].isHighSurrogate() ? 2 : 1;
      if (style != TextStyle{})
        setFormat(from, unit - from, formatOf(style));
      if (run != runs.end())
        ++run;
    }
  }

  QTextCharFormat formatOf(const TextStyle& style) const
  {
    QTextCharFormat format;
    if (style.color != 0)
      format.setForeground(readableColour(style.color, m_edit));
    if (style.bold)
      format.setFontWeight(QFont::Bold);
    if (style.italic)
      format.setFontItalic(true);
    return format;
  }

  /// Characters before each line of the field's text.
  void countLines()
  {
    if (!m_lines.empty())
      return;
    const std::string& text = m_text.text();
    m_lines.push_back(0);
    std::size_t characters = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
      if ((static_cast<unsigned char>(text[at]) & 0xC0) != 0x80)
        ++characters;
      const bool lineEnd = text[at] == '\n' || (text[at] == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
      if (lineEnd)
        m_lines.push_back(characters);
    }
  }

  RichText& m_text;
  QTextEdit& m_edit;
  std::vector<std::size_t> m_lines;
  bool m_paused = false;
};

class RichTextLink : public EditLink<QTextEdit>
{
public:
  RichTextLink(RichText& field, QTextEdit* edit) : EditLink(field, edit), m_rich(field), m_painter(field, *edit)
  {
    edit->setAcceptRichText(false);
    // Ahead of the painter's own turn: it must not paint what the field does not hold yet.
    connect(edit->document(), &QTextDocument::contentsChange, this,
            [this](int, int removed, int added) { m_painter.pause(!updating() && (removed > 0 || added > 0)); });
    start();
  }

private:
  void update(const FieldChange& change) override
  {
    if (change.what == Change::text || change.what == Change::everything)
      m_painter.forgetLines();
    EditLink::update(change);
    if (change.what == Change::everything)
      paintLater(0, m_rich.length());
    else if (change.what == Change::style)
      paintLater(change.first, change.added);
  }

  void textShown(int from, int added) override
  {
    m_painter.forgetLines();
    m_painter.pause(false);
    const std::size_t first = charactersBefore(m_rich.text(), from);
    paintLater(first, charactersBefore(m_rich.text(), from + added) - first);
  }

  /// Many changes of style in a row are painted as one.
  void paintLater(std::size_t start, std::size_t count)
  {
    const bool waiting = m_dirtyEnd > m_dirtyStart;
    m_dirtyStart = waiting ? std::min(m_dirtyStart, start) : start;
    m_dirtyEnd = std::max(waiting ? m_dirtyEnd : 0, start + std::max<std::size_t>(count, 1));
    if (!waiting)
      QMetaObject::invokeMethod(
          this, [this] { paintNow(); }, Qt::QueuedConnection);
  }

  void paintNow()
  {
    const std::size_t start = m_dirtyStart;
    const std::size_t count = m_dirtyEnd - m_dirtyStart;
    m_dirtyEnd = m_dirtyStart = 0;
    m_painter.pause(false);
    if (start == 0 && count >= m_rich.length())
      m_painter.rehighlight();
    else
      m_painter.paint(start, count);
  }

  RichText& m_rich;
  RunPainter m_painter;
  std::size_t m_dirtyStart = 0; ///< characters whose style is to be painted
  std::size_t m_dirtyEnd = 0;
};

} // namespace

std::unique_ptr<Link> linkRichText(RichText& field, QWidget* widget)
{
  if (auto* const edit = qobject_cast<QTextEdit*>(widget))
    return std::make_unique<RichTextLink>(field, edit);
  return {};
}

} // namespace tarvelin::ui
