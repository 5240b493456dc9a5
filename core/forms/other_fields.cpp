#include "core/forms/other_fields.h"

#include "core/desk.h"
#include "platform/failure.h"
#include "platform/paths.h"

namespace tarvelin
{

TabStrip::TabStrip(Form* form, std::string_view name, std::initializer_list<std::string_view> captions)
    : Field(form, name), m_captions(captions.begin(), captions.end())
{
}

void TabStrip::check(int tab) const
{
  if (tab < 0 || tab >= count())
    throw Failure(Fault::invalidValue);
}

void TabStrip::setTab(int tab)
{
  check(tab);
  if (m_tab == tab)
    return;
  m_tab = tab;
  notify({Change::value});
  if (onClick)
    onClick();
}

const std::string& TabStrip::tabCaption(int tab) const
{
  check(tab);
  return m_captions[static_cast<std::size_t>(tab)];
}

void TabStrip::setTabCaption(int tab, std::string_view caption)
{
  check(tab);
  m_captions[static_cast<std::size_t>(tab)] = caption;
  notify({Change::caption, static_cast<std::size_t>(tab)});
}

Browser::Browser(Form* form, std::string_view name) : Field(form, name) {}

void Browser::navigate(std::string_view address)
{
  m_address = address;
  notify({Change::path}); // the same address again is read anew
}

Dialog::Dialog(Form* form, std::string_view name) : Field(form, name) {}

void Dialog::showColor()
{
  const auto chosen = desk().chooseColour(color);
  if (!chosen)
    throw Failure(Fault::cancelled);
  color = *chosen;
}

void Dialog::showFont()
{
  const auto chosen = desk().chooseFont(font);
  if (!chosen)
    throw Failure(Fault::cancelled);
  font = *chosen;
}

void Dialog::showOpen(std::string_view filter)
{
  const auto chosen = desk().chooseFile(filter);
  if (!chosen)
    throw Failure(Fault::cancelled);
  fileName = platform::toProgram(*chosen);
}

} // namespace tarvelin
