#include "ui/default_button.h"

#include <QPushButton>
#include <algorithm>

namespace tarvelin::ui
{

void pressDefault(const QWidget& widget)
{
  const auto buttons = widget.window()->findChildren<QPushButton*>();
  const auto found = std::ranges::find_if(buttons, [](const QPushButton* button)
                                          { return button->isDefault() && button->isVisible(); });
  if (found != buttons.end())
    (*found)->click();
}

void tameButtons(const QWidget& window)
{
  const auto buttons = window.findChildren<QPushButton*>();
  if (std::ranges::none_of(buttons, [](const QPushButton* button) { return button->isDefault(); }))
    for (QPushButton* const button : buttons)
      button->setAutoDefault(false);
}

} // namespace tarvelin::ui
