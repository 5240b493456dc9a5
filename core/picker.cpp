#include "core/picker.h"

#include "core/attempt.h"
#include "core/forms/disk_lists.h"
#include "platform/paths.h"

namespace tarvelin
{

void tieDiskLists(DriveList& drives, FolderList& folders, FileList& files)
{
  drives.onChange = [&]
  {
    attempt([&] { folders.setPath(drives.root()); });
    attempt([&] { files.setPath(folders.path()); });
  };
  folders.onChange = [&] { attempt([&] { files.setPath(folders.path()); }); };
}

void startPickerIn(const std::string& folder, DriveList& drives, FolderList& folders)
{
  attempt([&] { drives.setDrive(folder); });
  if (folder.empty() || !attempt([&] { folders.setPath(folder); }))
    attempt([&] { folders.setPath(platform::currentFolder()); });
}

std::string chosenFile(const FileList& files)
{
  return files.path() + "\\" + files.selected();
}

} // namespace tarvelin
