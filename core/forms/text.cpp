#include "core/forms/text.h"

#include "core/strings.h"

#include <algorithm>

namespace tarvelin
{

Text::Text(Form* form, std::string_view name, std::string_view text, int index) : Field(form, name, index), m_text(text)
{
}

void Text::set(std::string_view text)
{
  if (m_text == text)
    return;
  const std::string copy(text); // it may be a part of the field's own text
  splice(0, length(), copy);
  changed();
}

void Text::append(std::string_view text)
{
  if (text.empty())
    return;
  splice(length(), 0, std::string(text));
  changed();
}

void Text::select(std::size_t start, std::size_t count)
{
  start = std::min(start, length());
  count = std::min(count, length() - start);
  if (start == m_selStart && count == m_selLength)
    return;
  m_selStart = start;
  m_selLength = count;
  notify({Change::selection, start, 0, count});
}

std::string Text::selected() const
{
  return part(m_selStart, m_selLength);
}

void Text::replaceSelection(std::string_view text)
{
  userEdit(m_selStart, m_selLength, text);
}

std::string Text::part(std::size_t start, std::size_t count) const
{
  start = std::min(start, length());
  count = std::min(count, length() - start);
  const std::size_t from = m_index.offset(m_text, start);
  return m_text.substr(from, m_index.offset(m_text, start + count) - from);
}

void Text::setFont(const Font& font)
{
  if (m_font == font)
    return;
  m_font = font;
  notify({Change::font});
}

void Text::userSet(std::string_view text)
{
  userEdit(0, length(), text);
}

void Text::userType(std::string_view text)
{
  for (std::size_t at = 0; at < text.size();)
  {
    const std::size_t size = characterSize(text, at);
    replaceSelection(text.substr(at, size));
    at += size;
  }
}

void Text::userEdit(std::size_t start, std::size_t removed, std::string_view added)
{
  const std::string copy(added);
  const std::size_t addedLength = tarvelin::length(copy);
  start = std::min(start, length());
  removed = std::min(removed, length() - start);
  editBegins({Change::text, start, removed, addedLength}, copy);
  splice(start, removed, copy);
  select(start + addedLength, 0);
  changed();
  editEnds();
}

void Text::userKey(const KeyEvent& key)
{
  if (onKeyUp)
    onKeyUp(key);
}

void Text::splice(std::size_t start, std::size_t removed, std::string_view added)
{
  const std::size_t from = m_index.offset(m_text, start);
  const std::size_t to = m_index.offset(m_text, start + removed);
  const std::string gone = m_text.substr(from, to - from);
  m_text.replace(from, to - from, added);
  const FieldChange change{Change::text, start, removed, tarvelin::length(added), gone};
  m_index.spliced(start, removed, change.added);
  spliced(change);
  m_selStart = std::min(m_selStart, length());
  m_selLength = std::min(m_selLength, length() - m_selStart);
  notify(change);
}

void Text::changed()
{
  if (onChange)
    onChange();
}

} // namespace tarvelin
