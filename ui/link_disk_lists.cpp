// Drives, folders and files.
#include "core/attempt.h"
#include "core/strings.h"
#include "platform/files.h"
#include "ui/default_button.h"
#include "ui/item_mouse.h"
#include "ui/links.h"

#include <QComboBox>
#include <QListWidget>
#include <QStyle>
#include <QTreeWidget>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

QString shown(std::string_view name)
{
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

class FileListLink : public Link
{
public:
  FileListLink(FileList& field, QListWidget* list)
      : Link(field, list),
        m_files(field),
        m_list(list),
        m_mouse(*list),
        m_icon(list->style()->standardIcon(QStyle::SP_FileIcon))
  {
    list->setUniformItemSizes(true);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_mouse.onReleased = [this] { fieldChanged(m_files, {Change::selection}); };
    connect(list, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item)
            {
              if (m_mouse.takeClick())
                choose(item->text());
            });
    connect(list, &QListWidget::itemSelectionChanged, this,
            [this]
            {
              if (!updating() && !m_mouse.down() && !m_list->selectedItems().isEmpty())
                choose(m_list->selectedItems().first()->text());
            });
    connect(list, &QListWidget::itemDoubleClicked, this,
            [this] { pressDefault(*m_list); }); // a double click is OK, too
    list->installEventFilter(this);
    begin();
  }

private:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (!isEnter(*event) || m_list->selectedItems().isEmpty())
      return Link::eventFilter(watched, event);
    pressDefault(*m_list);
    return true;
  }

  void choose(const QString& name)
  {
    const std::string file = name.toStdString();
    if (m_files.has(file)) // it may have gone meanwhile
      user([this, file] { m_files.userSelect(file); });
  }

  void update(const FieldChange& change) override
  {
    if (change.what != Change::selection)
      fill();
    const auto& names = m_files.names();
    const auto found = std::ranges::find(names, m_files.selected());
    const int row = m_files.selected().empty() || found == names.end() ? -1 : static_cast<int>(found - names.begin());
    if (m_list->currentRow() != row || m_list->selectedItems().isEmpty())
      m_list->setCurrentRow(row);
  }

  void fill()
  {
    QStringList names;
    for (const std::string& name : m_files.names())
      names += shown(name);
    m_list->setUpdatesEnabled(false);
    m_list->clear();
    m_list->addItems(names);
    for (int row = 0; row < m_list->count(); ++row)
      m_list->item(row)->setIcon(m_icon);
    m_list->setUpdatesEnabled(true);
  }

  FileList& m_files;
  QListWidget* m_list;
  ItemMouse m_mouse;
  QIcon m_icon;
};

/// A tree of folders that reads the folders below a node when it is opened.
class FolderListLink : public Link
{
public:
  FolderListLink(FolderList& field, QTreeWidget* tree)
      : Link(field, tree),
        m_folders(field),
        m_tree(tree),
        m_mouse(*tree),
        m_icon(tree->style()->standardIcon(QStyle::SP_DirIcon))
  {
    tree->setHeaderHidden(true);
    tree->setColumnCount(1);
    tree->setUniformRowHeights(true);
    tree->setExpandsOnDoubleClick(true);
    m_mouse.onReleased = [this] { fieldChanged(m_folders, {Change::path}); };
    connect(tree, &QTreeWidget::itemClicked, this,
            [this](const QTreeWidgetItem* item)
            {
              if (m_mouse.takeClick())
                go(pathOf(*item));
            });
    connect(tree, &QTreeWidget::itemSelectionChanged, this,
            [this]
            {
              if (!updating() && !m_mouse.down() && !m_tree->selectedItems().isEmpty())
                go(pathOf(*m_tree->selectedItems().first()));
            });
    connect(tree, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { read(*item); });
    begin();
  }

private:
  static constexpr int pathRole = Qt::UserRole;
  static constexpr int readRole = Qt::UserRole + 1;

  static std::string pathOf(const QTreeWidgetItem& item) { return item.data(0, pathRole).toString().toStdString(); }

  void go(const std::string& path)
  {
    if (FolderList::exists(path)) // it may have gone meanwhile
      user([this, path] { m_folders.userSetPath(path); });
  }

  std::unique_ptr<QTreeWidgetItem> makeItem(const std::string& path, std::string_view name)
  {
    auto item = std::make_unique<QTreeWidgetItem>();
    item->setText(0, name == "\\" ? QStringLiteral("/") : shown(name));
    item->setData(0, pathRole, shown(path));
    item->setIcon(0, m_icon);
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
  }

