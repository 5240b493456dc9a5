#pragma once

#include <QObject>
#include <functional>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace tarvelin::ui
{

/// A line above a tree that shows only what its words find, on all levels: a node is found when the nodes from the root
/// down to it hold every word between them; what is below a found node and above it is shown, too. Enter and the down
/// key go to the first leaf that was found, Esc shows all again.
class TreeFilter : public QObject
{
public:
  TreeFilter(QLineEdit& line, QTreeWidget& tree);

  /// Other words were typed; `apply` is to be called.
  std::function<void()> onChange;

  /// True while some nodes may be hidden.
  bool active() const;

  /// Hides what was not found, and opens the way to what was.
  void apply();

private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void goToFirst();

  QLineEdit& m_line;
  QTreeWidget& m_tree;
};

} // namespace tarvelin::ui
