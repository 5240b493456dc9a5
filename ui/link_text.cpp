// Text fields of one line and of many.
#include "ui/colours.h"
#include "ui/edit_link.h"
#include "ui/links.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <cstring>

namespace tarvelin::ui
{
namespace
{

/// A line is cut at this length for the eye alone; the field keeps what it has.
constexpr int longestLine = 32767;

class LineLink : public Link
{
public:
  LineLink(Text& field, QLineEdit* edit) : Link(field, edit), m_text(field), m_edit(edit), m_own(edit->font())
  {
    edit->setMaxLength(longestLine);
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, [this] { user([this] { edited(); }); });
    connect(edit, &QLineEdit::selectionChanged, this, [this] { moved(); });
    connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { moved(); });
    begin();
  }

private:
  void edited()
  {
    const QString now = m_edit->text();
    const Difference edit = difference(m_shown, now);
    m_shown = now;
    const std::size_t start = charactersBefore(m_text.text(), edit.start);
    const std::size_t end = charactersBefore(m_text.text(), edit.start + edit.removed);
    std::string added = fieldText(QStringView(now).mid(edit.start, edit.added));
    if (const std::size_t lineEnd = added.find('\r'); lineEnd != std::string::npos)
      added.resize(lineEnd); // a pasted text ends at its first line
    m_text.userEdit(start, end - start, added);
  }

  /// The caret or the selection of the widget is another one.
  void moved()
  {
    if (updating() || m_shown != m_edit->text())
      return;
    const int start = m_edit->hasSelectedText() ? m_edit->selectionStart() : m_edit->cursorPosition();
    const std::size_t first = charactersBefore(m_text.text(), start);
    const std::size_t behind = charactersBefore(m_text.text(), start + static_cast<int>(m_edit->selectedText().size()));
    m_text.select(first, behind - first);
  }

  void update(const FieldChange& change) override
  {
    if (change.what == Change::font || change.what == Change::everything)
      showFont(*m_edit, m_text.font(), m_own);
    if (change.what == Change::font)
      return;
    const QString shown = shownText(m_text.text()).left(longestLine);
    m_shown = shown;
    if (m_edit->text() != shown)
      m_edit->setText(shown);
    const int start = shownBefore(m_text.text(), m_text.selStart());
    const int length = shownBefore(m_text.text(), m_text.selStart() + m_text.selLength()) - start;
    if (length == 0)
      m_edit->setCursorPosition(start);
    else if (m_edit->selectionStart() != start || m_edit->selectedText().size() != length)
      m_edit->setSelection(start, length);
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    return filterKeys(m_text, *event, [this](auto&& action) { user(action); }) || Link::eventFilter(watched, event);
  }

  Text& m_text;
  QLineEdit* m_edit;
  QFont m_own;
  QString m_shown; ///< what the widget held when it last was at one with the field
};

} // namespace

bool filterKeys(Text& text, QEvent& event, const std::function<void(const std::function<void()>&)>& user)
{
  if (!text.onKeyUp)
    return false;
  if (event.type() != QEvent::KeyRelease && event.type() != QEvent::KeyPress &&
      event.type() != QEvent::ShortcutOverride)
    return false;
  auto& key = static_cast<QKeyEvent&>(event);
  const int code = key.key();
  if (code < Qt::Key_0 || code > Qt::Key_Z || (code > Qt::Key_9 && code < Qt::Key_A))
    return false;
  const Qt::KeyboardModifiers modifiers = key.modifiers();
  if (event.type() == QEvent::KeyRelease)
  {
    if (key.isAutoRepeat())
      return false;
    const int shift = (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
                      (modifiers & Qt::AltModifier ? 4 : 0);
    user([&text, code, shift] { text.userKey({static_cast<char>(code), shift}); });
    return false;
  }
  // Ctrl and a letter belong to the field's own handler, but for clipboard and undo.
  const bool own = modifiers == Qt::ControlModifier && code >= Qt::Key_A && !std::strchr("CVXYZ", code);
  if (own && event.type() == QEvent::ShortcutOverride)
    event.accept();
  return own;
}

std::unique_ptr<Link> linkText(Text& field, QWidget* widget)
{
  if (auto* const line = qobject_cast<QLineEdit*>(widget))
    return std::make_unique<LineLink>(field, line);
  if (auto* const edit = qobject_cast<QPlainTextEdit*>(widget))
  {
    auto link = std::make_unique<EditLink>(field, edit);
    link->start();
    return link;
  }
  return {};
}

} // namespace tarvelin::ui
