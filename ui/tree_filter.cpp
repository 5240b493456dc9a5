#include "ui/tree_filter.h"

#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <algorithm>

namespace tarvelin::ui
{

namespace
{

/// Shows an item and its children as far as they have a word of their own; true when one of them was found. `missing`
/// are the words that no item above holds.
bool show(QTreeWidgetItem& item, const QStringList& missing)
{
  QStringList still;
  for (const QString& word : missing)
    if (!item.text(0).contains(word, Qt::CaseInsensitive))
      still += word;
  bool found = still.isEmpty();
  bool below = false;
  for (int i = 0; i < item.childCount(); ++i)
    below = show(*item.child(i), still) || below;
  found = found || below;
  item.setHidden(!found);
  if (below && !still.isEmpty())
    item.setExpanded(true);
  return found;
}

} // namespace

TreeFilter::TreeFilter(QLineEdit& line, QTreeWidget& tree) : m_line(line), m_tree(tree)
{
  line.addAction(QIcon(":/icons/search.svg"), QLineEdit::LeadingPosition);
  line.installEventFilter(this);
  connect(&line, &QLineEdit::textChanged, this,
          [this]
          {
            if (onChange)
              onChange();
          });
}

bool TreeFilter::active() const
{
  return !m_line.text().trimmed().isEmpty();
}

void TreeFilter::apply()
{
  const QStringList words = m_line.text().split(u' ', Qt::SkipEmptyParts);
  m_tree.setUpdatesEnabled(false);
  for (int i = 0; i < m_tree.topLevelItemCount(); ++i)
    show(*m_tree.topLevelItem(i), words);
  m_tree.setUpdatesEnabled(true);
}

void TreeFilter::goToFirst()
{
  for (QTreeWidgetItemIterator item(&m_tree, QTreeWidgetItemIterator::NotHidden); *item; ++item)
    if ((*item)->childCount() == 0 && (*item)->parent())
    {
      m_tree.setCurrentItem(*item);
      m_tree.setFocus();
      return;
    }
}

bool TreeFilter::eventFilter(QObject* watched, QEvent* event)
{
  if (event->type() == QEvent::KeyPress)
    switch (static_cast<QKeyEvent*>(event)->key())
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down: goToFirst(); return true;
    case Qt::Key_Escape: m_line.clear(); return true;
    default: break;
    }
  return QObject::eventFilter(watched, event);
}

} // namespace tarvelin::ui
