#pragma once

class QWidget;

namespace tarvelin::ui
{

/// Gives the menus, buttons, checks and labelled fields of a window a key each (Alt and a letter of the caption). A
/// caption that has its own "&" keeps it; each key is there once on a page of tabs and what is around it. Done anew it
/// follows captions that are other ones now.
void giveKeys(QWidget& window);

/// Gives every control of a window the name by which a screen reader calls it: its label's caption; without a label
/// that of its frame, its tab or its window.
void giveNames(QWidget& window);

} // namespace tarvelin::ui
