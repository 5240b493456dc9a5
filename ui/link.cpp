#include "ui/link.h"

#include <QWidget>

namespace tarvelin::ui
{

Link::Link(Field& field, QWidget* widget) : m_field(&field), m_widget(widget)
{
  field.observe(*this);
}

Link::~Link()
{
  if (m_field)
    m_field->stopObserving(*this);
}

void Link::begin()
{
  follow({Change::enabled});
  follow({Change::visible});
  follow({Change::everything});
}

void Link::fieldChanged(Field&, const FieldChange& change)
{
  follow(change);
}

void Link::fieldGone(const Field&)
{
  m_field = nullptr;
  if (m_widget)
    m_widget->hide();
}

void Link::follow(const FieldChange& change)
{
  ++m_updating;
  if (m_widget && change.what == Change::enabled)
    m_widget->setEnabled(m_field->enabled());
  else if (m_widget && change.what == Change::visible)
    m_widget->setVisible(m_field->visible());
  else
    update(change);
  --m_updating;
}

} // namespace tarvelin::ui
