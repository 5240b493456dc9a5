#include "core/forms/text_index.h"

#include "core/strings.h"

#include <algorithm>

namespace tarvelin
{

std::size_t TextIndex::length(const std::string& text) const
{
  if (m_length == unknown)
    m_length = tarvelin::length(text);
  return m_length;
}

std::size_t TextIndex::offset(const std::string& text, std::size_t position) const
{
  if (length(text) == text.size()) // ASCII: characters are bytes
    return std::min(position, text.size());
  const std::size_t wanted = position / step;
  while (m_offsets.size() < wanted)
  {
    const std::size_t from = m_offsets.empty() ? 0 : m_offsets.back();
    const std::size_t next = from + byteOffset(std::string_view(text).substr(from), step);
    if (next >= text.size())
      break;
    m_offsets.push_back(next);
  }
  const std::size_t known = std::min(wanted, m_offsets.size());
  const std::size_t from = known == 0 ? 0 : m_offsets[known - 1];
  return from + byteOffset(std::string_view(text).substr(from), position - known * step);
}

void TextIndex::spliced(std::size_t start, std::size_t removed, std::size_t added)
{
  m_offsets.resize(std::min(m_offsets.size(), start / step));
  if (m_length != unknown)
    m_length = m_length - removed + added;
}

void TextIndex::clear()
{
  m_offsets.clear();
  m_length = unknown;
}

} // namespace tarvelin
