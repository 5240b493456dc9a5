#include "ui/drive/look.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTextEdit>
#include <QTreeView>

namespace tarvelin::drive
{
namespace
{

constexpr int mostRows = 2000; ///< of one list that are told

QJsonArray rectangle(const QRect& rect)
{
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

/// What is seen of a part of a widget, on the screen; empty when it is scrolled away.
QRect onScreen(const QWidget& widget, QRect part)
{
  part &= widget.rect();
  const QPoint corner = widget.mapToGlobal(QPoint());
  QRect seen = part.translated(corner);
  for (const QWidget* above = &widget; !above->isWindow() && above->parentWidget();)
  {
    above = above->parentWidget();
    seen &= QRect(above->mapToGlobal(QPoint()), above->size());
  }
  return seen;
}

/// A caption as it is read, without the marks of its keys.
QString plain(QString caption)
{
  return caption.replace(QRegularExpression("&(.)"), "\\1");
}

void addRows(const QAbstractItemView& view, const QModelIndex& parent, int depth, QJsonArray& rows)
{
  const QAbstractItemModel& model = *view.model();
  const auto* const tree = qobject_cast<const QTreeView*>(&view);
  for (int row = 0; row < model.rowCount(parent) && rows.size() < mostRows; ++row)
  {
    const QModelIndex index = model.index(row, 0, parent);
    QJsonObject told{{"text", index.data().toString()},
                     {"depth", depth},
                     {"current", index == view.currentIndex()},
                     {"selected", view.selectionModel() && view.selectionModel()->isSelected(index)}};
    if (index.data(Qt::CheckStateRole).isValid())
      told["checked"] = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    const QRect seen = onScreen(*view.viewport(), view.visualRect(index));
    if (view.isVisible() && !seen.isEmpty())
      told["rect"] = rectangle(seen);
    rows += told;
    if (tree && tree->isExpanded(index))
      addRows(view, index, depth + 1, rows);
  }
}

void addRows(const QAbstractItemView& view, QJsonObject& told)
{
  if (!view.model())
    return;
  QJsonArray rows;
  addRows(view, view.rootIndex(), 0, rows);
  told["rows"] = rows;
}

/// The entries of a menu or of a menu bar.
template <typename Strip> void addEntries(const Strip& strip, QJsonObject& told)
{
  QJsonArray entries;
  for (QAction* const action : strip.actions())
  {
    if (!action->isVisible() || action->isSeparator())
      continue;
    const QString name = action->menu() ? action->menu()->objectName() : action->objectName();
    entries += QJsonObject{{"name", name},
                           {"text", plain(action->text())},
                           {"enabled", action->isEnabled()},
                           {"checked", action->isChecked()},
                           {"current", strip.activeAction() == action},
                           {"rect", rectangle(onScreen(strip, strip.actionGeometry(action)))}};
  }
  told["entries"] = entries;
}

void addTabs(const QTabBar& bar, QJsonObject& told)
{
  QJsonArray tabs;
  for (int tab = 0; tab < bar.count(); ++tab)
    tabs += QJsonObject{{"text", plain(bar.tabText(tab))},
                        {"current", tab == bar.currentIndex()},
                        {"enabled", bar.isTabEnabled(tab)},
                        {"rect", rectangle(onScreen(bar, bar.tabRect(tab)))}};
  told["tabs"] = tabs;
}

QJsonObject lookAt(const QWidget& widget)
{
  const QWidget* const parent = widget.parentWidget();
  QJsonObject told{{"name", widget.objectName()},
                   {"class", widget.metaObject()->className()},
                   {"parent", parent ? parent->objectName() : QString()},
                   {"enabled", widget.isEnabled()},
                   {"focus", widget.hasFocus()},
                   {"rect", rectangle(onScreen(widget, widget.rect()))}};
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
  {
    told["text"] = plain(button->text());
    if (button->isCheckable())
      told["checked"] = button->isChecked();
    if (const auto* const push = qobject_cast<const QPushButton*>(button))
      told["default"] = push->isDefault();
    if (const auto* const box = qobject_cast<const QMessageBox*>(widget.window()))
      told["standard"] = int{box->standardButton(const_cast<QAbstractButton*>(button))};
  }
  else if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
    told["text"] = line->text();
  else if (const auto* const pages = qobject_cast<const QPlainTextEdit*>(&widget))
    told["text"] = pages->toPlainText();
  else if (const auto* const rich = qobject_cast<const QTextEdit*>(&widget))
    told["text"] = rich->toPlainText();
  else if (const auto* const label = qobject_cast<const QLabel*>(&widget))
    told["text"] = plain(label->text());
  else if (const auto* const group = qobject_cast<const QGroupBox*>(&widget))
    told["text"] = plain(group->title());
  else if (const auto* const slider = qobject_cast<const QAbstractSlider*>(&widget))
    told["value"] = slider->value();
  else if (const auto* const progress = qobject_cast<const QProgressBar*>(&widget))
    told["value"] = progress->value();
  else if (const auto* const bar = qobject_cast<const QTabBar*>(&widget))
    addTabs(*bar, told);
  else if (const auto* const menus = qobject_cast<const QMenuBar*>(&widget))
    addEntries(*menus, told);
  else if (const auto* const menu = qobject_cast<const QMenu*>(&widget))
    addEntries(*menu, told);
  else if (const auto* const combo = qobject_cast<const QComboBox*>(&widget))
  {
    told["text"] = combo->currentText();
    told["open"] = combo->view()->isVisible();
    addRows(*combo->view(), told);
  }
  else if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget))
    addRows(*view, told);
  return told;
}

QJsonObject titleOf(const QWidget& window)
{
  return {{"name", window.objectName()},
          {"class", window.metaObject()->className()},
          {"title", window.windowTitle()},
          {"rect", rectangle(window.geometry())},
          {"id", static_cast<qint64>(window.internalWinId())},
          {"active", window.isActiveWindow()},
          {"modal", window.isModal()},
          {"painted", window.property("watcher_painted").toDouble()}};
}

} // namespace

QJsonArray lookAtWindows()
{
  QJsonArray windows;
  for (const QWidget* const window : QApplication::topLevelWidgets())
    if (window->isVisible())
      windows += titleOf(*window);
  return windows;
}

QJsonObject lookAtWindow(const QString& name)
{
  for (const QWidget* const window : QApplication::topLevelWidgets())
  {
    if (!window->isVisible() || (window->objectName() != name && window->metaObject()->className() != name))
      continue;
    QJsonObject told = titleOf(*window);
    QJsonArray widgets{lookAt(*window)};
    for (const QWidget* const widget : window->findChildren<QWidget*>())
      if (widget->isVisible() && widget->window() == window)
        widgets += lookAt(*widget);
    told["widgets"] = widgets;
    return told;
  }
  return {};
}

} // namespace tarvelin::drive
