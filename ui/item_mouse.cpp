#include "ui/item_mouse.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace tarvelin::ui
{

ItemMouse::ItemMouse(QAbstractItemView& view) : m_view(view)
{
  view.viewport()->installEventFilter(this);
  view.installEventFilter(this);
}

bool ItemMouse::takeClick()
{
  return !std::exchange(m_spent, false);
}

void ItemMouse::released()
{
  m_down = false;
  m_spent = false;
  if (onReleased)
    onReleased();
}

/// A list without a highlight gets its first by an arrow key. True when that was done.
bool ItemMouse::highlightFirst()
{
  QItemSelectionModel* const selection = m_view.selectionModel();
  const QModelIndex first = m_view.currentIndex().isValid() ? m_view.currentIndex() : m_view.model()->index(0, 0);
  if (selection->hasSelection() || !first.isValid())
    return false;
  selection->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect);
  return true;
}

bool ItemMouse::eventFilter(QObject* watched, QEvent* event)
{
  switch (event->type())
  {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
    {
      if (onRight && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton)
        onRight();
      return true;
    }
    m_down = true;
    m_spent = event->type() == QEvent::MouseButtonDblClick;
    break;
  case QEvent::MouseMove: return m_down;
  case QEvent::MouseButtonRelease: // behind the view's own work with it
    QMetaObject::invokeMethod(
        this, [this] { released(); }, Qt::QueuedConnection);
    break;
  case QEvent::KeyPress:
    if (const int key = static_cast<QKeyEvent*>(event)->key();
        (key == Qt::Key_Down || key == Qt::Key_Up) && highlightFirst())
      return true;
    break;
  case QEvent::ContextMenu:
    if (onRight && static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
    {
      onRight();
      return true;
    }
    break;
  default: break;
  }
  return QObject::eventFilter(watched, event);
}

} // namespace tarvelin::ui
