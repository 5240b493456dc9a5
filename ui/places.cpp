#include "ui/places.h"

#include "core/folder_scan.h"
#include "core/forms/disk_lists.h"
#include "core/forms/form.h"
#include "core/shared.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "ui/default_button.h"

#include <QDir>
#include <QEvent>
#include <QLineEdit>
#include <QToolButton>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

template <class T> T* fieldOf(const Form& form, Kind kind)
{
  const auto found = std::ranges::find_if(form.fields(), [kind](const Field* field) { return field->kind() == kind; });
  return found == form.fields().end() ? nullptr : static_cast<T*>(*found);
}

class PlacesLink : public Link
{
public:
  PlacesLink(FolderList& folders, FileList* files, DriveList* drives, const QWidget& window, QLineEdit* line)
      : Link(folders, line), m_folders(folders), m_files(files), m_drives(drives), m_line(line)
  {
    line->installEventFilter(this);
    if (auto* const home = window.findChild<QToolButton*>("box_home"))
      connect(home, &QToolButton::clicked, this, [this] { user([this] { goTo(platform::homeFolder()); }); });
    if (auto* const game = window.findChild<QToolButton*>("box_game"))
      connect(game, &QToolButton::clicked, this, [this] { user([this] { goTo(shared.CestaHry); }); });
    begin();
  }

private:
  /// Goes to a folder as the user does it with the lists: the drive, then the folder. False when there is none.
  bool goTo(const std::string& folder)
  {
    if (folder.empty() || !FolderList::exists(folder))
      return false;
    if (m_drives && m_drives->has(folder))
      m_drives->setDrive(folder);
    m_folders.userSetPath(folder);
    return true;
  }

  /// A typed path: a folder to go to, or a file of one; true when a file was chosen by it.
  bool goToTyped()
  {
    QString typed = m_line->text().trimmed();
    if (typed == "~" || typed.startsWith("~/"))
      typed.replace(0, 1, QDir::homePath());
    if (typed.isEmpty())
      return false;
    const std::string path = QDir::isAbsolutePath(typed)
                                 ? platform::toProgram(typed.toStdString())
                                 : m_folders.path() + "\\" + platform::toProgram("/" + typed.toStdString()).substr(1);
    if (goTo(path))
      return false;
    const std::string folder = SlozkaSouboru(path);
    const std::string name = path.substr(folder.size());
    if (!m_files || !platform::fileExists(path) || !goTo(folder) || !m_files->has(name))
      return false;
    m_files->userSelect(name);
    return true;
  }

  void update(const FieldChange&) override
  {
    m_line->setText(QString::fromStdString(platform::toNative(m_folders.path())));
  }

  /// Enter in the line goes there; it is the window's Enter only when it named a file.
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (!isEnter(*event))
      return Link::eventFilter(watched, event);
    bool chosen = false;
    user([this, &chosen] { chosen = goToTyped(); });
    if (chosen)
      pressDefault(*m_line);
    return true;
  }

  FolderList& m_folders;
  FileList* m_files;
  DriveList* m_drives;
  QLineEdit* m_line;
};

} // namespace

std::vector<std::unique_ptr<Link>> bindPlaces(const Form& form, const QWidget& window)
{
  std::vector<std::unique_ptr<Link>> links;
  auto* const line = window.findChild<QLineEdit*>("box_path");
  auto* const folders = fieldOf<FolderList>(form, Kind::folderlist);
  if (line && folders)
    links.push_back(std::make_unique<PlacesLink>(*folders, fieldOf<FileList>(form, Kind::filelist),
                                                 fieldOf<DriveList>(form, Kind::drivelist), window, line));
  return links;
}

} // namespace tarvelin::ui
