// Trees.
#include "ui/item_mouse.h"
#include "ui/links.h"
#include "ui/tree_filter.h"

#include <QHash>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <iterator>

namespace tarvelin::ui
{
namespace
{

/// In the look of a form: arrow keys only move the highlight, Enter and blank are the click.
constexpr const char* clickByEnter = "clickByEnter";

/// In the look of a form: the name of the tree that a line of text searches.
constexpr const char* filterOf = "filterOf";

/// The icons of the nodes, by their index from 1.
constexpr const char* icons[] = {":/icons/chapter.svg", ":/icons/mission.svg"};

QIcon iconOf(int icon)
{
  return icon >= 1 && icon <= static_cast<int>(std::size(icons)) ? QIcon(icons[icon - 1]) : QIcon();
}

class TreeLink : public Link
{
public:
  TreeLink(Tree& field, QTreeWidget* tree) : Link(field, tree), m_nodes(field), m_tree(tree), m_mouse(*tree)
  {
    tree->setHeaderHidden(true);
    tree->setColumnCount(1);
    tree->setUniformRowHeights(true);
    tree->installEventFilter(this);
    m_mouse.onReleased = [this] { fieldChanged(m_nodes, {Change::selection}); };
    connect(tree, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item)
            {
              if (m_mouse.takeClick())
                click(item);
            });
    connect(tree, &QTreeWidget::itemSelectionChanged, this,
            [this]
            {
              if (!updating() && !m_mouse.down() && !m_tree->property(clickByEnter).toBool() &&
                  !m_tree->selectedItems().isEmpty())
                click(m_tree->selectedItems().first());
            });
    connect(tree, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { expanded(item, true); });
    connect(tree, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) { expanded(item, false); });
    for (QLineEdit* const line : tree->window()->findChildren<QLineEdit*>())
      if (line->property(filterOf).toString() == tree->objectName())
      {
        m_filter = std::make_unique<TreeFilter>(*line, *tree);
        m_filter->onChange = [this] { quietly([this] { showFound(); }); };
      }
    begin();
  }

private:
  std::string keyOf(const QTreeWidgetItem* item) const { return item->data(0, Qt::UserRole).toString().toStdString(); }

  void click(const QTreeWidgetItem* item)
  {
    const std::string key = keyOf(item);
    if (m_nodes.find(key))
      user([this, key] { m_nodes.userClick(key); });
  }

  void expanded(const QTreeWidgetItem* item, bool on)
  {
    const std::string key = keyOf(item);
    if (updating() || !m_nodes.find(key))
      return;
    m_ownExpansion = true;
    m_nodes.setExpanded(key, on);
    m_ownExpansion = false;
  }

  void update(const FieldChange& change) override
  {
    if (m_ownExpansion)
      return;
    if (change.what == Change::selection)
      showSelected();
    else if (change.what == Change::everything)
      fill();
    else if (!m_stale) // many nodes in a row are shown as one change
    {
      m_stale = true;
      QMetaObject::invokeMethod(
          this, [this] { fieldChanged(m_nodes, {Change::everything}); }, Qt::QueuedConnection);
    }
  }

  void fill()
  {
    m_stale = false;
    m_items.clear();
    m_tree->setUpdatesEnabled(false);
    m_tree->clear();
    for (const Tree::Node* const node : m_nodes.nodes())
    {
      const QString key = QString::fromStdString(node->key);
      QTreeWidgetItem* const above = node->parent ? m_items.value(node->parent) : m_tree->invisibleRootItem();
      auto item = std::make_unique<QTreeWidgetItem>();
      item->setText(0, QString::fromStdString(node->text));
      item->setToolTip(0, item->text(0)); // a long one is cut
      item->setIcon(0, iconOf(node->icon));
      item->setData(0, Qt::UserRole, key);
      m_items.insert(node, item.get());
      above->addChild(item.release()); // the tree owns it
    }
    showFound();
    m_tree->setUpdatesEnabled(true);
    showSelected();
  }

  /// Nodes are open as the field has them, but for those on the way to what the filter found.
  void showFound()
  {
    if (m_stale)
      return;
    for (const Tree::Node* const node : m_nodes.nodes())
      m_items.value(node)->setExpanded(node->expanded);
    if (m_filter)
      m_filter->apply();
    if (m_tree->currentItem())
      m_tree->scrollToItem(m_tree->currentItem());
  }

  void showSelected()
  {
    if (m_stale)
      return;
    QTreeWidgetItem* const item = m_nodes.selected() ? m_items.value(m_nodes.selected()) : nullptr;
    if (item == m_tree->currentItem() && (!item || item->isSelected()))
      return;
    m_tree->setCurrentItem(item);
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::KeyPress && m_tree->property(clickByEnter).toBool() && m_tree->currentItem())
    {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
      {
        click(m_tree->currentItem());
        return true;
      }
    }
    return Link::eventFilter(watched, event);
  }

  Tree& m_nodes;
  QTreeWidget* m_tree;
  ItemMouse m_mouse;
  QHash<const Tree::Node*, QTreeWidgetItem*> m_items;
  std::unique_ptr<TreeFilter> m_filter;
  bool m_stale = false;
  bool m_ownExpansion = false;
};

} // namespace

std::unique_ptr<Link> linkTree(Tree& field, QWidget* widget)
{
  if (auto* const tree = qobject_cast<QTreeWidget*>(widget))
    return std::make_unique<TreeLink>(field, tree);
  return {};
}

} // namespace tarvelin::ui
