#include "ui/title_preview.h"

#include "core/forms/frmdalsinast.h"
#include "core/shared.h"
#include "platform/paths.h"

#include <QEvent>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

constexpr std::int16_t pictureControl = 1;
constexpr int colourScale = 4; ///< a component of a record is four times that of a colour
constexpr double fullAlpha = 100;
constexpr QSizeF screenShape(4, 3);
constexpr QSize largestPicture(1024, 1024);
constexpr int mostPictures = 16;
constexpr int readableText = 5; ///< pixels; smaller texts are outlines alone

/// Fields whose change is seen. The records behind the sliders change after their fields, but before the next painting.
Field* const seenFields[] = {
    &frmdalsinast.List3,
    &frmdalsinast.List4,
    &frmdalsinast.x,
    &frmdalsinast.y,
    &frmdalsinast.w,
    &frmdalsinast.h,
    &frmdalsinast.txttext,
    &frmdalsinast.picnahled,
    &frmdalsinast.Option1,
    &frmdalsinast.Option2,
    &frmdalsinast.txtvelikost,
    &frmdalsinast.cba,
    &frmdalsinast.cta,
    &frmdalsinast.pictextcolor,
    &frmdalsinast.picbackcolor,
};

QColor colourOf(const BarvaPrvku& colour)
{
  const auto component = [](float value)
  { return std::clamp(static_cast<int>(std::min(value, 1020.0F) / colourScale), 0, 255); };
  QColor result(component(colour.Cervena), component(colour.Zelena), component(colour.Modra));
  result.setAlphaF(static_cast<float>(std::clamp(static_cast<double>(colour.Alfa) / fullAlpha, 0.0, 1.0)));
  return result;
}

/// The largest screen of the game that has room.
QRectF screenIn(const QRect& room)
{
  QRectF screen(QPointF(), screenShape.scaled(room.size(), Qt::KeepAspectRatio));
  screen.moveCenter(QRectF(room).center());
  return screen;
}

QRectF placeOf(const TitulPrvek& control, const QRectF& screen)
{
  return {screen.left() + static_cast<double>(control.X) * screen.width(),
          screen.top() + static_cast<double>(control.Y) * screen.height(),
          static_cast<double>(control.W) * screen.width(), static_cast<double>(control.H) * screen.height()};
}

QImage readPicture(const std::string& path)
{
  QImageReader reader(QString::fromStdString(platform::toNative(path)));
  reader.setDecideFormatFromContent(true);
  if (const QSize size = reader.size();
      size.width() > largestPicture.width() || size.height() > largestPicture.height())
    reader.setScaledSize(size.scaled(largestPicture, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  return reader.read();
}

} // namespace

TitlePreview::TitlePreview(QWidget& window) : m_label(window.findChild<QLabel*>("picnahled"))
{
  m_label->installEventFilter(this);
  for (Field* const field : seenFields)
    field->observe(*this);
}

TitlePreview::~TitlePreview()
{
  for (Field* const field : seenFields)
    field->stopObserving(*this);
}

void TitlePreview::fieldChanged(Field& field, const FieldChange&)
{
  if (&field == &frmdalsinast.picnahled)
    m_pictures.clear(); // a file may have been replaced
  if (m_label)
    m_label->update();
}

bool TitlePreview::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_label || event->type() != QEvent::Paint)
    return false;
  paint();
  return true;
}

void TitlePreview::paint()
{
  QPainter painter(m_label);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QRectF screen = screenIn(m_label->rect());
  painter.fillRect(screen, Qt::black);
  painter.setClipRect(screen);
  const int title = frmdalsinast.List3.index();
  if (title < 0 || title > shared.Tituly.bound())
    return;
  const Array<TitulPrvek>& controls = shared.Tituly.at(title).Prvky;
  const int count = std::min(frmdalsinast.List4.count(), controls.bound() + 1);
  const int highlighted = frmdalsinast.List4.index();
  for (int i = 0; i < count; ++i)
    if (frmdalsinast.List4.marked(i) || i == highlighted)
      paintControl(painter, controls.at(i), screen, i == highlighted);
}

void TitlePreview::paintControl(QPainter& painter, const TitulPrvek& control, const QRectF& screen, bool highlighted)
{
  const QRectF place = placeOf(control, screen);
  const bool picture = control.Druh == pictureControl;
  painter.fillRect(place, colourOf(control.BarvaPozadi));
  if (picture) // of the highlighted one the field tells which picture is on show
    paintPicture(painter, place, highlighted ? frmdalsinast.picnahled.path() : control.Text);
  else if (const double size = static_cast<double>(control.Velikost) * screen.height();
           size >= readableText && size <= screen.height())
  {
    QFont font = m_label->font();
    font.setPixelSize(static_cast<int>(size));
    painter.setFont(font);
    painter.setPen(colourOf(control.BarvaTextu));
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, QString::fromStdString(control.Text));
    painter.restore();
  }
  if (picture && !highlighted)
    return;
  QPen pen(highlighted ? m_label->palette().color(QPalette::Highlight) : QColor(Qt::gray));
  pen.setStyle(frmdalsinast.List4.index() >= 0 && !highlighted ? Qt::DotLine : Qt::SolidLine);
  pen.setWidth(highlighted ? 2 : 1);
  pen.setCosmetic(true);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
}

void TitlePreview::paintPicture(QPainter& painter, const QRectF& place, const std::string& path)
{
  if (path.empty())
    return;
  if (m_pictures.size() >= mostPictures && !m_pictures.contains(path))
    m_pictures.clear();
  const auto [found, added] = m_pictures.try_emplace(path);
  if (added)
    found->second = readPicture(path);
  if (!found->second.isNull())
    painter.drawImage(place, found->second);
}

} // namespace tarvelin::ui
