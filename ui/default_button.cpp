#include "ui/default_button.h"

#include <QKeyEvent>
#include <QPushButton>
#include <algorithm>

namespace tarvelin::ui
{

namespace
{

/// Presses the first button of the window that can be pressed and is one of those; false when there is none.
template <class IsIt> bool press(const QWidget& window, IsIt isIt)
{
  const auto buttons = window.findChildren<QPushButton*>();
  const auto found = std::ranges::find_if(buttons, [&isIt](const QPushButton* button)
                                          { return isIt(*button) && button->isEnabled() && button->isVisible(); });
  if (found == buttons.end())
    return false;
  (*found)->click();
  return true;
}

} // namespace

bool isEnter(const QEvent& event)
{
  if (event.type() != QEvent::KeyPress)
    return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

void pressDefault(const QWidget& widget)
{
  const QWidget& window = *widget.window();
  press(window, [](const QPushButton& button) { return button.property("takes").toBool(); });
  press(window, [](const QPushButton& button) { return button.isDefault(); });
}

bool pressCancel(const QWidget& window)
{
  return press(window, [](const QPushButton& button) { return button.property("cancels").toBool(); });
}

void tameButtons(const QWidget& window)
{
  const auto buttons = window.findChildren<QPushButton*>();
  if (std::ranges::none_of(buttons, [](const QPushButton* button) { return button->isDefault(); }))
    for (QPushButton* const button : buttons)
      button->setAutoDefault(false);
}

} // namespace tarvelin::ui
