// Browser fields: local pages, read only, nothing fetched from a network.
#include "core/desk.h"
#include "platform/paths.h"
#include "ui/links.h"
#include "ui/page.h"
#include "ui/page_view.h"

#include <QDir>
#include <QFileInfo>
#include <QScrollBar>
#include <QTextBrowser>

namespace tarvelin::ui
{
namespace
{

bool isWeb(const QUrl& address)
{
  return address.scheme() == "http" || address.scheme() == "https";
}

/// The colours of a page: it says its own on the ground that they are on white, whatever colours the desktop has.
QPalette paper(QPalette palette)
{
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  return palette;
}

constexpr const char* linksOnPaper = "a { color: #0645ad; }";

class BrowserLink : public Link
{
public:
  BrowserLink(Browser& field, QTextBrowser* view) : Link(field, view), m_browser(field), m_view(view)
  {
    view->setOpenLinks(false);
    connect(view, &QTextBrowser::anchorClicked, this, [this](const QUrl& address) { open(address); });
    begin();
  }

private:
  void update(const FieldChange&) override
  {
    const QString address = QString::fromStdString(m_browser.address());
    if (isWeb(QUrl(address)))
    {
      m_folder.clear();
      m_view->setHtml(QStringLiteral("<p><a href=\"%1\">%1</a></p>").arg(address.toHtmlEscaped()));
    }
    else
      show(m_browser.address());
  }

  void show(const std::string& path)
  {
    m_folder = QFileInfo(QString::fromStdString(platform::toNative(path))).absolutePath();
    const Page page = readPage(path);
    m_view->document()->setBaseUrl(QUrl::fromLocalFile(m_folder + '/'));
    m_view->setSearchPaths({m_folder});
    m_view->setPalette(page.html ? paper(m_view->palette()) : QPalette());
    if (page.html)
    {
      m_view->document()->setDefaultStyleSheet(linksOnPaper);
      m_view->setHtml(page.text);
    }
    else
      m_view->setPlainText(page.text);
    m_view->verticalScrollBar()->setValue(0);
  }

  /// A link of the page: an anchor, a page beside it, or an address for the user's own browser.
  void open(const QUrl& address)
  {
    if (isWeb(address))
      return user([&] { desk().browse(address.toString(QUrl::FullyEncoded).toStdString()); });
    if (!isOnThisMachine(address))
      return;
    const QString file = address.isLocalFile() ? address.toLocalFile() : address.path();
    const QFileInfo target(QDir(m_folder), file);
    if (!file.isEmpty() && target.isFile())
      show(platform::toProgram(target.absoluteFilePath().toStdString()));
    if (address.hasFragment())
      m_view->scrollToAnchor(address.fragment());
  }

  Browser& m_browser;
  QTextBrowser* m_view;
  QString m_folder; ///< native
};

} // namespace

std::unique_ptr<Link> linkBrowser(Browser& field, QWidget* widget)
{
  if (auto* const view = qobject_cast<QTextBrowser*>(widget))
    return std::make_unique<BrowserLink>(field, view);
  return {};
}

} // namespace tarvelin::ui
