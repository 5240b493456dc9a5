#include "platform/files.h"

#include "platform/failure.h"
#include "platform/fold.h"
#include "platform/windows/handles.h"

#include <algorithm>
#include <exception>
#include <optional>

namespace tarvelin::platform
{

namespace
{

struct SystemFault
{
  DWORD error;
  Fault fault;
};

constexpr SystemFault systemFaults[] = {
    {ERROR_FILE_NOT_FOUND, Fault::fileNotFound},
    {ERROR_PATH_NOT_FOUND, Fault::pathNotFound},
    {ERROR_DIRECTORY, Fault::pathNotFound},
    {ERROR_INVALID_DRIVE, Fault::pathNotFound},
    {ERROR_BAD_NETPATH, Fault::pathNotFound},
    {ERROR_BAD_NET_NAME, Fault::pathNotFound},
    {ERROR_INVALID_NAME, Fault::badFileName},
    {ERROR_BAD_PATHNAME, Fault::badFileName},
    {ERROR_FILENAME_EXCED_RANGE, Fault::badFileName},
    {ERROR_ACCESS_DENIED, Fault::permissionDenied},
    {ERROR_SHARING_VIOLATION, Fault::permissionDenied},
    {ERROR_LOCK_VIOLATION, Fault::permissionDenied},
    {ERROR_WRITE_PROTECT, Fault::permissionDenied},
    {ERROR_USER_MAPPED_FILE, Fault::permissionDenied},
    {ERROR_FILE_EXISTS, Fault::fileExists},
    {ERROR_ALREADY_EXISTS, Fault::fileExists},
    {ERROR_DISK_FULL, Fault::diskFull},
    {ERROR_HANDLE_DISK_FULL, Fault::diskFull},
    {ERROR_TOO_MANY_OPEN_FILES, Fault::tooManyFiles},
    {ERROR_NOT_ENOUGH_MEMORY, Fault::outOfMemory},
    {ERROR_OUTOFMEMORY, Fault::outOfMemory},
    {ERROR_NOT_READY, Fault::diskNotReady},
};

Failure failureOf(DWORD error)
{
  for (const SystemFault& row : systemFaults)
    if (row.error == error)
      return Failure(row.fault);
  return Failure(Fault::deviceError);
}

Failure lastFailure()
{
  return failureOf(GetLastError());
}

bool isUsable(std::string_view path)
{
  return !path.empty() && path.find('\0') == std::string_view::npos;
}

std::wstring usableName(std::string_view path)
{
  if (!isUsable(path))
    throw Failure(Fault::badFileName);
  return wide(path);
}

// Nothing for what does not exist.
std::optional<DWORD> attributesOf(const std::wstring& name)
{
  const DWORD attributes = GetFileAttributesW(name.c_str());
  return attributes == INVALID_FILE_ATTRIBUTES ? std::nullopt : std::optional(attributes);
}

bool isFolder(const std::wstring& name)
{
  const auto attributes = attributesOf(name);
  return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring folderOf(const std::wstring& name)
{
  const std::size_t end = name.find_last_of(L"\\/:");
  return end == std::wstring::npos ? L"." : name.substr(0, end + 1);
}

constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

Handle opened(const std::wstring& name, DWORD access, DWORD sharing, DWORD disposition)
{
  Handle file(CreateFileW(name.c_str(), access, sharing, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.valid())
  {
    const DWORD error = GetLastError();
    throw isFolder(name) ? Failure(Fault::pathAccess) : failureOf(error);
  }
  if (GetFileType(file.get()) != FILE_TYPE_DISK) // "con", "nul" and pipes
    throw Failure(Fault::pathAccess);
  return file;
}

Handle openForReading(std::string_view path)
{
  return opened(usableName(path), GENERIC_READ, sharedWithAll, OPEN_EXISTING);
}

std::size_t sizeOf(const Handle& file)
{
  LARGE_INTEGER size;
  if (GetFileSizeEx(file.get(), &size) == 0)
    throw lastFailure();
  return static_cast<std::size_t>(size.QuadPart);
}

constexpr std::size_t atOnce = std::size_t{1} << 30;

struct Identity
{
  DWORD volume;
  DWORD high;
  DWORD low;

  bool operator==(const Identity&) const = default;
};

std::optional<Identity> identityOf(const std::wstring& name)
{
  const Handle file(
      CreateFileW(name.c_str(), 0, sharedWithAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION information;
  if (!file.valid() || GetFileInformationByHandle(file.get(), &information) == 0)
    return std::nullopt;
  return Identity{information.dwVolumeSerialNumber, information.nFileIndexHigh, information.nFileIndexLow};
}

bool same(const std::wstring& a, const std::wstring& b)
{
  const auto first = identityOf(a);
  return first && first == identityOf(b);
}

// An empty file of a name that nobody has, deleted again unless it is renamed to another.
class TemporaryFile
{
public:
  explicit TemporaryFile(const std::wstring& folder)
  {
    wchar_t name[MAX_PATH];
    if (GetTempFileNameW(folder.c_str(), L"tar", 0, name) != 0)
      m_name = name;
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile()
  {
    if (m_name.empty())
      return;
    SetFileAttributesW(m_name.c_str(), FILE_ATTRIBUTE_NORMAL); // the source's came with its bytes
    DeleteFileW(m_name.c_str());
  }

  bool valid() const { return !m_name.empty(); }
  const std::wstring& name() const { return m_name; }

  bool renameTo(const std::wstring& target, bool failIfExists)
  {
    if (MoveFileExW(m_name.c_str(), target.c_str(), failIfExists ? 0 : MOVEFILE_REPLACE_EXISTING) == 0)
      return false;
    m_name.clear();
    return true;
  }

private:
  std::wstring m_name;
};

void refuseTarget(const std::wstring& source, const std::wstring& target, DWORD attributes, bool failIfExists)
{
  if (failIfExists)
    throw Failure(Fault::fileExists);
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
    throw Failure(Fault::pathAccess);
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0 || same(source, target))
    throw Failure(Fault::permissionDenied);
}

/// One copy and what runs beside it; an exception must not cross the system's code.
struct Meanwhile
{
  const std::function<void()>& action;
  std::exception_ptr thrown = nullptr;
  LONGLONG since = 0; ///< bytes that had been copied when the action ran last
};

DWORD CALLBACK copied(LARGE_INTEGER, LARGE_INTEGER done, LARGE_INTEGER, LARGE_INTEGER, DWORD, DWORD, HANDLE, HANDLE,
                      void* data)
{
  constexpr LONGLONG atOnce = LONGLONG{1} << 24;
  auto& meanwhile = *static_cast<Meanwhile*>(data);
  if (!meanwhile.action || done.QuadPart - meanwhile.since < atOnce)
    return PROGRESS_CONTINUE;
  meanwhile.since = done.QuadPart;
  try
  {
    meanwhile.action();
  }
  catch (...)
  {
    meanwhile.thrown = std::current_exception();
    return PROGRESS_CANCEL;
  }
  return PROGRESS_CONTINUE;
}

void copy(std::string_view from, std::string_view to, bool failIfExists, const std::function<void()>& action)
{
  const std::wstring target = usableName(to);
  openForReading(from); // tells what is wrong with the source
  const std::wstring source = wide(from);
  if (const auto attributes = attributesOf(target))
    refuseTarget(source, target, *attributes, failIfExists);
  const std::wstring folder = folderOf(target);
  if (!isFolder(folder))
    throw Failure(Fault::pathNotFound);
  TemporaryFile copy(folder);
  Meanwhile meanwhile{action};
  // CopyFile itself would leave a full disk without the old file, too.
  if (!copy.valid() || CopyFileExW(source.c_str(), copy.name().c_str(), copied, &meanwhile, nullptr, 0) == 0 ||
      !copy.renameTo(target, failIfExists))
  {
    const Failure failure = lastFailure();
    if (meanwhile.thrown)
      std::rethrow_exception(meanwhile.thrown);
    throw failure;
  }
}

enum class Kind
{
  file,
  folder,
};

std::vector<std::string> list(std::string_view path, Kind kind)
{
  std::wstring folder = usableName(path);
  if (!isFolder(folder))
    throw Failure(Fault::pathNotFound);
  if (!folder.ends_with(L'\\') && !folder.ends_with(L'/'))
    folder += L'\\';
  WIN32_FIND_DATAW entry;
  const HANDLE search = FindFirstFileW((folder + L"*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE)
  {
    if (GetLastError() == ERROR_FILE_NOT_FOUND) // the root of an empty disk
      return {};
    throw lastFailure();
  }
  std::vector<std::string> names;
  do
  {
    const std::wstring_view name = entry.cFileName;
    const bool isSubfolder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (name != L"." && name != L".." && isSubfolder == (kind == Kind::folder))
      names.push_back(narrow(name));
  }
  while (FindNextFileW(search, &entry) != 0);
  FindClose(search);
  std::ranges::sort(names, lessIgnoringCase);
  return names;
}

} // namespace

bool fileExists(std::string_view path)
{
  if (!isUsable(path))
    return false;
  const auto attributes = attributesOf(wide(path));
  return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool folderExists(std::string_view path)
{
  return isUsable(path) && isFolder(wide(path));
}

std::string readFile(std::string_view path)
{
  const Handle file = openForReading(path);
  std::string bytes(sizeOf(file) + 1, '\0'); // one more, to see the end at once
  std::size_t size = 0;
  for (;;)
  {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min(bytes.size() - size, atOnce));
    if (ReadFile(file.get(), bytes.data() + size, wanted, &count, nullptr) == 0)
      throw lastFailure();
    if (count == 0)
      break;
    size += count;
    if (size == bytes.size()) // it grows while it is read
      bytes.resize(size * 2 + 4096);
  }
  bytes.resize(size);
  return bytes;
}

MappedFile::MappedFile(std::string_view path)
{
  const Handle file = openForReading(path);
  const std::size_t size = sizeOf(file);
  if (size == 0)
    return;
  const Handle mapping(CreateFileMappingW(file.get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
  const void* place = mapping.valid() ? MapViewOfFile(mapping.get(), FILE_MAP_READ, 0, 0, size) : nullptr;
  if (place == nullptr)
    throw lastFailure();
  m_data = static_cast<const char*>(place);
  m_size = size;
}

MappedFile::~MappedFile()
{
  if (m_data != nullptr)
    UnmapViewOfFile(m_data);
}

void writeFile(std::string_view path, std::string_view bytes)
{
  // Opened and then emptied: to create over a hidden file is refused.
  Handle file = opened(usableName(path), GENERIC_WRITE, FILE_SHARE_READ, OPEN_ALWAYS);
  if (SetEndOfFile(file.get()) == 0)
    throw lastFailure();
  while (!bytes.empty())
  {
    DWORD written = 0;
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), atOnce));
    if (WriteFile(file.get(), bytes.data(), wanted, &written, nullptr) == 0)
      throw lastFailure();
    bytes.remove_prefix(written);
  }
  if (!file.close())
    throw lastFailure();
}

bool copyFile(std::string_view from, std::string_view to, bool failIfExists)
{
  try
  {
    copy(from, to, failIfExists, {});
    return true;
  }
  catch (const Failure&)
  {
    return false;
  }
}

void copyFileOver(std::string_view from, std::string_view to, const std::function<void()>& meanwhile)
{
  copy(from, to, false, meanwhile);
}

bool clearAttributes(std::string_view path)
{
  return fileExists(path) && SetFileAttributesW(wide(path).c_str(), FILE_ATTRIBUTE_NORMAL) != 0;
}

void deleteFile(std::string_view path)
{
  const std::wstring name = usableName(path);
  if (!fileExists(path))
    throw Failure(Fault::fileNotFound);
  if (DeleteFileW(name.c_str()) == 0)
    throw lastFailure();
}

void createFolder(std::string_view path)
{
  if (CreateDirectoryW(usableName(path).c_str(), nullptr) == 0)
    throw GetLastError() == ERROR_ALREADY_EXISTS ? Failure(Fault::pathAccess) : lastFailure();
}

std::vector<std::string> listFiles(std::string_view folder)
{
  return list(folder, Kind::file);
}

std::vector<std::string> listFolders(std::string_view folder)
{
  return list(folder, Kind::folder);
}

bool sameFile(std::string_view a, std::string_view b)
{
  return isUsable(a) && isUsable(b) && same(wide(a), wide(b));
}

bool isLink(std::string_view path)
{
  if (!isUsable(path))
    return false;
  const auto attributes = attributesOf(wide(path));
  return attributes && (*attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool folderWritable(std::string_view folder)
{
  return folderExists(folder) && TemporaryFile(wide(folder)).valid();
}

} // namespace tarvelin::platform
