#pragma once

#include "core/forms/font.h"

#include <QColor>

class QFont;
class QWidget;

namespace tarvelin::ui
{

/// A colour of the program (0x00BBGGRR) and back.
QColor fromColour(Colour colour);
Colour toColour(const QColor& colour);

/// A text colour on a background: black, the colour of a text that nobody coloured, is the desktop's own text colour,
/// and one that could not be read there is made lighter or darker.
QColor readableColour(Colour colour, const QWidget& widget);

/// Gives the widget the font and text colour of a field; a font that was never set leaves the desktop's own.
void showFont(QWidget& widget, const Font& font, const QFont& own);

} // namespace tarvelin::ui
