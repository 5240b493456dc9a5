#include "core/forms/disk_lists.h"

#include "core/strings.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/processes.h"

#include <algorithm>

namespace tarvelin
{

namespace
{

/// A folder as the lists keep it: no backslash at the end but for a root.
std::string asFolder(std::string_view path)
{
  std::string folder(path);
  while (folder.size() > 1 && folder.back() == '\\' && !(folder.size() == 3 && folder[1] == ':'))
    folder.pop_back();
  if (folder.size() == 2 && folder[1] == ':')
    folder += '\\';
  return folder;
}

/// A path that says from where: a folder list shows the way down from a drive's root.
std::string fromRoot(const std::string& path)
{
  const bool whole = path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
  if (whole || path.empty())
    return path;
  const std::string here = platform::currentFolder();
  return here + (here.ends_with('\\') ? "" : "\\") + path;
}

bool matchesOne(std::string_view name, std::string_view pattern)
{
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t starName = 0;
  while (n < name.size())
  {
    if (p < pattern.size() && pattern[p] == '*')
    {
      star = p++;
      starName = n;
    }
    else if (p < pattern.size() && pattern[p] == '?')
    {
      n += characterSize(name, n);
      ++p;
    }
    else if (p < pattern.size() && pattern[p] == name[n])
    {
      ++n;
      ++p;
    }
    else if (star != std::string_view::npos)
    {
      p = star + 1;
      starName += characterSize(name, starName);
      n = starName;
    }
    else
      return false;
  }
  while (p < pattern.size() && pattern[p] == '*')
    ++p;
  return p == pattern.size();
}

} // namespace

bool matchesPattern(std::string_view name, std::string_view patterns)
{
  const std::string wanted = upper(name);
  const std::string all = upper(patterns);
  std::string_view rest = all;
  while (!rest.empty())
  {
    const std::size_t end = std::min(rest.find(';'), rest.size());
    const std::string one = trim(rest.substr(0, end));
    if (one == "*.*" || (!one.empty() && matchesOne(wanted, one)))
      return true;
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return false;
}

FileList::FileList(Form* form, std::string_view name, std::string_view pattern) : Field(form, name), m_pattern(pattern)
{
}

void FileList::setPath(std::string_view path)
{
  const std::string folder = asFolder(path);
  if (!platform::folderExists(folder))
    throw Failure(Fault::pathNotFound);
  if (folder != m_path)
    m_selected.clear();
  m_path = folder;
  read();
}

void FileList::setPattern(std::string_view pattern)
{
  m_pattern = pattern;
  if (!m_path.empty())
    read();
}

void FileList::offerPrograms(bool on)
{
  if (m_offersPrograms == on)
    return;
  m_offersPrograms = on;
  refresh();
}

void FileList::refresh()
{
  if (!m_path.empty())
    read();
}

void FileList::read()
{
  m_names.clear();
  if (platform::folderExists(m_path))
    for (std::string& name : platform::listFiles(m_path))
      if (matchesPattern(name, m_pattern) || (m_offersPrograms && platform::isProgram(m_path + "\\" + name)))
        m_names.push_back(std::move(name));
  if (std::ranges::find(m_names, m_selected) == m_names.end())
    m_selected.clear();
  notify({Change::path});
}

bool FileList::has(std::string_view name)
{
  if (std::ranges::find(m_names, name) == m_names.end())
    refresh();
  return std::ranges::find(m_names, name) != m_names.end();
}

void FileList::userSelect(std::string_view name)
{
  if (!has(name))
    throw Failure(Fault::fileNotFound);
  m_selected = name;
  notify({Change::selection});
  if (onClick)
    onClick();
}

FolderList::FolderList(Form* form, std::string_view name) : Field(form, name) {}

bool FolderList::exists(std::string_view path)
{
  return platform::folderExists(asFolder(path));
}

void FolderList::go(std::string_view path)
{
  const std::string folder = asFolder(path);
  if (!platform::folderExists(folder))
    throw Failure(Fault::pathNotFound);
  m_path = fromRoot(folder);
  refresh();
}

void FolderList::setPath(std::string_view path)
{
  const std::string before = m_path;
  go(path);
  if (m_path != before && onChange)
    onChange();
}

void FolderList::userSetPath(std::string_view path)
{
  go(path);
  if (onChange)
    onChange();
}

void FolderList::refresh()
{
  m_names.clear();
  if (!m_path.empty() && platform::folderExists(m_path))
    m_names = platform::listFolders(m_path);
  notify({Change::path});
}

DriveList::DriveList(Form* form, std::string_view name) : Field(form, name) {}

const std::string* DriveList::find(std::string_view path)
{
  refresh();
  const bool letter = path.size() >= 2 && path[1] == ':';
  const std::string wanted = upper(letter ? path.substr(0, 2) : std::string_view("\\"));
  const auto found = std::ranges::find_if(m_names, [&](const std::string& name) { return upper(name) == wanted; });
  return found == m_names.end() ? nullptr : &*found;
}

bool DriveList::has(std::string_view path)
{
  return find(path) != nullptr;
}

void DriveList::setDrive(std::string_view path)
{
  const std::string* const found = find(path);
  if (!found)
    throw Failure(Fault::deviceUnavailable);
  if (m_drive == *found)
    return;
  m_drive = *found;
  notify({Change::value});
  if (onChange)
    onChange();
}

std::string DriveList::root() const
{
  return m_drive.size() == 2 ? m_drive + "\\" : m_drive;
}

void DriveList::refresh()
{
  m_names = platform::drives();
  notify({Change::rows});
}

} // namespace tarvelin
