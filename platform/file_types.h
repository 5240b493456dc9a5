#pragma once

#include <optional>
#include <string>
#include <string_view>

// Which program opens the files of an extension. Windows: keys of HKEY_CLASSES_ROOT. Elsewhere, in the user's own
// folders: a MIME type for the extension, a desktop entry for the handler, a picture for both. A handler's name is that
// of its key ("Tarvelin.exe"). Nothing here throws: what is refused comes back as false.
namespace tarvelin::platform
{

/// The handler of an extension (".sqm"): empty when the extension is known but nobody opens it, nothing when it is not
/// known. A handler of another program elsewhere than on Windows has the name of its desktop entry.
std::optional<std::string> fileTypeHandler(std::string_view extension);
bool setFileTypeHandler(std::string_view extension, std::string_view handler);

/// Takes the handler from the extension.
bool removeFileTypeHandler(std::string_view extension);

bool fileHandlerExists(std::string_view handler);

/// Says how the handler opens files of an extension: under the menu text `verb`, `program` (full path of an .exe,
/// program's form; elsewhere than on Windows the native program beside it) with the file's path behind it.
bool setFileHandlerCommand(std::string_view handler, std::string_view extension, std::string_view verb,
                           std::string_view program);

/// Gives the handler and its files an icon: an icon file or an executable (program's form). An executable without an
/// icon of its own leaves the one of the desktop's theme.
bool setFileHandlerIcon(std::string_view handler, std::string_view extension, std::string_view icon);

/// Takes the handler out with its command and its icons.
bool removeFileHandler(std::string_view handler, std::string_view extension);

} // namespace tarvelin::platform
