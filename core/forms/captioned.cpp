#include "core/forms/captioned.h"

namespace tarvelin
{

Captioned::Captioned(Form* form, std::string_view name, std::string_view caption, int index)
    : Field(form, name, index), m_caption(caption)
{
}

void Captioned::setCaption(std::string_view caption)
{
  if (m_caption == caption)
    return;
  m_caption = caption;
  notify({Change::caption});
}

void Command::click()
{
  if (onClick)
    onClick();
}

void Menu::click()
{
  if (onClick)
    onClick();
}

Check::Check(Form* form, std::string_view name, std::string_view caption, int value, int index)
    : Captioned(form, name, caption, index), m_value(value)
{
}

void Check::set(bool on)
{
  if (checked() == on)
    return;
  m_value = on ? 1 : 0;
  notify({Change::value});
  if (onClick)
    onClick();
}

void OptionGroup::clearAllBut(const Option* option)
{
  for (Option* other : m_options)
    if (other != option && other->m_value)
    {
      other->m_value = false;
      other->notify({Change::value});
    }
}

Option::Option(Form* form, std::string_view name, OptionGroup& group, std::string_view caption, bool value)
    : Captioned(form, name, caption), m_group(group), m_value(value)
{
  group.add(this);
}

void Option::set(bool on)
{
  if (m_value == on)
    return;
  m_value = on;
  if (on)
    m_group.clearAllBut(this);
  notify({Change::value});
  if (on && onClick)
    onClick();
}

} // namespace tarvelin
