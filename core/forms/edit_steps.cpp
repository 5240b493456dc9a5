#include "core/forms/edit_steps.h"

#include "core/strings.h"

#include <utility>

namespace tarvelin
{

namespace
{

bool isSpace(std::string_view text)
{
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// One character, or one line end.
bool isOne(std::string_view text)
{
  return text == crlf || length(text) == 1;
}

/// Adds a change to those of a step; a typed character goes to the one before it.
void join(std::vector<StyledChange>& changes, StyledChange&& change)
{
  if (!changes.empty() && change.before.length == 0)
  {
    StyledChange& last = changes.back();
    const bool goesOn = !last.looksOnly() && change.start == last.start + last.after.length;
    if (goesOn && last.after.runs.size() == 1 && change.after.runs.size() == 1 &&
        last.after.runs.front().style == change.after.runs.front().style)
    {
      last.after.text += change.after.text;
      last.after.length += change.after.length;
      return;
    }
  }
  changes.push_back(std::move(change));
}

} // namespace

void EditSteps::clear()
{
  m_done.clear();
  m_undone.clear();
  m_kind = Kind::other;
}

/// True when an edit only goes on with what the last step did.
bool EditSteps::goesOn(Kind kind, std::size_t start, std::size_t removed, std::string_view added) const
{
  if (kind == Kind::other || kind != m_kind || m_done.empty() || !m_undone.empty())
    return false;
  const std::size_t caret = m_done.back().caret;
  if (kind == Kind::typing)
    return start == caret && (!m_wordEnded || isSpace(added));
  return start + removed == caret || start == caret;
}

void EditSteps::begin(std::size_t start, std::size_t removed, std::string_view added, std::size_t selStart,
                      std::size_t selLength)
{
  if (m_depth++ > 0)
    return;
  const bool typing = removed == 0 && isOne(added);
  const bool deleting = added.empty() && removed > 0 && removed <= crlf.size() && selLength == 0;
  const Kind kind = typing ? Kind::typing : deleting ? Kind::deleting : Kind::other;
  if (!goesOn(kind, start, removed, added))
  {
    m_done.push_back({{}, selStart, selLength, 0});
    if (m_done.size() > most)
      m_done.pop_front();
  }
  m_undone.clear();
  m_kind = kind;
  m_wordEnded = isSpace(added);
}

void EditSteps::end(std::size_t caret)
{
  if (--m_depth > 0 || m_done.empty())
    return;
  m_done.back().caret = caret;
  if (m_done.back().changes.empty())
    m_done.pop_back();
}

bool EditSteps::joinLast()
{
  if (m_done.empty())
    return false;
  ++m_depth;
  return true;
}

void EditSteps::add(StyledChange change)
{
  if (m_done.empty()) // what was replaced as a whole meanwhile cannot be taken back
    return;
  m_undone.clear();
  join(m_done.back().changes, std::move(change));
}

EditStep EditSteps::takeBack()
{
  EditStep step = std::move(m_done.back());
  m_done.pop_back();
  m_undone.push_back(step);
  m_kind = Kind::other;
  return step;
}

EditStep EditSteps::makeAgain()
{
  EditStep step = std::move(m_undone.back());
  m_undone.pop_back();
  m_done.push_back(step);
  m_kind = Kind::other;
  return step;
}

} // namespace tarvelin
