#include "ui/program_bar.h"

#include "core/forms/frmmain.h"
#include "core/shared.h"
#include "ui/binder.h"
#include "ui/links.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

constexpr int iconPlace = 36; ///< an icon of 32 pixels and the room around it
constexpr const char* indexProperty = "program";

QString programName(int index)
{
  const bool known = index >= 1 && index - 1 <= shared.PocetProgramu;
  return known ? QString::fromStdString(shared.Programy.at(index - 1).Nazev) : QString();
}

/// What stands for a program that has no icon: the first letter of its name.
void paintLetter(QWidget& label, const QString& name)
{
  QPainter painter(&label);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF place = QRectF(label.rect()).adjusted(3.5, 3.5, -3.5, -3.5);
  painter.setPen(label.palette().color(QPalette::Mid));
  painter.setBrush(label.palette().button());
  painter.drawRoundedRect(place, 4, 4);
  painter.setPen(label.palette().color(QPalette::ButtonText));
  painter.drawText(place, Qt::AlignCenter, name.trimmed().left(1).toUpper());
}

} // namespace

ProgramBar::ProgramBar(QWidget& window)
    : m_frame(window.findChild<QWidget*>("Picture1")),
      m_strip(window.findChild<QWidget*>("Picture2")),
      m_scroll(window.findChild<QScrollBar*>("HScroll1"))
{
  m_frame->layout()->removeWidget(m_strip); // it slides
  m_frame->installEventFilter(this);
  connect(m_scroll, &QScrollBar::valueChanged, this, [this] { layOut(); });
  connect(m_scroll, &QScrollBar::rangeChanged, this, [this] { layOut(); });
  window.findChild<QWidget*>("Image1_0")->hide(); // the pattern of the icons
  follow();
}

ProgramBar::~ProgramBar() = default;

bool ProgramBar::follow()
{
  bool changed = std::erase_if(m_icons, [](const auto& entry) { return !entry.second->field(); }) > 0;
  frmmain.Image1.each(
      [this, &changed](Picture& icon, int index)
      {
        if (index == 0 || m_icons.contains(index))
          return;
        QLabel*& label = m_labels[index];
        if (!label)
        {
          label = new QLabel(m_strip); // the strip owns it
          label->setObjectName(widgetName(icon));
          label->setAlignment(Qt::AlignCenter);
          label->setProperty(indexProperty, index);
        }
        label->setGeometry((index - 1) * iconPlace, 0, iconPlace, iconPlace);
        label->setFocusPolicy(Qt::StrongFocus);
        label->setCursor(Qt::PointingHandCursor);
        m_icons[index] = linkPicture(icon, label);
        label->removeEventFilter(this);
        label->installEventFilter(this);
        changed = true;
      });
  layOut();
  return changed;
}

/// The strip is as wide as its icons; the scroll bar takes it from one end to the other.
void ProgramBar::layOut()
{
  const int width = static_cast<int>(m_icons.size()) * iconPlace;
  const int hidden = std::max(0, width - m_frame->width());
  const int left = m_scroll->maximum() > 0 ? hidden * m_scroll->value() / m_scroll->maximum() : 0;
  m_strip->setGeometry(-left, 0, std::max(width, m_frame->width()), iconPlace);
}

bool ProgramBar::eventFilter(QObject* watched, QEvent* event)
{
  if (watched == m_frame)
  {
    if (event->type() == QEvent::Resize)
      layOut();
    return false;
  }
  const int index = watched->property(indexProperty).toInt();
  if (event->type() == QEvent::ToolTip)
  {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), programName(index));
    return true;
  }
  if (event->type() != QEvent::Paint || !frmmain.Image1.has(index) || !frmmain.Image1(index).path().empty())
    return false;
  paintLetter(*qobject_cast<QWidget*>(watched), programName(index));
  return true;
}

} // namespace tarvelin::ui
