#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Files and folders. Every path is in the program's form (platform/paths.h). What fails throws a Failure: 52 for an
// empty or unusable name, 53 for a missing file, 76 for a missing folder, 70 or 75 for a refused access, 58 for a name
// that is taken, 61 for a full disk, 57 for a broken device.
namespace tarvelin::platform
{

bool fileExists(std::string_view path);
bool folderExists(std::string_view path);

/// The whole file as bytes.
std::string readFile(std::string_view path);

/// A file's bytes for reading only, without a copy where the system can map it. Empty for an empty file.
class MappedFile
{
public:
  explicit MappedFile(std::string_view path);
  ~MappedFile();
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  std::string_view bytes() const { return {m_data, m_size}; }

private:
  const char* m_data = nullptr;
  std::size_t m_size = 0;
};

/// Creates the file or empties it, and writes `bytes`. An existing file is replaced under its own spelling.
void writeFile(std::string_view path, std::string_view bytes);

/// Copies a file as the system's CopyFile does; with `failIfExists` an existing target is left alone. Only whether it
/// went well comes back. A target is whole or as it was before: nothing half-written stays behind. A file copied over
/// itself fails.
bool copyFile(std::string_view from, std::string_view to, bool failIfExists);

/// As above with overwriting, but throws the failure (53 no source, 70 same file or refused, 76 no folder, 61 full).
/// While a large file is on its way, `meanwhile` runs for every sixteen megabytes; what it throws ends the copy.
void copyFileOver(std::string_view from, std::string_view to, const std::function<void()>& meanwhile = {});

/// Makes a read-only file writable. True when the file exists and could be changed.
bool clearAttributes(std::string_view path);

/// Throws 53 when there is no such file, 70 when it may not be deleted.
void deleteFile(std::string_view path);

/// Makes one folder. Throws 75 when the name exists, 76 when the folder above is missing, 70 when refused.
void createFolder(std::string_view path);

/// Names of the files (not folders) of a folder, ordered by name ignoring case. Throws 76 when there is no such folder.
std::vector<std::string> listFiles(std::string_view folder);

/// Names of the subfolders of a folder, ordered by name ignoring case; "." and ".." are none. Throws 76.
std::vector<std::string> listFolders(std::string_view folder);

/// True when both paths lead to the same existing file or folder.
bool sameFile(std::string_view a, std::string_view b);

/// True when the name itself is a link to a file or folder, or to nothing.
bool isLink(std::string_view path);

/// True when a file could be created in the folder.
bool folderWritable(std::string_view folder);

} // namespace tarvelin::platform
