#pragma once

class QEvent;
class QWidget;

namespace tarvelin::ui
{

/// Whether the event is the press of one of the two Enter keys.
bool isEnter(const QEvent& event);

/// Presses the default button of the window that holds `widget`, as Enter does; nothing when it has none. Before it the
/// button that the window's look marks with the property `takes`: it takes over what is highlighted.
void pressDefault(const QWidget& widget);

/// Presses the button that the window's look marks with the property `cancels`; false when none can be pressed.
bool pressCancel(const QWidget& window);

/// Makes Enter press the button that has the focus, or the one that the look makes the default; no other button.
void tameButtons(const QWidget& window);

} // namespace tarvelin::ui
