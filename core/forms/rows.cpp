#include "core/forms/rows.h"

#include "core/strings.h"
#include "platform/failure.h"

#include <algorithm>

namespace tarvelin
{

Rows::Rows(Form* form, std::string_view name, bool sorted) : Field(form, name), m_sorted(sorted) {}

const Row& Rows::row(int index) const
{
  if (index < 0 || index >= count())
    throw Failure(Fault::invalidCall);
  return m_rows[static_cast<std::size_t>(index)];
}

std::string Rows::upperText(int index) const
{
  const std::string& text = row(index).text;
  return m_sorted ? m_keys[static_cast<std::size_t>(index)] : upper(text);
}

Row& Rows::rowAt(int index)
{
  return const_cast<Row&>(row(index));
}

int Rows::add(std::string_view text, int tag)
{
  auto at = static_cast<std::ptrdiff_t>(m_rows.size());
  if (m_sorted)
  {
    std::string key = upper(text);
    const auto place = std::upper_bound(m_keys.begin(), m_keys.end(), key);
    at = place - m_keys.begin();
    m_keys.insert(place, std::move(key));
  }
  m_rows.insert(m_rows.begin() + at, Row{std::string(text), tag, false});
  m_newest = static_cast<int>(at);
  if (m_selected >= m_newest)
    ++m_selected;
  notify({Change::rowAdded, static_cast<std::size_t>(at), 0, 1});
  return m_newest;
}

void Rows::remove(int index)
{
  rowAt(index);
  m_rows.erase(m_rows.begin() + index);
  if (m_sorted)
    m_keys.erase(m_keys.begin() + index);
  m_newest = -1;
  if (m_selected == index)
    highlight(-1);
  else if (m_selected > index)
    --m_selected;
  notify({Change::rowRemoved, static_cast<std::size_t>(index), 1, 0});
}

void Rows::clear()
{
  m_rows.clear();
  m_keys.clear();
  m_newest = -1;
  highlight(-1);
  notify({Change::rows});
}

void Rows::setText(int index, std::string_view text)
{
  Row& changed = rowAt(index);
  if (changed.text == text)
    return;
  changed.text = text;
  if (m_sorted)
    m_keys[static_cast<std::size_t>(index)] = upper(text);
  notify({Change::row, static_cast<std::size_t>(index)});
}

void Rows::setTag(int index, int tag)
{
  rowAt(index).tag = tag;
}

void Rows::mark(int index, bool on)
{
  Row& changed = rowAt(index);
  if (changed.marked == on)
    return;
  changed.marked = on;
  notify({Change::row, static_cast<std::size_t>(index)});
}

void Rows::select(int index)
{
  if (index < -1 || index >= count())
    throw Failure(Fault::invalidValue);
  highlight(index);
  if (onClick)
    onClick();
}

void Rows::highlight(int index)
{
  if (m_selected == index)
    return;
  m_selected = index;
  notify({Change::selection});
}

List::List(Form* form, std::string_view name, Style style) : Rows(form, name, style == Style::sorted), m_style(style) {}

void List::userSelect(int index)
{
  row(index);
  highlight(index);
  if (onPress)
    onPress(MouseButton::left);
  if (onClick)
    onClick();
}

void List::userMark(int index, bool on)
{
  row(index);
  highlight(index);
  mark(index, on);
  if (onClick)
    onClick();
}

void List::userPress(MouseButton button)
{
  if (onPress)
    onPress(button);
}

Combo::Combo(Form* form, std::string_view name, bool editable) : Rows(form, name), m_editable(editable) {}

void Combo::setText(std::string_view text)
{
  if (m_text == text)
    return;
  m_text = text;
  notify({Change::text});
}

void Combo::highlight(int index)
{
  m_text = index < 0 ? std::string() : text(index);
  Rows::highlight(index);
}

} // namespace tarvelin
