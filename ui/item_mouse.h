#pragma once

#include <QObject>
#include <functional>

class QAbstractItemView;

namespace tarvelin::ui
{

/// The mouse over a list or a tree, as the fields know it: a left click is a press and a release on one item, told
/// once also when it is the second of a double click; a right press leaves the highlight; dragging highlights nothing.
/// An arrow key begins with the first item.
class ItemMouse : public QObject
{
public:
  explicit ItemMouse(QAbstractItemView& view);

  std::function<void()> onRight;    ///< the right button, or the menu key
  std::function<void()> onReleased; ///< after each left click, done or taken back

  /// True while the left button is held.
  bool down() const { return m_down; }

  /// True once for each click that is to be told.
  bool takeClick();

  /// The click under way was told otherwise.
  void spendClick() { m_spent = m_down; }

private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void released();
  bool highlightFirst();

  QAbstractItemView& m_view;
  bool m_down = false;
  bool m_spent = false;
};

} // namespace tarvelin::ui
