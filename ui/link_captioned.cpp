// Labels, frames, commands, checks, options and menus.
#include "ui/links.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace tarvelin::ui
{
namespace
{

/// In the look of a form: a second label with the caption of the named one, as the head of a second column has it.
constexpr const char* captionOf = "captionOf";

QString shownCaption(const Field& field)
{
  return QString::fromStdString(field.caption());
}

class LabelLink : public Link
{
public:
  LabelLink(Label& field, QLabel* label) : Link(field, label), m_caption(field), m_label(label)
  {
    label->setTextFormat(Qt::PlainText);
    for (QLabel* const other : label->window()->findChildren<QLabel*>())
      if (other->property(captionOf).toString() == label->objectName())
        m_twins.append(other);
    begin();
  }

private:
  void update(const FieldChange&) override
  {
    const QString caption = shownCaption(m_caption);
    m_label->setText(caption);
    if (m_label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) // it may be cut: the whole is in the hint
      m_label->setToolTip(caption);
    for (QLabel* const twin : m_twins)
      twin->setText(caption);
  }

  Label& m_caption;
  QLabel* m_label;
  QList<QLabel*> m_twins;
};

class GroupLink : public Link
{
public:
  GroupLink(Group& field, QGroupBox* box) : Link(field, box), m_group(field), m_box(box) { begin(); }

private:
  void update(const FieldChange&) override { m_box->setTitle(shownCaption(m_group)); }

  Group& m_group;
  QGroupBox* m_box;
};

class CommandLink : public Link
{
public:
  CommandLink(Command& field, QPushButton* button) : Link(field, button), m_command(field), m_button(button)
  {
    connect(button, &QPushButton::clicked, this, [this] { user([this] { m_command.click(); }); });
    begin();
  }

private:
  void update(const FieldChange&) override { m_button->setText(shownCaption(m_command)); }

  Command& m_command;
  QPushButton* m_button;
};

class CheckLink : public Link
{
public:
  CheckLink(Check& field, QCheckBox* box) : Link(field, box), m_check(field), m_box(box)
  {
    connect(box, &QCheckBox::toggled, this, [this](bool on) { user([this, on] { m_check.set(on); }); });
    begin();
  }

private:
  void update(const FieldChange&) override
  {
    m_box->setText(shownCaption(m_check));
    m_box->setChecked(m_check.checked());
  }

  Check& m_check;
  QCheckBox* m_box;
};

class OptionLink : public Link
{
public:
  OptionLink(Option& field, QRadioButton* button) : Link(field, button), m_option(field), m_button(button)
  {
    connect(button, &QRadioButton::toggled, this, [this](bool on) { user([this, on] { choose(on); }); });
    begin();
  }

private:
  void choose(bool on)
  {
    if (on)
      m_option.set(true);
  }

  void update(const FieldChange&) override
  {
    m_button->setText(shownCaption(m_option));
    m_button->setAutoExclusive(false); // else the last one of a group could not be cleared
    m_button->setChecked(m_option.value());
    m_button->setAutoExclusive(true);
  }

  Option& m_option;
  QRadioButton* m_button;
};

class MenuLink : public Link
{
public:
  MenuLink(Menu& field, QAction* action) : Link(field, nullptr), m_menu(field), m_action(action)
  {
    connect(action, &QAction::triggered, this, [this] { user([this] { m_menu.click(); }); });
    begin();
  }

private:
  void update(const FieldChange&) override
  {
    m_action->setSeparator(m_menu.caption() == "-");
    m_action->setText(shownCaption(m_menu));
    m_action->setEnabled(m_menu.enabled());
    m_action->setVisible(m_menu.visible());
  }

  Menu& m_menu;
  QAction* m_action;
};

template <class ItsLink, class ItsField, class ItsWidget> std::unique_ptr<Link> linkAs(ItsField& field, QWidget* widget)
{
  if (auto* const itsWidget = qobject_cast<ItsWidget*>(widget))
    return std::make_unique<ItsLink>(field, itsWidget);
  return {};
}

} // namespace

std::unique_ptr<Link> linkLabel(Label& field, QWidget* widget)
{
  return linkAs<LabelLink, Label, QLabel>(field, widget);
}

std::unique_ptr<Link> linkGroup(Group& field, QWidget* widget)
{
  return linkAs<GroupLink, Group, QGroupBox>(field, widget);
}

std::unique_ptr<Link> linkCommand(Command& field, QWidget* widget)
{
  return linkAs<CommandLink, Command, QPushButton>(field, widget);
}

std::unique_ptr<Link> linkCheck(Check& field, QWidget* widget)
{
  return linkAs<CheckLink, Check, QCheckBox>(field, widget);
}

std::unique_ptr<Link> linkOption(Option& field, QWidget* widget)
{
  return linkAs<OptionLink, Option, QRadioButton>(field, widget);
}

std::unique_ptr<Link> linkMenu(Menu& field, QAction* action)
{
  if (!action)
    return {};
  return std::make_unique<MenuLink>(field, action);
}

} // namespace tarvelin::ui
