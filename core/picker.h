#pragma once

#include <string>

namespace tarvelin
{

class DriveList;
class FolderList;
class FileList;

/// Ties the lists of a picker together: a change of drive moves the folder list, a change of folder the file list.
void tieDiskLists(DriveList& drives, FolderList& folders, FileList& files);

/// Lets a picker begin in `folder`; in the current folder when there is no such one.
void startPickerIn(const std::string& folder, DriveList& drives, FolderList& folders);

/// Full path of the highlighted file of a list.
std::string chosenFile(const FileList& files);

} // namespace tarvelin
