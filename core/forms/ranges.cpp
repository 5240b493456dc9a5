#include "core/forms/ranges.h"

#include "platform/failure.h"

#include <algorithm>

namespace tarvelin
{

Slider::Slider(Form* form, std::string_view name, int minimum, int maximum, int value)
    : Field(form, name), m_minimum(minimum), m_maximum(maximum), m_value(value)
{
}

void Slider::set(int value)
{
  if (value < m_minimum || value > m_maximum)
    throw Failure(Fault::invalidValue);
  if (m_value == value)
    return;
  m_value = value;
  notify({Change::value});
  if (onChange)
    onChange();
}

void Slider::setRange(int minimum, int maximum)
{
  m_minimum = minimum;
  m_maximum = std::max(minimum, maximum);
  notify({Change::range});
  set(std::clamp(m_value, m_minimum, m_maximum));
}

void Slider::userScroll(int value)
{
  value = std::clamp(value, m_minimum, m_maximum);
  const bool changes = value != m_value;
  m_value = value;
  notify({Change::value});
  if (onScroll)
    onScroll();
  if (changes && onChange)
    onChange();
}

Progress::Progress(Form* form, std::string_view name) : Field(form, name) {}

void Progress::set(int value)
{
  if (value < m_minimum || value > m_maximum)
    throw Failure(Fault::invalidValue);
  if (m_value == value)
    return;
  m_value = value;
  notify({Change::value});
}

void Progress::setRange(int minimum, int maximum)
{
  if (maximum <= minimum)
    throw Failure(Fault::invalidValue);
  m_minimum = minimum;
  m_maximum = maximum;
  m_value = minimum;
  notify({Change::range});
}

} // namespace tarvelin
