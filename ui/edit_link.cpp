#include "ui/edit_link.h"

#include "ui/colours.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

namespace tarvelin::ui
{

EditLink::Pending EditLink::Pending::merged(int start, int count) const
{
  if (from < 0)
    return {start, count};
  const int first = std::min(from, start);
  return {first, std::max(from + added, start + count) - first + count};
}

EditLink::EditLink(Text& field, QPlainTextEdit* edit)
    : Link(field, edit), m_text(field), m_edit(edit), m_own(edit->font())
{
  edit->installEventFilter(this);
  QTextDocument* const document = edit->document();
  connect(document, &QTextDocument::contentsChange, this,
          [this](int from, int, int added)
          {
            if (!updating())
              m_pending = m_pending.merged(from, added);
          });
  connect(document, &QTextDocument::contentsChanged, this, [this] { user([this] { edited(); }); });
  connect(edit, &QPlainTextEdit::cursorPositionChanged, this, [this] { moved(); });
  connect(edit, &QPlainTextEdit::selectionChanged, this, [this] { moved(); });
}

void EditLink::update(const FieldChange& change)
{
  if (change.what == Change::font || change.what == Change::everything)
    showFont(*m_edit, m_text.font(), m_own);
  switch (change.what)
  {
  case Change::text:
    if (m_echo)
    {
      m_places.spliced(m_echo->from, m_echo->to, change.added);
      m_echo.reset();
      return;
    }
    showSplice(change);
    break;
  case Change::everything: showAnew(); return;
  case Change::selection: break;
  default: return;
  }
  if (!pending())
    showSelection();
}

int EditLink::documentLength() const
{
  return m_edit->document()->characterCount() - 1;
}

QString EditLink::shownPart(int from, int count) const
{
  QTextCursor cursor(m_edit->document());
  cursor.setPosition(from);
  cursor.setPosition(from + count, QTextCursor::KeepAnchor);
  return cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

/// The user's edit goes to the field.
void EditLink::edited()
{
  if (!pending())
    return;
  // A document tells more than it changed at its ends; the lengths put it right.
  const int length = documentLength();
  int from = std::min(m_pending.from, length);
  int added = std::min(m_pending.added, length - from);
  int removed = m_shown - length + added;
  if (removed < 0 || from + removed > m_shown)
  {
    from = 0;
    added = length;
    removed = m_shown;
  }
  const Place start = placeOfShown(from);
  const Place end = m_places.ofShown(m_text.text(), from + removed);
  const QString after = shownPart(from, added);
  const Difference edit = difference(m_places.shownPart(m_text.text(), start, end), after);
  m_pending = {};
  m_shown = length;
  if (edit.removed == 0 && edit.added == 0)
    return;
  const Place first = placeOfShown(from + edit.start);
  const Place behind = placeOfShown(from + edit.start + edit.removed);
  const std::string text = fieldText(QStringView(after).mid(edit.start, edit.added));
  if (first.characters == behind.characters && text.empty()) // rows of one line were joined
  {
    m_places.spliced(first, behind, 0);
    textShown(from + edit.start, 0);
  }
  else
  {
    m_echo = Echo{first, behind};
    m_text.userEdit(first.characters, behind.characters - first.characters, text);
    m_echo.reset();
    textShown(from + edit.start, edit.added);
  }
  cutRows(from + edit.start, edit.added);
  moved();
}

void EditLink::showSplice(const FieldChange& change)
{
  const std::string& text = m_text.text();
  if (change.first == 0 && change.added == m_text.length()) // another text
    return replaceWhole();
  const std::size_t start = m_text.offsetOf(change.first);
  const std::size_t end = m_text.offsetOf(change.first + change.added);
  if ((start > 0 && text[start - 1] == '\r') || (end < text.size() && text[end] == '\n')) // half a line end
    return showText();
  const Place from = placeOfCharacter(change.first);
  Place to = from;
  to.characters += change.removed;
  to.rows = m_places.rowsBefore(to.characters);
  const int removed = shownLength(change.gone) + static_cast<int>(to.rows - from.rows);
  m_places.spliced(from, to, change.added);
  const QString added = shownText(std::string_view(text).substr(start, end - start));
  replaceShown(from.shown, removed, added);
  cutRows(from.shown, static_cast<int>(added.size()));
}

/// Shows the field's text and selection; what is seen stays in its place when the caret does.
void EditLink::showAnew()
{
  const QTextCursor before = m_edit->textCursor();
  const std::pair selection(before.selectionStart(), before.selectionEnd());
  const int column = m_edit->horizontalScrollBar()->value();
  const int line = m_edit->verticalScrollBar()->value();
  showText();
  showSelection();
  const QTextCursor now = m_edit->textCursor();
  if (selection != std::pair(now.selectionStart(), now.selectionEnd()))
    return;
  m_edit->verticalScrollBar()->setValue(line);
  m_edit->horizontalScrollBar()->setValue(column);
}

/// Brings the document to the field's text by the smallest edit.
void EditLink::showText()
{
  const QString now = m_places.show(m_text.text());
  const QString before = m_edit->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
  const Difference edit = difference(before, now);
  if (edit.removed > before.size() / 2)
    return replaceWhole();
  replaceShown(edit.start, edit.removed, now.mid(edit.start, edit.added));
}

void EditLink::replaceWhole()
{
  m_edit->setPlainText(m_places.show(m_text.text()));
  m_shown = documentLength();
  textShown(0, m_shown);
}

void EditLink::replaceShown(int from, int removed, const QString& added)
{
  if (removed > 0 || !added.isEmpty())
  {
    QTextCursor cursor(m_edit->document());
    cursor.setPosition(from);
    cursor.setPosition(from + removed, QTextCursor::KeepAnchor);
    cursor.insertText(added);
  }
  m_shown = documentLength();
  textShown(from, static_cast<int>(added.size()));
}

/// Cuts the rows of a changed part that have grown too long to be laid out.
void EditLink::cutRows(int from, int added)
{
  for (QTextBlock row = m_edit->document()->findBlock(from); row.isValid() && row.position() <= from + added;
       row = row.next())
  {
    if (row.length() - 1 <= ShownPlaces::longestRow)
      continue;
    int cut = row.position() + ShownPlaces::rowLength;
    if (m_edit->document()->characterAt(cut).isLowSurrogate())
      ++cut;
    m_places.endRow(placeOfShown(cut));
    QTextCursor cursor(row);
    cursor.setPosition(cut);
    quietly([&cursor] { cursor.insertBlock(); });
    ++added;
    m_shown = documentLength();
    textShown(cut, 1);
  }
}

void EditLink::showSelection()
{
  const std::size_t first = m_text.selStart();
  const std::size_t behind = first + m_text.selLength();
  QTextCursor cursor = m_edit->textCursor();
  if (placeOfShown(cursor.selectionStart()).characters == first &&
      placeOfShown(cursor.selectionEnd()).characters == behind)
    return;
  const int start = placeOfCharacter(first).shown;
  const int end = placeOfCharacter(behind).shown;
  const int last = documentLength();
  cursor.setPosition(std::min(start, last));
  cursor.setPosition(std::min(end, last), QTextCursor::KeepAnchor);
  m_edit->setTextCursor(cursor);
}

/// The caret or the selection of the editor is another one.
void EditLink::moved()
{
  if (updating() || pending() || m_echo)
    return;
  const QTextCursor cursor = m_edit->textCursor();
  const std::size_t start = placeOfShown(cursor.selectionStart()).characters;
  const std::size_t end = cursor.hasSelection() ? placeOfShown(cursor.selectionEnd()).characters : start;
  m_text.select(start, end - start);
}

bool EditLink::eventFilter(QObject* watched, QEvent* event)
{
  return filterKeys(m_text, *event, [this](auto&& action) { user(action); }) || Link::eventFilter(watched, event);
}

} // namespace tarvelin::ui
