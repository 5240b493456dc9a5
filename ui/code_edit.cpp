#include "ui/code_edit.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

namespace tarvelin::ui
{

namespace
{

constexpr int margin = 6;   // pixels on both sides of the numbers
constexpr int tabWidth = 4; // characters
constexpr int stale = -1;   // state of a block that is new or was changed

} // namespace

/// The strip of line numbers.
class CodeEdit::Numbers : public QWidget
{
public:
  explicit Numbers(CodeEdit& edit) : QWidget(&edit), m_edit(edit) {}

private:
  void paintEvent(QPaintEvent* event) override { m_edit.paintNumbers(event->rect()); }
  void wheelEvent(QWheelEvent* event) override { QCoreApplication::sendEvent(m_edit.viewport(), event); }

  CodeEdit& m_edit;
};

CodeEdit::CodeEdit(QWidget* parent) : QPlainTextEdit(parent), m_numbers(std::make_unique<Numbers>(*this))
{
  setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  setLineWrapMode(NoWrap);
  setUndoRedoEnabled(false);
  connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { layOut(); });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { markLine(); });
  connect(this, &QPlainTextEdit::updateRequest, this,
          [this](const QRect& area, int moved)
          {
            if (moved != 0)
              m_numbers->scroll(0, moved);
            else
              m_numbers->update(0, area.y(), m_numbers->width(), area.height());
          });
  layOut();
  markLine();
}

void CodeEdit::restyle()
{
  ++m_looks;
  viewport()->update();
}

void CodeEdit::restyle(int from, int to)
{
  for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() <= to; block = block.next())
    block.setUserState(stale);
  viewport()->update();
}

void CodeEdit::formatShown()
{
  if (!onFormats)
    return;
  const qreal bottom = viewport()->rect().bottom();
  QTextBlock block = firstVisibleBlock();
  for (qreal top = contentOffset().y(); block.isValid() && top <= bottom; block = block.next())
  {
    if (block.userState() != m_looks)
    {
      const Formats formats = onFormats(block);
      if (block.layout()->formats() != formats)
      {
        block.layout()->setFormats(formats);
        document()->markContentsDirty(block.position(), block.length());
      }
      block.setUserState(m_looks);
    }
    top += blockBoundingRect(block).height();
  }
}

void CodeEdit::keyPressEvent(QKeyEvent* event)
{
  const bool undo = event->matches(QKeySequence::Undo);
  const bool redo = event->matches(QKeySequence::Redo) || event->keyCombination() == (Qt::CTRL | Qt::Key_Y) ||
                    event->keyCombination() == (Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  if (undo && onUndo)
    onUndo();
  else if (redo && onRedo)
    onRedo();
  else
    return QPlainTextEdit::keyPressEvent(event);
  ensureCursorVisible();
  event->accept();
}

/// The usual menu, its first two entries with this editor's undo.
void CodeEdit::contextMenuEvent(QContextMenuEvent* event)
{
  const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
  const QList<QAction*> actions = menu->actions();
  if (!isReadOnly() && actions.size() > 2 && onUndo && onRedo)
  {
    const auto take = [](QAction* action, bool possible, const std::function<void()>& run)
    {
      action->disconnect();
      action->setEnabled(possible);
      connect(action, &QAction::triggered, action, run);
    };
    take(actions[0], canUndo && canUndo(), onUndo);
    take(actions[1], canRedo && canRedo(), onRedo);
  }
  menu->exec(event->globalPos());
}

void CodeEdit::changeEvent(QEvent* event)
{
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange)
    layOut();
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
  {
    restyle(); // what can be read on another ground
    markLine();
  }
}

void CodeEdit::resizeEvent(QResizeEvent* event)
{
  QPlainTextEdit::resizeEvent(event);
  layOut();
}

bool CodeEdit::viewportEvent(QEvent* event)
{
  if (event->type() == QEvent::Paint)
    formatShown();
  return QPlainTextEdit::viewportEvent(event);
}

int CodeEdit::numberOf(const QTextBlock& block) const
{
  return onNumber ? onNumber(block) : block.blockNumber() + 1;
}

/// The strip is as wide as the last number.
void CodeEdit::layOut()
{
  const QFontMetrics metrics = fontMetrics();
  setTabStopDistance(tabWidth * metrics.horizontalAdvance(u' '));
  m_numbers->setFont(font());
  const auto digits = std::max<qsizetype>(3, QString::number(blockCount()).size());
  const int width = static_cast<int>(digits) * metrics.horizontalAdvance(u'9') + 2 * margin;
  setViewportMargins(width, 0, 0, 0);
  const QRect inner = contentsRect();
  m_numbers->setGeometry(inner.left(), inner.top(), width, viewport()->height());
}

void CodeEdit::paintNumbers(const QRect& area)
{
  QPainter painter(m_numbers.get());
  painter.fillRect(area, palette().color(QPalette::Window));
  const int caret = textCursor().blockNumber();
  QTextBlock block = firstVisibleBlock();
  for (qreal top = contentOffset().y(); block.isValid() && top <= area.bottom(); block = block.next())
  {
    const qreal height = blockBoundingRect(block).height();
    if (const int number = top + height >= area.top() ? numberOf(block) : 0; number > 0)
    {
      painter.setPen(palette().color(block.blockNumber() == caret ? QPalette::WindowText : QPalette::PlaceholderText));
      painter.drawText(QRectF(0, top, m_numbers->width() - margin, height), Qt::AlignRight | Qt::AlignTop,
                       QString::number(number));
    }
    top += height;
  }
}

/// Marks the line of the caret.
void CodeEdit::markLine()
{
  QTextEdit::ExtraSelection line;
  line.format.setBackground(palette().color(QPalette::AlternateBase));
  line.format.setProperty(QTextFormat::FullWidthSelection, true);
  line.cursor = textCursor();
  line.cursor.clearSelection();
  setExtraSelections({line});
  m_numbers->update();
}

} // namespace tarvelin::ui
