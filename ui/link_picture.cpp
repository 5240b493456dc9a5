// Pictures: an image fitted into its place, a plain colour, or a button made of a picture.
#include "platform/paths.h"
#include "ui/action.h"
#include "ui/colours.h"
#include "ui/links.h"

#include <QApplication>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QThreadPool>

namespace tarvelin::ui
{
namespace
{

constexpr qint64 manyPixels = 4'000'000; ///< a larger picture is read beside the event loop
constexpr Colour unset = 0xFFFFFF;

/// Reads a picture, made small enough for `place` while it is read. Null when it is none.
QImage readPicture(const QString& file, QSize place)
{
  QImageReader reader(file);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(false);
  const QSize size = reader.size();
  if (size.width() > place.width() || size.height() > place.height())
    reader.setScaledSize(size.scaled(place, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
  return reader.read();
}

MouseButton buttonOf(Qt::MouseButton button)
{
  return button == Qt::RightButton  ? MouseButton::right
         : button == Qt::LeftButton ? MouseButton::left
                                    : MouseButton::middle;
}

class PictureLink : public Link
{
public:
  PictureLink(Picture& field, QLabel* label)
      : Link(field, label), m_picture(field), m_label(label), m_own(label->pixmap(Qt::ReturnByValue))
  {
    label->setMinimumSize(
        label->minimumSize().expandedTo(QSize(1, 1))); // the picture follows its place, not the place it
    if (field.onClick)
    {
      label->setCursor(Qt::PointingHandCursor);
      label->setFocusPolicy(Qt::StrongFocus);
    }
    label->installEventFilter(this);
    begin();
  }

private:
  void update(const FieldChange& change) override
  {
    if (change.what == Change::path || change.what == Change::everything)
      showPicture();
    if (change.what == Change::colour || (change.what == Change::everything && m_picture.color() != unset))
      showColour();
    if (change.what == Change::style || (change.what == Change::everything && m_picture.sunken()))
      m_label->setFrameStyle(m_picture.sunken() ? QFrame::Panel | QFrame::Sunken : QFrame::Panel | QFrame::Raised);
  }

  void showColour()
  {
    QPalette palette = m_label->palette();
    palette.setColor(QPalette::Window, fromColour(m_picture.color()));
    m_label->setPalette(palette);
    m_label->setAutoFillBackground(true);
  }

  QSize place() const { return m_label->contentsRect().size() * m_label->devicePixelRatioF(); }

  void showPicture()
  {
    ++m_reading;
    if (m_picture.path().empty())
    {
      m_label->setPixmap(m_own);
      return;
    }
    const QString file = QString::fromStdString(platform::toNative(m_picture.path()));
    const QSize wanted = place();
    const qint64 pixels = qint64{m_picture.width()} * m_picture.height();
    if (pixels <= manyPixels)
      return showImage(readPicture(file, wanted));
    m_label->setPixmap(QPixmap());
    const QPointer<PictureLink> link = this;
    QThreadPool::globalInstance()->start(
        [link, file, wanted, turn = m_reading]
        {
          const QImage image = readPicture(file, wanted);
          QMetaObject::invokeMethod(
              qApp,
              [link, image, turn]
              {
                if (link && link->m_reading == turn)
                  link->showImage(image);
              },
              Qt::QueuedConnection);
        });
  }

  void showImage(const QImage& image)
  {
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(m_label->devicePixelRatioF());
    m_label->setPixmap(pixmap);
  }

  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (!field()) // an element that is gone, its label not yet
      return false;
    switch (event->type())
    {
    case QEvent::Resize: showPicture(); break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: press(buttonOf(static_cast<QMouseEvent*>(event)->button())); return true;
    case QEvent::MouseButtonRelease: release(*static_cast<QMouseEvent*>(event)); return true;
    case QEvent::KeyPress:
      if (const int key = static_cast<QKeyEvent*>(event)->key();
          m_picture.onClick && (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter))
      {
        user([this] { m_picture.click(); });
        return true;
      }
      break;
    default: break;
    }
    return Link::eventFilter(watched, event);
  }

  void press(MouseButton button)
  {
    if (m_picture.onPress)
      user([this, button] { m_picture.onPress(button); });
  }

  void release(const QMouseEvent& event)
  {
    if (m_picture.onRelease)
      user([this] { m_picture.onRelease(); });
    if (event.button() == Qt::LeftButton && m_label->rect().contains(event.position().toPoint()))
      user([this] { m_picture.click(); });
  }

  Picture& m_picture;
  QLabel* m_label;
  QPixmap m_own;     ///< what the look has in its place, for a field without a picture
  int m_reading = 0; ///< counts the pictures, so that a late one is dropped
};

} // namespace

std::unique_ptr<Link> linkPicture(Picture& field, QWidget* widget)
{
  if (auto* const label = qobject_cast<QLabel*>(widget))
    return std::make_unique<PictureLink>(field, label);
  return {};
}

} // namespace tarvelin::ui
