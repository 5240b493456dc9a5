#include "ui/other_pictures.h"

#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace tarvelin::ui
{
namespace
{

QImage drawing(const QString& file, int side)
{
  QSvgRenderer drawing(file);
  if (!drawing.isValid())
    return {};
  drawing.setAspectRatioMode(Qt::KeepAspectRatio);
  QImage image(side, side, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  return image;
}

} // namespace

std::optional<platform::IconImage> readOtherPicture(std::string_view file, int side)
{
  const QString name = QString::fromUtf8(file.data(), static_cast<qsizetype>(file.size()));
  QImage image = name.endsWith(".svg") ? drawing(name, side) : QImageReader(name).read();
  if (image.isNull())
    return std::nullopt;
  image.convertTo(QImage::Format_ARGB32);
  platform::IconImage icon{image.width(), image.height(), {}};
  for (int y = 0; y < image.height(); ++y)
  {
    const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    icon.pixels.insert(icon.pixels.end(), line, line + image.width());
  }
  return icon;
}

} // namespace tarvelin::ui
