#include "platform/files.h"

#include "platform/failure.h"
#include "platform/fold.h"
#include "platform/linux/handles.h"
#include "platform/paths.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/mman.h>
#include <sys/stat.h>
#include <tuple>

namespace tarvelin::platform
{

namespace
{

struct SystemFault
{
  int error;
  Fault fault;
};

constexpr SystemFault systemFaults[] = {
    {ENOENT, Fault::pathNotFound},    {ENOTDIR, Fault::pathNotFound},   {EACCES, Fault::permissionDenied},
    {EPERM, Fault::permissionDenied}, {EROFS, Fault::permissionDenied}, {ETXTBSY, Fault::permissionDenied},
    {EBUSY, Fault::permissionDenied}, {EISDIR, Fault::pathAccess},      {ENXIO, Fault::pathAccess},
    {ELOOP, Fault::pathAccess},       {EEXIST, Fault::fileExists},      {ENOSPC, Fault::diskFull},
    {EDQUOT, Fault::diskFull},        {EFBIG, Fault::diskFull},         {ENAMETOOLONG, Fault::badFileName},
    {EINVAL, Fault::badFileName},     {EILSEQ, Fault::badFileName},     {EMFILE, Fault::tooManyFiles},
    {ENFILE, Fault::tooManyFiles},    {ENOMEM, Fault::outOfMemory},
};

Failure failureOf(int error)
{
  for (const SystemFault& row : systemFaults)
    if (row.error == error)
      return Failure(row.fault);
  return Failure(Fault::deviceError);
}

std::string usableName(std::string_view path)
{
  if (path.empty() || path.find('\0') != std::string_view::npos)
    throw Failure(Fault::badFileName);
  return toNative(path);
}

using Status = struct stat;

std::optional<Status> nativeStatus(const std::string& native)
{
  Status status;
  if (stat(native.c_str(), &status) != 0)
    return std::nullopt;
  return status;
}

std::optional<Status> statusOf(std::string_view path)
{
  if (path.empty() || path.find('\0') != std::string_view::npos)
    return std::nullopt;
  return nativeStatus(toNative(path));
}

// The attribute of a Windows file: the owner's bit decides, also for a user who may write everything.
bool isReadOnly(const Status& status)
{
  return (status.st_mode & S_IWUSR) == 0;
}

bool isSame(const Status& a, const Status& b)
{
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

std::string folderOf(const std::string& native)
{
  const std::size_t slash = native.rfind('/');
  if (slash == std::string::npos)
    return ".";
  return native.substr(0, std::max<std::size_t>(slash, 1));
}

bool isFolder(const std::string& native)
{
  const auto status = nativeStatus(native);
  return status && S_ISDIR(status->st_mode);
}

template <typename Call> auto restarted(Call call)
{
  auto result = call();
  while (result == -1 && errno == EINTR)
    result = call();
  return result;
}

Descriptor opened(const std::string& native, int flags)
{
  // A pipe must not make the program wait for its other end, hence O_NONBLOCK; on files it means nothing.
  const int everywhere = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  return Descriptor(restarted([&] { return open(native.c_str(), flags | everywhere, 0666); }));
}

Status statusOf(const Descriptor& file)
{
  Status status;
  if (fstat(file.get(), &status) != 0)
    throw failureOf(errno);
  return status;
}

struct OpenSource
{
  Descriptor file;
  Status status;
};

OpenSource openForReading(std::string_view path)
{
  const std::string native = usableName(path);
  Descriptor file = opened(native, O_RDONLY);
  if (!file.valid())
  {
    const int error = errno;
    throw error == ENOENT && isFolder(folderOf(native)) ? Failure(Fault::fileNotFound) : failureOf(error);
  }
  const Status status = statusOf(file);
  if (!S_ISREG(status.st_mode))
    throw Failure(Fault::pathAccess);
  return {std::move(file), status};
}

void writeAll(const Descriptor& file, std::string_view bytes)
{
  while (!bytes.empty())
  {
    const ssize_t written = restarted([&] { return write(file.get(), bytes.data(), bytes.size()); });
    if (written < 0)
      throw failureOf(errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void closeWritten(Descriptor& file)
{
  if (!file.close())
    throw failureOf(errno);
}

// Copies from the current places of both files to the end. Where the system can't copy by itself, and for whatever it
// leaves, the plain loop goes on from the same places.
void copyBytes(const Descriptor& from, const Descriptor& to, const std::function<void()>& meanwhile)
{
  constexpr std::size_t atOnce = std::size_t{1} << 24;
  std::size_t sinceBreath = 0;
  const auto breathe = [&](ssize_t copied)
  {
    sinceBreath += static_cast<std::size_t>(copied);
    if (sinceBreath < atOnce)
      return;
    sinceBreath = 0;
    if (meanwhile)
      meanwhile();
  };
  ssize_t copied = 0;
  while ((copied = restarted([&] { return copy_file_range(from.get(), nullptr, to.get(), nullptr, atOnce, 0); })) > 0)
    breathe(copied);
  std::string block(std::size_t{1} << 17, '\0');
  for (;;)
  {
    const ssize_t count = restarted([&] { return read(from.get(), block.data(), block.size()); });
    if (count < 0)
      throw failureOf(errno);
    if (count == 0)
      return;
    writeAll(to, std::string_view(block).substr(0, static_cast<std::size_t>(count)));
    breathe(count);
  }
}

// A new file of a name that nobody has, deleted again unless it is renamed to `target`.
class TemporaryFile
{
public:
  explicit TemporaryFile(const std::string& folder)
      : m_path(folder + "/.tarvelin-XXXXXX"), m_file(mkostemp(m_path.data(), O_CLOEXEC)), m_exists(m_file.valid())
  {
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile()
  {
    if (m_exists)
      unlink(m_path.c_str());
  }

  Descriptor& file() { return m_file; }

  bool renameTo(const std::string& target, bool failIfExists)
  {
    if (!moved(target, failIfExists))
      return false;
    m_exists = false;
    return true;
  }

private:
  bool moved(const std::string& target, bool failIfExists) const
  {
    if (!failIfExists)
      return rename(m_path.c_str(), target.c_str()) == 0;
    if (renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
      return true;
    // Network disks don't know the flag; the caller has seen that the name was free.
    return (errno == EINVAL || errno == ENOSYS) && rename(m_path.c_str(), target.c_str()) == 0;
  }

  std::string m_path;
  Descriptor m_file;
  bool m_exists;
};

// The file that a link leads to is replaced, not the link.
std::string behindLinks(const std::string& native)
{
  std::error_code failed;
  const std::filesystem::path real = std::filesystem::canonical(native, failed);
  return failed ? native : real.native();
}

void refuseTarget(const Status& source, const Status& target, bool failIfExists)
{
  if (failIfExists)
    throw Failure(Fault::fileExists);
  if (isSame(source, target))
    throw Failure(Fault::permissionDenied);
  if (!S_ISREG(target.st_mode))
    throw Failure(Fault::pathAccess);
  if (isReadOnly(target))
    throw Failure(Fault::permissionDenied);
}

void copy(std::string_view from, std::string_view to, bool failIfExists, const std::function<void()>& meanwhile)
{
  const std::string name = usableName(to);
  const OpenSource source = openForReading(from);
  const auto existing = nativeStatus(name);
  if (existing)
    refuseTarget(source.status, *existing, failIfExists);
  if (name.ends_with('/'))
    throw Failure(Fault::pathNotFound);
  const std::string target = existing ? behindLinks(name) : name;

  TemporaryFile copied(folderOf(target));
  if (!copied.file().valid())
    throw failureOf(errno);
  copyBytes(source.file, copied.file(), meanwhile);
  // The attributes and the time of the last change go with the file, as CopyFile has it.
  const timespec times[] = {{0, UTIME_NOW}, source.status.st_mtim};
  futimens(copied.file().get(), times);
  fchmod(copied.file().get(), (source.status.st_mode & 0777) | S_IRUSR);
  closeWritten(copied.file());
  if (!copied.renameTo(target, failIfExists))
    throw failureOf(errno);
}

// Fills a piece of memory that is given back as a mapping is. Its start and what the file really had.
std::pair<void*, std::size_t> readIntoMapping(const Descriptor& file, std::size_t size)
{
  void* place = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (place == MAP_FAILED)
    throw failureOf(errno);
  std::size_t filled = 0;
  ssize_t count = 1;
  while (filled < size && count > 0)
  {
    count = restarted([&] { return read(file.get(), static_cast<char*>(place) + filled, size - filled); });
    filled += count > 0 ? static_cast<std::size_t>(count) : 0;
  }
  if (count >= 0 && filled > 0)
    return {place, filled};
  const int error = errno;
  munmap(place, size);
  if (count < 0)
    throw failureOf(error);
  return {nullptr, 0};
}

enum class Kind
{
  file,
  folder,
};

bool isKind(const OpenFolder& folder, const dirent& entry, Kind kind)
{
  if (entry.d_type == DT_REG || entry.d_type == DT_DIR)
    return (entry.d_type == DT_DIR) == (kind == Kind::folder);
  Status status; // of what a link leads to
  return fstatat(dirfd(folder.get()), entry.d_name, &status, 0) == 0 &&
         S_ISDIR(status.st_mode) == (kind == Kind::folder);
}

std::vector<std::string> list(std::string_view path, Kind kind)
{
  const OpenFolder folder(opendir(usableName(path).c_str()));
  if (!folder)
    throw failureOf(errno);
  std::vector<std::string> names;
  while (const dirent* entry = readdir(folder.get()))
  {
    const std::string_view name = entry->d_name;
    // A name with a backslash can't be told from a path: what it would lead to lies elsewhere.
    if (name != "." && name != ".." && name.find('\\') == std::string_view::npos && isKind(folder, *entry, kind))
      names.emplace_back(name);
  }
  std::ranges::sort(names, lessIgnoringCase);
  return names;
}

} // namespace

bool fileExists(std::string_view path)
{
  const auto status = statusOf(path);
  return status && !S_ISDIR(status->st_mode);
}

bool folderExists(std::string_view path)
{
  const auto status = statusOf(path);
  return status && S_ISDIR(status->st_mode);
}

std::string readFile(std::string_view path)
{
  const OpenSource source = openForReading(path);
  std::string bytes(static_cast<std::size_t>(source.status.st_size) + 1, '\0'); // one more, to see the end at once
  std::size_t size = 0;
  for (;;)
  {
    const ssize_t count = restarted([&] { return read(source.file.get(), bytes.data() + size, bytes.size() - size); });
    if (count < 0)
      throw failureOf(errno);
    if (count == 0)
      break;
    size += static_cast<std::size_t>(count);
    if (size == bytes.size()) // it grows while it is read, or is one of those that tell no size
      bytes.resize(size * 2 + 4096);
  }
  bytes.resize(size);
  return bytes;
}

MappedFile::MappedFile(std::string_view path)
{
  const OpenSource source = openForReading(path);
  auto size = static_cast<std::size_t>(source.status.st_size);
  if (size == 0)
    return;
  void* place = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, source.file.get(), 0);
  if (place == MAP_FAILED) // some file systems can't
    std::tie(place, size) = readIntoMapping(source.file, size);
  m_data = static_cast<const char*>(place);
  m_size = size;
}

MappedFile::~MappedFile()
{
  if (m_data != nullptr)
    munmap(const_cast<char*>(m_data), m_size);
}

void writeFile(std::string_view path, std::string_view bytes)
{
  const std::string native = usableName(path);
  Descriptor file = opened(native, O_WRONLY | O_CREAT);
  if (!file.valid())
    throw failureOf(errno);
  const Status status = statusOf(file);
  if (!S_ISREG(status.st_mode) && !S_ISCHR(status.st_mode))
    throw Failure(Fault::pathAccess);
  if (isReadOnly(status))
    throw Failure(Fault::permissionDenied);
  // Written over and cut behind: to empty a file first costs some file systems a millisecond.
  const auto cutHere = [&] { return restarted([&] { return ftruncate(file.get(), lseek(file.get(), 0, SEEK_CUR)); }); };
  const bool cuts = S_ISREG(status.st_mode) && static_cast<std::size_t>(status.st_size) > bytes.size();
  try
  {
    writeAll(file, bytes);
  }
  catch (const Failure&)
  {
    if (S_ISREG(status.st_mode))
      cutHere(); // what could be written, and nothing of the older file behind it
    throw;
  }
  if (cuts && cutHere() != 0)
    throw failureOf(errno);
  closeWritten(file);
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
  const auto status = statusOf(path);
  if (!status || S_ISDIR(status->st_mode))
    return false;
  return !isReadOnly(*status) || chmod(toNative(path).c_str(), (status->st_mode & 07777) | S_IWUSR) == 0;
}

void deleteFile(std::string_view path)
{
  const std::string native = usableName(path);
  Status status;
  if (lstat(native.c_str(), &status) != 0 || S_ISDIR(status.st_mode))
    throw Failure(Fault::fileNotFound);
  if (S_ISREG(status.st_mode) && isReadOnly(status))
    throw Failure(Fault::permissionDenied);
  if (unlink(native.c_str()) != 0)
    throw errno == ENOENT ? Failure(Fault::fileNotFound) : failureOf(errno);
}

void createFolder(std::string_view path)
{
  if (mkdir(usableName(path).c_str(), 0777) != 0)
    throw errno == EEXIST ? Failure(Fault::pathAccess) : failureOf(errno);
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
  const auto first = statusOf(a);
  const auto second = statusOf(b);
  return first && second && isSame(*first, *second);
}

bool isLink(std::string_view path)
{
  if (path.empty() || path.find('\0') != std::string_view::npos)
    return false;
  Status status;
  return lstat(toNative(path).c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool folderWritable(std::string_view folder)
{
  return folderExists(folder) && TemporaryFile(toNative(folder)).file().valid();
}

} // namespace tarvelin::platform
