#include "platform/file_types.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/fold.h"
#include "platform/icon_image.h"
#include "platform/linux/environment.h"
#include "platform/paths.h"
#include "platform/png_image.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

// The user's own part of the desktop's data base of file types: a MIME package that gives the extension a type, a
// desktop entry for the handler, pictures in the icon theme that all themes fall back to, and the user's list of
// default programs.
namespace tarvelin::platform
{

namespace
{

namespace fs = std::filesystem;

constexpr std::string_view defaultsSection = "[Default Applications]";
constexpr std::string_view handlerLine = "X-Tarvelin-Handler=";

/// False when the step could not be done.
template <class Step> bool done(Step&& step)
{
  try
  {
    return step();
  }
  catch (const Failure&)
  {
    return false;
  }
  catch (const fs::filesystem_error&)
  {
    return false;
  }
}

fs::path dataFolder()
{
  const std::string folder = userDataFolder();
  if (folder.empty())
    throw Failure(Fault::pathNotFound);
  return toNative(folder);
}

/// The user's list of default programs.
fs::path defaultsFile()
{
  const std::string named = environment("XDG_CONFIG_HOME");
  const std::string home = environment("HOME");
  if (!named.starts_with('/') && home.empty())
    throw Failure(Fault::pathNotFound);
  return (named.starts_with('/') ? fs::path(named) : fs::path(home) / ".config") / "mimeapps.list";
}

std::string read(const fs::path& file)
{
  return fileExists(toProgram(file.string())) ? readFile(toProgram(file.string())) : std::string();
}

void write(const fs::path& file, std::string_view bytes)
{
  fs::create_directories(file.parent_path());
  writeFile(toProgram(file.string()), bytes);
}

std::string withoutDot(std::string_view extension)
{
  return std::string(extension.substr(extension.starts_with('.') ? 1 : 0));
}

/// "tarvelin" of "Tarvelin.exe".
std::string stemOf(std::string_view handler)
{
  return folded(handler.substr(0, handler.rfind('.')));
}

std::string typeOf(std::string_view extension)
{
  return "application/x-" + withoutDot(extension);
}

fs::path packageFile(std::string_view extension)
{
  return dataFolder() / "mime/packages" / ("tarvelin-" + withoutDot(extension) + ".xml");
}

fs::path entryFile(std::string_view handler)
{
  return dataFolder() / "applications" / (stemOf(handler) + ".desktop");
}

/// The files of the icon of a handler and of its file type, as far as they exist.
std::vector<fs::path> iconFiles(std::string_view handler, std::string_view extension)
{
  std::vector<fs::path> files;
  const fs::path theme = dataFolder() / "icons/hicolor";
  if (!fs::is_directory(theme))
    return files;
  for (const fs::directory_entry& size : fs::directory_iterator(theme))
    for (const fs::path& file : {size.path() / "apps" / (stemOf(handler) + ".png"),
                                 size.path() / "mimetypes" / ("application-x-" + withoutDot(extension) + ".png")})
      if (fs::exists(file))
        files.push_back(file);
  return files;
}

/// Lets the desktop's tool renew its index of a folder; a desktop without the tool reads the files themselves.
void runTool(const char* tool, const fs::path& folder)
{
  std::string name = tool;
  std::string argument = folder.string();
  char* const arguments[] = {name.data(), argument.data(), nullptr};
  posix_spawn_file_actions_t streams;
  posix_spawn_file_actions_init(&streams);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&streams, stream, "/dev/null", O_RDWR, 0);
  pid_t child = 0;
  const bool started = posix_spawnp(&child, tool, &streams, nullptr, arguments, environ) == 0;
  posix_spawn_file_actions_destroy(&streams);
  while (started && waitpid(child, nullptr, 0) < 0 && errno == EINTR)
    ;
}

std::vector<std::string> linesOf(std::string_view text)
{
  std::vector<std::string> lines;
  while (!text.empty())
  {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

void writeLines(const fs::path& file, const std::vector<std::string>& lines)
{
  std::string text;
  for (const std::string& line : lines)
    text += line + "\n";
  write(file, text);
}

/// Place of the line "TYPE=..." among the default programs; `lines.end()` when there is none.
std::vector<std::string>::iterator defaultLine(std::vector<std::string>& lines, const std::string& type)
{
  bool inside = false;
  return std::ranges::find_if(lines,
                              [&](const std::string& line)
                              {
                                if (line.starts_with('['))
                                  inside = line.starts_with(defaultsSection);
                                return inside && line.starts_with(type + "=");
                              });
}

/// Desktop entry of the program that opens a type by the user's own list; empty for none.
std::string defaultOf(const std::string& type)
{
  for (const fs::path& file : {defaultsFile(), dataFolder() / "applications/mimeapps.list"})
  {
    std::vector<std::string> lines = linesOf(read(file));
    const auto found = defaultLine(lines, type);
    if (found == lines.end())
      continue;
    const std::string list = found->substr(type.size() + 1);
    if (std::string first = list.substr(0, list.find(';')); !first.empty())
      return first;
  }
  return {};
}

/// The MIME type that the data base has for an extension; nothing when it has none.
std::optional<std::string> knownType(std::string_view extension)
{
  if (fs::exists(packageFile(extension)))
    return typeOf(extension);
  const std::string glob = ":*." + withoutDot(extension);
  std::string folders = environment("XDG_DATA_DIRS");
  if (folders.empty())
    folders = "/usr/local/share:/usr/share";
  folders = dataFolder().string() + ":" + folders;
  for (std::size_t start = 0; start <= folders.size();)
  {
    const std::size_t end = std::min(folders.find(':', start), folders.size());
    for (const std::string& line : linesOf(read(fs::path(folders.substr(start, end - start)) / "mime/globs2")))
    {
      const std::size_t type = line.find(':'); // WEIGHT:TYPE:GLOB
      if (!line.starts_with('#') && type != std::string::npos && line.ends_with(glob))
        return line.substr(type + 1, line.size() - glob.size() - type - 1);
    }
    start = end + 1;
  }
  return std::nullopt;
}

/// A word of an Exec line: quoted, and escaped once for the line and once for the file.
std::string execWord(std::string_view word)
{
  std::string result = "\"";
  for (const char c : word)
  {
    if (c == '%')
      result += "%%";
    else if (c == '\\')
      result += R"(\\\\)";
    else if (c == '"' || c == '`' || c == '$')
      result += std::string(R"(\\)") + c;
    else
      result += c;
  }
  return result + "\"";
}

constexpr std::string_view exe = ".exe";

std::string withoutExe(std::string_view program)
{
  return std::string(program.substr(0, program.size() - (folded(program).ends_with(exe) ? exe.size() : 0)));
}

std::string nativeProgram(std::string_view program)
{
  return fileExists(program) ? toNative(program) : toNative(withoutExe(program));
}

std::string packageText(std::string_view extension)
{
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  text += "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n";
  text += "  <mime-type type=\"" + typeOf(extension) + "\">\n";
  text += "    <comment>Mission</comment>\n";
  text += "    <glob pattern=\"*." + withoutDot(extension) + "\" weight=\"80\"/>\n";
  text += "  </mime-type>\n</mime-info>\n";
  return text;
}

std::string entryText(std::string_view handler, std::string_view extension, std::string_view verb,
                      std::string_view program)
{
  std::string text = "[Desktop Entry]\nType=Application\n";
  text += "Name=" + std::string(handler.substr(0, handler.rfind('.'))) + "\n";
  text += "Comment=" + std::string(verb) + "\n";
  const std::string native = nativeProgram(program);
  // Some desktops look for the first word as it stands, before they make one "%" of two.
  text += std::string("Exec=") + (native.find('%') == std::string::npos ? "" : "env ") + execWord(native) + " %f\n";
  text += "Icon=" + stemOf(handler) + "\n";
  text += "Terminal=false\nCategories=Development;\n";
  text += "MimeType=" + typeOf(extension) + ";\n";
  text += std::string(handlerLine) + std::string(handler) + "\n";
  return text;
}

std::optional<IconImage> imageOf(std::string_view icon)
{
  if (!fileExists(icon))
    return std::nullopt;
  const MappedFile file(icon);
  auto image = iconOfFile(file.bytes());
  return image ? image : executableIcon(file.bytes());
}

} // namespace

std::optional<std::string> fileTypeHandler(std::string_view extension)
{
  std::optional<std::string> handler;
  done(
      [&]
      {
        const auto type = knownType(extension);
        if (!type)
          return false;
        handler = defaultOf(*type);
        for (const std::string& line : linesOf(handler->empty() ? "" : read(dataFolder() / "applications" / *handler)))
          if (line.starts_with(handlerLine))
            handler = line.substr(handlerLine.size());
        return true;
      });
  return handler;
}

bool setFileTypeHandler(std::string_view extension, std::string_view handler)
{
  return done(
      [&]
      {
        const std::string type = typeOf(extension);
        write(packageFile(extension), packageText(extension));
        std::vector<std::string> lines = linesOf(read(defaultsFile()));
        const std::string line = type + "=" + stemOf(handler) + ".desktop";
        if (const auto found = defaultLine(lines, type); found != lines.end())
          *found = line;
        else
        {
          auto section =
              std::ranges::find_if(lines, [](const std::string& text) { return text.starts_with(defaultsSection); });
          if (section == lines.end())
            section = lines.insert(lines.end(), std::string(defaultsSection));
          lines.insert(section + 1, line);
        }
        writeLines(defaultsFile(), lines);
        runTool("update-mime-database", dataFolder() / "mime");
        return true;
      });
}

bool removeFileTypeHandler(std::string_view extension)
{
  return done(
      [&]
      {
        bool removed = false;
        const auto type = knownType(extension);
        std::vector<std::string> lines = linesOf(read(defaultsFile()));
        if (const auto found = type ? defaultLine(lines, *type) : lines.end(); found != lines.end())
        {
          lines.erase(found);
          writeLines(defaultsFile(), lines);
          removed = true;
        }
        if (fs::remove(packageFile(extension)))
        {
          runTool("update-mime-database", dataFolder() / "mime");
          removed = true;
        }
        return removed;
      });
}

bool fileHandlerExists(std::string_view handler)
{
  return done([&] { return fs::exists(entryFile(handler)); });
}

bool setFileHandlerCommand(std::string_view handler, std::string_view extension, std::string_view verb,
                           std::string_view program)
{
  return done(
      [&]
      {
        write(entryFile(handler), entryText(handler, extension, verb, program));
        runTool("update-desktop-database", dataFolder() / "applications");
        return true;
      });
}

bool setFileHandlerIcon(std::string_view handler, std::string_view extension, std::string_view icon)
{
  return done(
      [&]
      {
        const auto image = imageOf(icon);
        if (!image)
          return folded(icon).ends_with(exe); // a native program has no icon inside
        for (const fs::path& file : iconFiles(handler, extension))
          fs::remove(file);
        const std::string png = pngBytes(*image);
        const fs::path size =
            dataFolder() / "icons/hicolor" / (std::to_string(image->width) + "x" + std::to_string(image->height));
        write(size / "apps" / (stemOf(handler) + ".png"), png);
        write(size / "mimetypes" / ("application-x-" + withoutDot(extension) + ".png"), png);
        return true;
      });
}

bool removeFileHandler(std::string_view handler, std::string_view extension)
{
  return done(
      [&]
      {
        for (const fs::path& file : iconFiles(handler, extension))
          fs::remove(file);
        const bool removed = fs::remove(entryFile(handler));
        if (removed)
          runTool("update-desktop-database", dataFolder() / "applications");
        return removed;
      });
}

} // namespace tarvelin::platform
