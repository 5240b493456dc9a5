#include "core/text_file.h"

#include "core/strings.h"
#include "platform/codepage.h"
#include "platform/failure.h"
#include "platform/files.h"

namespace tarvelin
{

std::string_view LineWalker::next()
{
  if (m_rest.empty())
    throw Failure(Fault::pastEnd);
  const std::size_t end = m_rest.find_first_of("\r\n");
  const std::string_view line = m_rest.substr(0, end);
  if (end == std::string_view::npos)
    m_rest = {};
  else
    m_rest.remove_prefix(end + (m_rest.substr(end).starts_with(crlf) ? 2 : 1));
  return line;
}

LineReader::LineReader(std::string_view path) : m_text(platform::decode(platform::readFile(path))), m_lines(m_text) {}

void writeText(std::string_view path, std::string_view text)
{
  platform::writeFile(path, platform::encode(text) + std::string(crlf));
}

} // namespace tarvelin
