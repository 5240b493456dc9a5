#include "core/forms/form.h"

#include "core/desk.h"
#include "core/strings.h"

#include <algorithm>

namespace tarvelin
{

Form::Form(std::string_view name, std::string_view caption) : m_name(name), m_caption(caption) {}

void Form::setCaption(std::string_view caption)
{
  if (m_caption == caption)
    return;
  m_caption = caption;
  tellView();
}

void Form::load()
{
  if (m_loaded)
    return;
  m_loaded = true;
  if (onLoad)
    onLoad();
}

void Form::show()
{
  load();
  m_visible = true;
  m_modal = false;
  tellView();
  if (onActivate)
    onActivate();
}

void Form::showModal()
{
  load();
  m_visible = true;
  m_modal = true;
  if (onActivate)
    onActivate();
  desk().showModal(*this);
  if (m_visible)
    closeByUser();
  m_modal = false;
}

void Form::hide()
{
  if (!m_visible)
    return;
  m_visible = false;
  tellView();
}

void Form::unload()
{
  hide();
  m_loaded = false;
}

void Form::closeByUser()
{
  if (onClose)
    onClose();
  else
    hide();
}

void Form::refresh()
{
  if (m_observer)
    m_observer->formRefreshed(*this);
}

Field* Form::find(std::string_view name, int index) const
{
  for (Field* field : m_fields)
    if (field->index() == index && sameAscii(field->name(), name))
      return field;
  return nullptr;
}

bool Form::hasArray(std::string_view name) const
{
  return std::ranges::any_of(m_arrays, [&](const std::string& array) { return sameAscii(array, name); });
}

const FormValueEntry* Form::findValue(std::string_view name) const
{
  for (const FormValueEntry& value : m_values)
    if (sameAscii(value.name, name))
      return &value;
  return nullptr;
}

void Form::removeField(const Field* field)
{
  std::erase(m_fields, field);
}

void Form::tellView()
{
  if (m_observer)
    m_observer->formChanged(*this);
}

} // namespace tarvelin
