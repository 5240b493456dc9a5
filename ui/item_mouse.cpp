#include "ui/item_mouse.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <utility>

namespace tarvelin::ui
{

ItemMouse::ItemMouse(QAbstractItemView& view)
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
