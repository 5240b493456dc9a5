#include "core/forms/field.h"

#include "core/forms/form.h"

#include <algorithm>

namespace tarvelin
{

const char* kindName(Kind kind)
{
  constexpr const char* names[] = {"text",     "richtext", "label",   "command", "check",    "option",     "list",
                                   "combo",    "tree",     "picture", "slider",  "filelist", "folderlist", "drivelist",
                                   "tabstrip", "progress", "browser", "dialog",  "menu",     "group"};
  return names[static_cast<std::size_t>(kind)];
}

Field::Field(Form* form, std::string_view name, int index) : m_form(form), m_name(name), m_index(index)
{
  form->addField(this);
}

void Field::tellGone()
{
  for (FieldObserver* const observer : std::vector(m_observers))
    observer->fieldGone(*this);
}

std::string Field::fullName() const
{
  return m_index == noIndex ? m_name : m_name + "(" + std::to_string(m_index) + ")";
}

void Field::enable(bool on)
{
  if (m_enabled == on)
    return;
  m_enabled = on;
  notify({Change::enabled});
}

void Field::show(bool on)
{
  if (m_visible == on)
    return;
  m_visible = on;
  notify({Change::visible});
}

void Field::observe(FieldObserver& observer)
{
  m_observers.push_back(&observer);
}

void Field::stopObserving(FieldObserver& observer)
{
  std::erase(m_observers, &observer);
}

void Field::notify(const FieldChange& change)
{
  if (m_bulk > 0)
  {
    m_bulkChanged = true;
    return;
  }
  for (std::size_t i = 0; i < m_observers.size(); ++i) // by index: an observer may leave while it is told
    m_observers[i]->fieldChanged(*this, change);
}

BulkChange::BulkChange(Field& field) : m_field(field)
{
  ++m_field.m_bulk;
}

BulkChange::~BulkChange()
{
  if (--m_field.m_bulk > 0 || !m_field.m_bulkChanged)
    return;
  m_field.m_bulkChanged = false;
  m_field.notify({Change::everything});
}

} // namespace tarvelin
