#include "ui/program_bar.h"

#include "core/forms/frmmain.h"
#include "ui/binder.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollBar>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

constexpr int iconPlace = 36; ///< an icon of 32 pixels and the room around it

} // namespace

ProgramBar::ProgramBar(QWidget& window)
    : m_window(window),
      m_frame(window.findChild<QWidget*>("Picture1")),
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

void ProgramBar::follow()
{
  std::erase_if(m_icons, [](const auto& entry) { return !entry.second->field(); });
  frmmain.Image1.each(
      [this](Picture& icon, int index)
      {
        if (index == 0 || m_icons.contains(index))
          return;
        const QString name = widgetName(icon);
        auto* label = m_strip->findChild<QLabel*>(name);
        if (!label)
        {
          label = new QLabel(m_strip); // the strip owns it
          label->setObjectName(name);
          label->setAlignment(Qt::AlignCenter);
        }
        label->setGeometry((index - 1) * iconPlace, 0, iconPlace, iconPlace);
        label->setFocusPolicy(Qt::StrongFocus);
        label->setCursor(Qt::PointingHandCursor);
        m_icons[index] = bindField(icon, m_window);
      });
  layOut();
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
  if (event->type() == QEvent::Resize)
    layOut();
  return QObject::eventFilter(watched, event);
}

} // namespace tarvelin::ui
