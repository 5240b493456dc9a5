#pragma once

class QWidget;

namespace tarvelin::ui
{

/// Presses the default button of the window that holds `widget`, as Enter does; nothing when it has none.
void pressDefault(const QWidget& widget);

/// Makes Enter press the button that has the focus, or the one that the look makes the default; no other button.
void tameButtons(const QWidget& window);

} // namespace tarvelin::ui
