#include "ui/drive/watcher.h"

#include "ui/drive/look.h"

#include <QApplication>
#include <QEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <memory>

namespace tarvelin::drive
{
namespace
{

constexpr const char* paintedAt = "watcher_painted"; ///< a window's property: when it was first seen

/// Milliseconds of the clock that every process of the machine shares.
double now()
{
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

QJsonObject answer(const QJsonObject& question)
{
  const QString ask = question["ask"].toString();
  if (ask == "windows")
    return {{"windows", lookAtWindows()}};
  if (ask == "window")
    return lookAtWindow(question["name"].toString());
  return {{"error", "no such question: " + ask}};
}

class Server : public QObject
{
public:
  explicit Server(const QString& socket)
  {
    connect(&m_server, &QLocalServer::newConnection, this, &Server::connected);
    if (!m_server.listen(socket))
      qCritical("watcher: no socket %s: %s", qUtf8Printable(socket), qUtf8Printable(m_server.errorString()));
    qApp->installEventFilter(this);
  }

  /// Notes when each window's first picture is on the screen: as soon as the paint under way is through.
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() != QEvent::Paint || !watched->isWidgetType() || watched->property(paintedAt).isValid())
      return false;
    auto* const widget = static_cast<QWidget*>(watched);
    if (widget->isWindow())
    {
      widget->setProperty(paintedAt, 0.0);
      QTimer::singleShot(0, widget, [widget] { widget->setProperty(paintedAt, now()); });
    }
    return false;
  }

private:
  void connected()
  {
    QLocalSocket* const caller = m_server.nextPendingConnection();
    connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    connect(caller, &QLocalSocket::readyRead, caller,
            [caller]
            {
              while (caller->canReadLine())
              {
                const QJsonObject question = QJsonDocument::fromJson(caller->readLine()).object();
                caller->write(QJsonDocument(answer(question)).toJson(QJsonDocument::Compact) + '\n');
              }
            });
  }

  QLocalServer m_server;
};

} // namespace

QObject* Watcher::create(const QString&, const QString& socket)
{
  return std::make_unique<Server>(socket).release(); // the application ends it
}

} // namespace tarvelin::drive
