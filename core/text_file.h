#pragma once

#include <string>
#include <string_view>

namespace tarvelin
{

/// Walks the lines of a text in memory. A line ends at CR LF, LF or CR; a last line without an end counts too.
class LineWalker
{
public:
  explicit LineWalker(std::string_view text) : m_rest(text) {}

  bool atEnd() const { return m_rest.empty(); }

  /// The next line without its end. Throws 62 behind the last one.
  std::string_view next();

private:
  std::string_view m_rest;
};

/// Reads a text file in the machine's code page line by line, as UTF-8. The file is read when it is opened.
class LineReader
{
public:
  /// Throws 53 and the like when the file cannot be read.
  explicit LineReader(std::string_view path);

  bool atEnd() const { return m_lines.atEnd(); }

  /// Throws 62 behind the last line.
  std::string next() { return std::string(m_lines.next()); }

private:
  std::string m_text;
  LineWalker m_lines;
};

/// Creates or replaces a text file: `text` in the machine's code page and one CR LF behind it.
void writeText(std::string_view path, std::string_view text);

} // namespace tarvelin