  /// Reads the folders below an item once.
  void read(QTreeWidgetItem& item)
  {
    if (item.data(0, readRole).toBool())
      return;
    item.setData(0, readRole, true);
    const std::string path = pathOf(item);
    const std::string stem = path.ends_with('\\') ? path : path + "\\";
    QList<QTreeWidgetItem*> below;
    attempt(
        [&]
        {
          for (const std::string& name : platform::listFolders(path))
            below += makeItem(stem + name, name).release(); // the tree owns its items
        });
    item.addChildren(below);
    if (below.isEmpty())
      item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicator);
  }

  static QTreeWidgetItem* childNamed(QTreeWidgetItem& item, std::string_view name)
  {
    for (int i = 0; i < item.childCount(); ++i)
      if (sameAscii(item.child(i)->text(0).toStdString(), name))
        return item.child(i);
    return nullptr;
  }

  /// The tree shows one drive: its root, and the way down to the field's folder.
  void update(const FieldChange&) override
  {
    const std::string& path = m_folders.path();
    if (path.empty())
      return m_tree->clear();
    const std::string root = path.size() >= 2 && path[1] == ':' ? path.substr(0, 2) + "\\" : "\\";
    QTreeWidgetItem* item = m_tree->topLevelItem(0);
    if (!item || pathOf(*item) != root)
    {
      m_tree->clear();
      item = makeItem(root, root).release();
      m_tree->addTopLevelItem(item);
    }
    for (std::size_t at = root.size(); at < path.size();)
    {
      const std::size_t end = std::min(path.find('\\', at), path.size());
      const std::string_view name = std::string_view(path).substr(at, end - at);
      read(*item);
      item->setExpanded(true);
      QTreeWidgetItem* next = childNamed(*item, name);
      if (!next && !name.empty()) // it came after the reading
      {
        next = makeItem(path.substr(0, end), name).release();
        item->addChild(next);
      }
      if (next)
        item = next;
      at = end + 1;
    }
    read(*item);
    item->setExpanded(true);
    if (m_tree->currentItem() != item || !item->isSelected())
      m_tree->setCurrentItem(item);
    m_tree->scrollToItem(item);
  }

  FolderList& m_folders;
  QTreeWidget* m_tree;
  ItemMouse m_mouse;
  QIcon m_icon;
};

class DriveListLink : public Link
{
public:
  DriveListLink(DriveList& field, QComboBox* box) : Link(field, box), m_drives(field), m_box(box)
  {
    if (field.names().empty())
      field.refresh();
    connect(box, &QComboBox::activated, this, [this](int row) { choose(static_cast<std::size_t>(row)); });
    begin();
  }

private:
  void choose(std::size_t row)
  {
    if (row >= m_drives.names().size())
      return;
    const std::string drive = m_drives.names()[row];
    if (m_drives.has(drive)) // it may have been taken out
      user([this, drive] { m_drives.setDrive(drive); });
  }

  void update(const FieldChange&) override
  {
    QStringList names;
    for (const std::string& name : m_drives.names())
      names += name == "\\" ? QStringLiteral("/") : shown(name).toUpper();
    m_box->clear();
    m_box->addItems(names);
    const auto& all = m_drives.names();
    const auto found = std::ranges::find(all, m_drives.drive());
    m_box->setCurrentIndex(found == all.end() ? -1 : static_cast<int>(found - all.begin()));
  }

  DriveList& m_drives;
  QComboBox* m_box;
};

} // namespace

std::unique_ptr<Link> linkFileList(FileList& field, QWidget* widget)
{
  if (auto* const list = qobject_cast<QListWidget*>(widget))
    return std::make_unique<FileListLink>(field, list);
  return {};
}

std::unique_ptr<Link> linkFolderList(FolderList& field, QWidget* widget)
{
  if (auto* const tree = qobject_cast<QTreeWidget*>(widget))
    return std::make_unique<FolderListLink>(field, tree);
  return {};
}

std::unique_ptr<Link> linkDriveList(DriveList& field, QWidget* widget)
{
  if (auto* const box = qobject_cast<QComboBox*>(widget))
    return std::make_unique<DriveListLink>(field, box);
  return {};
}

} // namespace tarvelin::ui
