#pragma once

#include "core/forms/field.h"

#include <string>
#include <vector>

namespace tarvelin
{

/// The files of a folder that match a pattern.
class FileList : public Field
{
public:
  FileList(Form* form, std::string_view name, std::string_view pattern = "*.*");
  Kind kind() const override { return Kind::filelist; }

  Handler onClick;

  /// The folder, program's form, without a backslash at its end but for a root.
  const std::string& path() const { return m_path; }

  /// Points the list at a folder and reads it. Throws 76 when there is no such folder; the list then stays.
  void setPath(std::string_view path);

  /// Patterns with "*" and "?", separated by ";", ignoring case.
  const std::string& pattern() const { return m_pattern; }
  void setPattern(std::string_view pattern);

  /// Whether the list also has every file that may be run, whatever its name.
  void offerPrograms(bool on);

  /// Reads the folder anew. A highlighted file that is gone is no longer highlighted.
  void refresh();

  const std::vector<std::string>& names() const { return m_names; }

  /// Name of the highlighted file, "" for none.
  const std::string& selected() const { return m_selected; }

  /// True when the folder has a file of that name that matches; it may be newer than the last reading.
  bool has(std::string_view name);

  /// The user clicks a file. Throws 53 when the list has none of that name.
  void userSelect(std::string_view name);

private:
  void read();

  std::string m_path;
  std::string m_pattern;
  bool m_offersPrograms = false;
  std::vector<std::string> m_names;
  std::string m_selected;
};

/// A folder and its subfolders.
class FolderList : public Field
{
public:
  FolderList(Form* form, std::string_view name);
  Kind kind() const override { return Kind::folderlist; }

  Handler onChange;

  const std::string& path() const { return m_path; }

  /// Goes to a folder; a change runs the change handler. Throws 76 when there is no such folder; the list then stays.
  void setPath(std::string_view path);

  void refresh();

  /// Names of the subfolders.
  const std::vector<std::string>& names() const { return m_names; }

  /// True when a folder list could go there.
  static bool exists(std::string_view path);

  /// The user goes to a folder: as setPath, but the change handler runs in any case.
  void userSetPath(std::string_view path);

private:
  void go(std::string_view path);

  std::string m_path;
  std::vector<std::string> m_names;
};

/// The drives of the machine.
class DriveList : public Field
{
public:
  DriveList(Form* form, std::string_view name);
  Kind kind() const override { return Kind::drivelist; }

  Handler onChange;

  /// "c:" and the like; elsewhere than on Windows also "\".
  const std::string& drive() const { return m_drive; }

  /// Chooses the drive of a path; a change runs the change handler. Throws 68 when there is no such drive.
  void setDrive(std::string_view path);

  /// True when the machine has the drive of a path.
  bool has(std::string_view path);

  /// Folder at the root of the drive.
  std::string root() const;

  void refresh();
  const std::vector<std::string>& names() const { return m_names; }

private:
  const std::string* find(std::string_view path);

  std::string m_drive;
  std::vector<std::string> m_names;
};

/// True when a file name matches patterns separated by ";" with "*" and "?", ignoring case.
bool matchesPattern(std::string_view name, std::string_view patterns);

} // namespace tarvelin
