#include "mission/keyword_scanner.h"

#include <algorithm>
#include <array>

namespace tarvelin
{

KeywordScanner::KeywordScanner(std::span<const std::string_view> keywords)
    : m_machine(keywords, KeywordMachine::LineEnds::stop)
{
}

KeywordScanner::Line KeywordScanner::scan(std::string_view text) const
{
  KeywordMachine::State state = KeywordMachine::start;
  std::uint64_t found = 0;
  std::size_t at = 0;
  for (; at < text.size(); ++at)
  {
    state = m_machine.next(state, text[at]);
    if (!m_machine.special(state))
      continue;
    if (m_machine.atLineEnd(state))
      break;
    found |= m_machine.found(state);
  }
  const std::string_view line = text.substr(0, at);
  if (at < text.size())
    at += text.substr(at).starts_with("\r\n") ? std::size_t{2} : std::size_t{1};
  return {line, found, text.substr(at)};
}

KeywordFinder::KeywordFinder(std::span<const std::string_view> keywords, std::string_view text)
    : m_machine(keywords, KeywordMachine::LineEnds::plain), m_text(text)
{
}

/// Fills m_ends from the window that begins at `from`. A machine waits for each of its bytes; four of them wait at the
/// same time. Each begins a keyword's length before its part, so that none is cut in two; the first and the last bytes
/// of the text are left to one alone.
void KeywordFinder::readWindow(std::size_t from)
{
  m_ends.clear();
  m_next = 0;
  const std::size_t rest = m_text.size() - from;
  const std::size_t part = std::min(streamSize, rest / streams);
  const std::size_t before = std::min(from, m_machine.longestKeyword());
  if (before < m_machine.longestKeyword() || part < m_machine.longestKeyword())
  {
    m_windowEnd = from + std::min(rest, streamSize);
    KeywordMachine::State state = KeywordMachine::start;
    for (std::size_t at = from - before; at < m_windowEnd; ++at)
    {
      state = m_machine.next(state, m_text[at]);
      if (m_machine.special(state))
        m_ends.push_back(at);
    }
    return;
  }
  m_windowEnd = from + part * streams;
  std::array<std::vector<std::size_t>, streams> ends;
  std::array<KeywordMachine::State, streams> states{};
  const char* const begin = m_text.data() + from - before;
  for (std::size_t i = 0; i < before + part; ++i)
  {
    bool special = false;
    for (std::size_t stream = 0; stream < streams; ++stream)
    {
      states[stream] = m_machine.next(states[stream], begin[stream * part + i]);
      special |= m_machine.special(states[stream]);
    }
    if (!special)
      continue;
    for (std::size_t stream = 0; stream < streams; ++stream)
      if (m_machine.special(states[stream]))
        ends[stream].push_back(from - before + stream * part + i);
  }
  for (const std::vector<std::size_t>& some : ends)
    m_ends.insert(m_ends.end(), some.begin(), some.end());
}

std::size_t KeywordFinder::lineFrom(std::size_t from)
{
  for (std::size_t window = std::max(from, m_windowEnd);; window = m_windowEnd)
  {
    while (m_next < m_ends.size() && m_ends[m_next] < from)
      ++m_next;
    if (m_next < m_ends.size())
      break;
    if (window >= m_text.size())
      return m_text.size();
    readWindow(window);
  }
  std::size_t start = m_ends[m_next];
  while (start > from && m_text[start - 1] != '\n' && m_text[start - 1] != '\r')
    --start;
  return start;
}

} // namespace tarvelin
