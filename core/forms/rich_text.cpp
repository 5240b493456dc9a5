#include "core/forms/rich_text.h"

#include "core/strings.h"

#include <algorithm>
#include <utility>

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

/// The runs of `count` characters from `start`, counted from there.
std::vector<RichText::Run> RichText::runsIn(std::size_t start, std::size_t count) const
{
  std::vector<Run> runs;
  if (count == 0 || m_runs.empty())
    return runs;
  for (std::size_t run = runOf(start); run < m_runs.size() && m_runs[run].start < start + count; ++run)
    runs.push_back({std::max(m_runs[run].start, start) - start, m_runs[run].style});
  return runs;
}

void RichText::setStyle(std::size_t start, std::size_t count, const TextStyle& style)
{
  start = std::min(start, length());
  std::size_t end = start + std::min(count, length() - start);
  if (start == end)
    return;
  // Only what does not look so already is a change.
  for (std::size_t run = runOf(start); start < end && m_runs[run].style == style; ++run)
    start = run + 1 < m_runs.size() ? std::min(end, m_runs[run + 1].start) : end;
  if (start == end)
    return;
  for (std::size_t run = runOf(end - 1); m_runs[run].style == style; --run)
    end = m_runs[run].start;
  count = end - start;
  if (m_steps && m_steps->open() && !m_quiet)
    m_steps->add({start, {{}, count, runsIn(start, count)}, {{}, count, {{0, style}}}});
  const std::size_t first = split(start);
  const std::size_t behind = split(end);
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
    StyledChange change;
    if (!same)
      change = replaceText(copy);
    m_runs = std::move(runs);
    std::erase_if(m_runs, [this](const Run& run) { return run.start >= length(); });
    joinAround(0, m_runs.size());
    notify({Change::style, 0, 0, length()});
    if (!same && m_steps && m_steps->joinLast())
    {
      change.after.runs = runsIn(change.start, change.after.length);
      m_steps->add(std::move(change));
      m_steps->end(selStart());
    }
    else if (!same && m_steps)
      m_steps->clear();
  }
  if (!same && onChange)
    onChange();
}

/// Replaces what is different in another text, and tells what it was.
StyledChange RichText::replaceText(std::string_view now)
{
  const std::string_view old = text();
  const std::size_t shorter = std::min(old.size(), now.size());
  const auto starts = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
  std::size_t head = static_cast<std::size_t>(
      std::mismatch(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(shorter), now.begin()).first - old.begin());
  while (head > 0 && head < old.size() && !starts(old[head])) // no half characters
    --head;
  std::size_t tail = 0;
  while (tail < shorter - head && old[old.size() - 1 - tail] == now[now.size() - 1 - tail])
    ++tail;
  while (tail > 0 && !starts(old[old.size() - tail]))
    --tail;
  StyledChange change;
  change.start = tarvelin::length(old.substr(0, head));
  change.before.text = old.substr(head, old.size() - head - tail);
  change.before.length = tarvelin::length(change.before.text);
  change.before.runs = runsIn(change.start, change.before.length);
  change.after.text = now.substr(head, now.size() - head - tail);
  change.after.length = tarvelin::length(change.after.text);
  const bool quiet = std::exchange(m_quiet, true);
  splice(change.start, change.before.length, change.after.text);
  m_quiet = quiet;
  return change;
}

void RichText::keepSteps()
{
  if (!m_steps)
    m_steps = std::make_unique<EditSteps>();
}

void RichText::editBegins(const FieldChange& edit, std::string_view added)
{
  if (m_steps)
    m_steps->begin(edit.first, edit.removed, added, selStart(), selLength());
}

void RichText::editEnds()
{
  if (m_steps)
    m_steps->end(selStart());
}

/// Puts one piece in the place of another, as a step had it.
void RichText::put(std::size_t start, const StyledPiece& before, const StyledPiece& after, bool looksOnly)
{
  if (!looksOnly)
    splice(start, before.length, after.text);
  for (std::size_t run = 0; run < after.runs.size(); ++run)
  {
    const std::size_t end = run + 1 < after.runs.size() ? after.runs[run + 1].start : after.length;
    setStyle(start + after.runs[run].start, end - after.runs[run].start, after.runs[run].style);
  }
}

void RichText::undo()
{
  if (!canUndo())
    return;
  m_quiet = true;
  const EditStep step = m_steps->takeBack();
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
    put(change->start, change->after, change->before, change->looksOnly());
  m_quiet = false;
  select(step.selStart, step.selLength);
}

void RichText::redo()
{
  if (!canRedo())
    return;
  m_quiet = true;
  const EditStep step = m_steps->makeAgain();
  for (const StyledChange& change : step.changes)
    put(change.start, change.before, change.after, change.looksOnly());
  m_quiet = false;
  select(step.caret, 0);
}

void RichText::spliced(const FieldChange& splice)
{
  if (m_steps && !m_quiet)
  {
    if (m_steps->open())
      m_steps->add({splice.first,
                    {std::string(splice.gone), splice.removed, runsIn(splice.first, splice.removed)},
                    {part(splice.first, splice.added), splice.added, {{0, m_typing}}}});
    else
      m_steps->clear();
  }
  moveRuns(splice);
}

/// What comes in takes the typing style; the runs behind move.
void RichText::moveRuns(const FieldChange& splice)
{
  const auto [what, start, removed, added, gone] = splice;
  const std::size_t oldLength = length() - added + removed;
  if (m_runs.empty() && oldLength > 0)
    m_runs.push_back({});
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
