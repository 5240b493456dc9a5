#include "ui/colours.h"

#include <QFont>
#include <QPalette>
#include <QWidget>
#include <cmath>

namespace tarvelin::ui
{
namespace
{

constexpr int leastContrast = 60; // of 255 levels of grey

int grey(const QColor& colour)
{
  return qGray(colour.rgb());
}

} // namespace

QColor fromColour(Colour colour)
{
  return QColor(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                static_cast<int>(colour >> 16 & 0xFF));
}

Colour toColour(const QColor& colour)
{
  return static_cast<Colour>(colour.red()) | static_cast<Colour>(colour.green()) << 8 |
         static_cast<Colour>(colour.blue()) << 16;
}

QColor readableColour(Colour colour, const QWidget& widget)
{
  const QColor base = widget.palette().color(QPalette::Base);
  if (colour == 0)
    return widget.palette().color(QPalette::Active, QPalette::WindowText);
  QColor readable = fromColour(colour);
  if (std::abs(grey(readable) - grey(base)) >= leastContrast)
    return readable;
  const bool dark = grey(base) < 128;
  float hue = 0;
  float saturation = 0;
  float lightness = 0;
  readable.getHslF(&hue, &saturation, &lightness);
  for (int i = 0; i < 10 && std::abs(grey(readable) - grey(base)) < leastContrast; ++i)
  {
    lightness = dark ? std::min(1.0F, lightness + 0.1F) : std::max(0.0F, lightness - 0.1F);
    readable = QColor::fromHslF(hue < 0 ? 0 : hue, saturation, lightness);
  }
  return readable;
}

void showFont(QWidget& widget, const Font& font, const QFont& own)
{
  QFont shown = own;
  if (font != Font{})
  {
    if (!font.name.empty())
      shown.setFamily(QString::fromStdString(font.name));
    if (font.size > 0)
      shown.setPointSize(font.size);
    shown.setBold(font.bold);
    shown.setItalic(font.italic);
    shown.setStrikeOut(font.strikethrough);
    shown.setUnderline(font.underline);
  }
  widget.setFont(shown);
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Active, QPalette::Text, readableColour(font.color, widget));
  palette.setColor(QPalette::Inactive, QPalette::Text, readableColour(font.color, widget));
  widget.setPalette(palette);
}

} // namespace tarvelin::ui
