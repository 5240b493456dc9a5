#pragma once

#include "core/forms/text.h"
#include "ui/colours.h"
#include "ui/link.h"
#include "ui/text_positions.h"

#include <QEvent>
#include <QFont>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>
#include <cstring>
#include <functional>

namespace tarvelin::ui
{

/// Hands the keys of a text widget to the field's key handler, where it has one: true when the widget must not see it.
bool filterKeys(Text& text, QEvent& event, const std::function<void(const std::function<void()>&)>& user);

/// A text field of many lines and its editor (QPlainTextEdit, QTextEdit). Edits go both ways as splices.
template <class Edit> class EditLink : public Link
{
public:
  EditLink(Text& field, Edit* edit) : Link(field, edit), m_text(field), m_edit(edit), m_own(edit->font())
  {
    edit->installEventFilter(this);
    QTextDocument* const document = edit->document();
    connect(document, &QTextDocument::contentsChange, this,
            [this](int from, int, int added) { m_pending = m_pending.merged(from, added, updating()); });
    connect(document, &QTextDocument::contentsChanged, this, [this] { user([this] { edited(); }); });
    connect(edit, &Edit::cursorPositionChanged, this, [this] { moved(); });
    connect(edit, &Edit::selectionChanged, this, [this] { moved(); });
  }

  void start() { begin(); }

protected:
  /// The document is at one with the field again; `from` and `added` tell where it changed.
  virtual void textShown(int /*from*/, int /*added*/) {}

  Text& text() const { return m_text; }
  Edit& edit() const { return *m_edit; }
  bool pending() const { return m_pending.from >= 0; }

  void update(const FieldChange& change) override
  {
    if (change.what == Change::font || change.what == Change::everything)
      showFont(*m_edit, m_text.font(), m_own);
    if (change.what == Change::text && m_echo)
    {
      m_echo = false;
      return;
    }
    if (change.what == Change::text)
      showSplice(change);
    else if (change.what == Change::everything)
      showText();
    if (change.what != Change::font && change.what != Change::style && !pending())
      showSelection();
  }

private:
  /// What the document told of its edit, until it is done with it.
  struct Pending
  {
    int from = -1;
    int added = 0;

    Pending merged(int start, int count, bool ignore) const
    {
      if (ignore)
        return *this;
      if (from < 0)
        return {start, count};
      const int first = std::min(from, start);
      return {first, std::max(from + added, start + count) - first + count};
    }
  };

  int documentLength() const { return m_edit->document()->characterCount() - 1; }

  QString shownPart(int from, int count) const
  {
    QTextCursor cursor(m_edit->document());
    cursor.setPosition(from);
    cursor.setPosition(from + count, QTextCursor::KeepAnchor);
    QString part = cursor.selectedText();
    std::replace(part.begin(), part.end(), QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    return part;
  }

  /// The user's edit goes to the field.
  void edited()
  {
    if (m_pending.from < 0)
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
    const std::size_t start = charactersBefore(m_text.text(), from);
    const std::size_t end = charactersBefore(m_text.text(), from + removed);
    const QString before = shownText(m_text.part(start, end - start));
    const QString after = shownPart(from, added);
    m_pending = {};
    m_shown = length;
    const Difference edit = difference(before, after);
    if (edit.removed == 0 && edit.added == 0)
      return;
    const std::size_t first = start + charactersBefore(fieldPart(start, end), edit.start);
    const std::size_t behind = start + charactersBefore(fieldPart(start, end), edit.start + edit.removed);
    m_echo = true;
    m_text.userEdit(first, behind - first, fieldText(QStringView(after).mid(edit.start, edit.added)));
    m_echo = false;
    textShown(from + edit.start, edit.added);
    moved();
  }

  std::string fieldPart(std::size_t start, std::size_t end) const { return m_text.part(start, end - start); }

  void showSplice(const FieldChange& change)
  {
    const std::size_t length = m_text.length();
    if (change.first == 0 && change.added == length) // another text: what was typed into the old one cannot be undone
    {
      m_edit->setPlainText(shownText(m_text.text()));
      m_shown = documentLength();
      textShown(0, m_shown);
    }
    else if (change.removed == 0 && change.first + change.added == length && m_text.part(change.first - 1, 1) != "\r")
    {
      const int from = m_shown;
      replaceShown(from, 0, shownText(m_text.part(change.first, change.added)));
    }
    else
      showText();
  }

  /// Makes the document the field's text by the smallest edit.
  void showText()
  {
    const QString now = shownText(m_text.text());
    const QString before = m_edit->toPlainText();
    const Difference edit = difference(before, now);
    if (edit.removed > 0 && edit.removed == before.size())
    {
      m_edit->setPlainText(now);
      m_shown = documentLength();
      textShown(0, m_shown);
      return;
    }
    replaceShown(edit.start, edit.removed, now.mid(edit.start, edit.added));
  }

  void replaceShown(int from, int removed, const QString& added)
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

  void showSelection()
  {
    const int start = shownBefore(m_text.text(), m_text.selStart());
    const int end = shownBefore(m_text.text(), m_text.selStart() + m_text.selLength());
    QTextCursor cursor = m_edit->textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end)
      return;
    const int last = documentLength();
    cursor.setPosition(std::min(start, last));
    cursor.setPosition(std::min(end, last), QTextCursor::KeepAnchor);
    m_edit->setTextCursor(cursor);
  }

  /// The caret or the selection of the editor is another one.
  void moved()
  {
    if (updating() || pending() || m_echo)
      return;
    const QTextCursor cursor = m_edit->textCursor();
    const std::size_t start = charactersBefore(m_text.text(), cursor.selectionStart());
    const std::size_t end = charactersBefore(m_text.text(), cursor.selectionEnd());
    m_text.select(start, end - start);
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    return filterKeys(m_text, *event, [this](auto&& action) { user(action); }) || Link::eventFilter(watched, event);
  }

  Text& m_text;
  Edit* m_edit;
  QFont m_own;
  Pending m_pending;
  int m_shown = 0;     ///< units that the document held when it last was at one with the field
  bool m_echo = false; ///< the next splice of the field is the user's own
};

} // namespace tarvelin::ui
