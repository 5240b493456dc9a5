#pragma once

#include "core/forms/field.h"
#include "ui/action.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace tarvelin::ui
{

/// A field and the widget that shows it. What the field tells goes to the widget; what the user does goes to the field,
/// and what comes back as the echo of it changes nothing.
class Link : public QObject, public FieldObserver
{
public:
  Link(Field& field, QWidget* widget);
  ~Link() override;

  void fieldChanged(Field& field, const FieldChange& change) final;
  void fieldGone(const Field& field) final;

  const Field* field() const { return m_field; }

protected:
  /// Brings to the widget what changed; `everything` after the start and after a bulk change.
  virtual void update(const FieldChange& change) = 0;

  /// Shows the field's present state; called once by the most derived link.
  void begin();

  /// True while the widget follows the field: its signals are then not the user's.
  bool updating() const { return m_updating > 0; }

  /// Brings the widget to the field's state: nothing of it is the user's.
  template <class Step> void quietly(Step&& step)
  {
    ++m_updating;
    step();
    --m_updating;
  }

  /// Runs a user's action, unless the widget only follows the field.
  template <class Action> void user(Action&& action)
  {
    if (!updating() && m_field)
      act(action);
  }

private:
  void follow(const FieldChange& change);

  Field* m_field;
  QPointer<QWidget> m_widget;
  int m_updating = 0;
};

} // namespace tarvelin::ui
