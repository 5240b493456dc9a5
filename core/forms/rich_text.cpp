#include "core/forms/rich_text.h"

#include <algorithm>

namespace tarvelin
{

/// The run that holds character `position`; there must be one.
std::size_t RichText::runOf(std::size_t position) const
{
  const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), position,
                                       [](std::size_t at, const Run& run) { return at < run.start; });
  return static_cast<std::size_t>(behind - m_runs.begin()) - 1;
}

/// Makes a run begin at `position` and gives its index (the number of runs at the end of the text).
std::size_t RichText::split(std::size_t position)
{
  if (m_runs.empty() || position >= length())
    return m_runs.size();
  const std::size_t run = runOf(position);
  if (m_runs[run].start == position)
    return run;
  m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(run) + 1, {position, m_runs[run].style});
  return run + 1;
}

/// Joins equal neighbours among the runs from `first` to `last`.
void RichText::joinAround(std::size_t first, std::size_t last)
{
  if (m_runs.empty())
    return;
  const auto begin = m_runs.begin() + static_cast<std::ptrdiff_t>(std::min(first, m_runs.size() - 1));
  const auto end = m_runs.begin() + static_cast<std::ptrdiff_t>(std::min(last + 1, m_runs.size()));
  const auto kept = std::unique(begin, end, [](const Run& a, const Run& b) { return a.style == b.style; });
  m_runs.erase(kept, end);
}

TextStyle RichText::styleAt(std::size_t position) const
{
  if (position >= length() || m_runs.empty())
    return {};
  return m_runs[runOf(position)].style;
}

void RichText::setStyle(std::size_t start, std::size_t count, const TextStyle& style)
{
  start = std::min(start, length());
  count = std::min(count, length() - start);
  if (count == 0)
    return;
  const std::size_t current = runOf(start);
  const std::size_t currentEnd = current + 1 < m_runs.size() ? m_runs[current + 1].start : length();
  if (m_runs[current].style == style && start + count <= currentEnd)
    return;
  const std::size_t first = split(start);
  const std::size_t behind = split(start + count);
  m_runs[first].style = style;
  m_runs.erase(m_runs.begin() + static_cast<std::ptrdiff_t>(first) + 1,
               m_runs.begin() + static_cast<std::ptrdiff_t>(behind));
  joinAround(first == 0 ? 0 : first - 1, first + 1);
  notify({Change::style, start, 0, count});
}

void RichText::setStyled(std::string_view text, std::vector<Run> runs)
{
  if (runs.empty())
    runs.push_back({});
  const std::string copy(text);
  const bool same = copy == this->text();
  {
    const BulkChange bulk(*this);
    if (!same)
      splice(0, length(), copy);
    m_runs = std::move(runs);
    std::erase_if(m_runs, [this](const Run& run) { return run.start >= length(); });
    joinAround(0, m_runs.size());
    notify({Change::style, 0, 0, length()});
  }
  if (!same && onChange)
    onChange();
}

void RichText::spliced(std::size_t start, std::size_t removed, std::size_t added)
{
  const std::size_t oldLength = length() - added + removed;
  if (m_runs.empty() && oldLength > 0)
    m_runs.push_back({});
  // What comes in takes the typing style; the runs behind move.
  std::vector<Run>& runs = m_runs;
  const auto behindIn = [&runs](std::size_t position)
  {
    return std::lower_bound(runs.begin(), runs.end(), position,
                            [](const Run& run, std::size_t at) { return run.start < at; });
  };
  TextStyle styleBehind; // of the first character that stays behind the splice
  const bool something = start + removed < oldLength;
  if (something)
    styleBehind = runs[runOf(start + removed)].style;
  auto from = behindIn(start);
  auto to = behindIn(start + removed + 1);
  if (!something)
    to = runs.end();
  from = runs.erase(from, to);
  for (auto run = from; run != runs.end(); ++run)
    run->start = run->start - removed + added;
  const auto at = static_cast<std::size_t>(from - runs.begin());
  std::vector<Run> come;
  if (added > 0)
    come.push_back({start, m_typing});
  if (something)
    come.push_back({start + added, styleBehind});
  if (!come.empty() && at > 0 && runs[at - 1].style == come.front().style)
    come.erase(come.begin());
  runs.insert(runs.begin() + static_cast<std::ptrdiff_t>(at), come.begin(), come.end());
  joinAround(at == 0 ? 0 : at - 1, at + come.size());
}

} // namespace tarvelin
