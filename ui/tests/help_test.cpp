// The help and the tips in the program's own browser field: links lead on, pictures are shown, nothing is too wide.

#include "core/forms/kinds.h"
#include "platform/paths.h"
#include "ui/links.h"

#include <QtTest>
#include <QtWidgets>

using namespace tarvelin;

namespace
{

struct Page : Form
{
  Page() : Form("page", "") {}
  Browser browser{this, "browser"};
};

/// The browser of the preview window, as large as the window opens.
struct PreviewBrowser
{
  PreviewBrowser() : link(ui::linkBrowser(form.browser, &view))
  {
    view.resize(690, 540);
    view.show();
  }

  void show(const QString& file)
  {
    form.browser.navigate(platform::toProgram(file.toStdString()));
    QCoreApplication::processEvents();
  }

  QString title() const { return view.document()->metaInformation(QTextDocument::DocumentTitle); }

  Page form;
  QTextBrowser view;
  std::unique_ptr<ui::Link> link;
};

QString helpFolder()
{
  return QCoreApplication::applicationDirPath() + "/Bfdata/dokumentace/";
}

QStringList pagesBelow(const QString& folder)
{
  QStringList pages;
  for (QDirIterator it(folder, {"*.html"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
    pages += it.next();
  pages.sort();
  return pages;
}

QString titleIn(const QString& file)
{
  QFile page(file);
  if (!page.open(QIODevice::ReadOnly))
    return {};
  static const QRegularExpression title("<title>([^<]*)</title>");
  return title.match(QString::fromUtf8(page.readAll())).captured(1);
}

/// What stands in the page on show: links, or the names of pictures.
QStringList found(const QTextDocument& document, const std::function<QString(const QTextCharFormat&)>& take)
{
  QStringList all;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it)
      if (const QString one = take(it.fragment().charFormat()); !one.isEmpty())
        all += one;
  all.removeDuplicates();
  return all;
}

} // namespace

class HelpTest : public QObject
{
  Q_OBJECT

private slots:
  void everyLinkLeadsOn();
  void aStepIsScrolledTo();
  void picturesAreShown();
  void nothingIsTooWide();
  void tipsNeedNoScrolling();
};

void HelpTest::everyLinkLeadsOn()
{
  PreviewBrowser browser;
  const QStringList pages = pagesBelow(helpFolder());
  QVERIFY(pages.size() > 70);
  for (const QString& page : pages)
  {
    browser.show(page);
    QCOMPARE(browser.title(), titleIn(page));
    const QStringList links =
        found(*browser.view.document(), [](const QTextCharFormat& format) { return format.anchorHref(); });
    QVERIFY2(!links.isEmpty(), qPrintable(page));
    for (const QString& link : links)
    {
      browser.show(page);
      emit browser.view.anchorClicked(QUrl(link));
      const QString target = QFileInfo(page).dir().filePath(link.section('#', 0, 0));
      QVERIFY2(QFileInfo(target).isFile(), qPrintable(page + " links to " + link));
      QCOMPARE(browser.title(), titleIn(target));
    }
  }
}

void HelpTest::aStepIsScrolledTo()
{
  PreviewBrowser browser;
  for (const QString language : {"cs", "en"})
  {
    browser.show(helpFolder() + "index.html");
    emit browser.view.anchorClicked(QUrl(language + "/campaign.html#step10"));
    QCOMPARE(browser.title(), titleIn(helpFolder() + language + "/campaign.html"));
    QVERIFY(browser.view.verticalScrollBar()->value() > browser.view.verticalScrollBar()->maximum() / 2);
  }
}

void HelpTest::picturesAreShown()
{
  PreviewBrowser browser;
  int pictures = 0;
  for (const QString& page : pagesBelow(helpFolder()))
  {
    browser.show(page);
    QTextDocument& document = *browser.view.document();
    for (const QString& name :
         found(document, [](const QTextCharFormat& format) { return format.toImageFormat().name(); }))
    {
      ++pictures;
      QVERIFY2(!document.resource(QTextDocument::ImageResource, QUrl(name)).isNull(), qPrintable(page + ": " + name));
    }
  }
  QVERIFY(pictures > 70);
}

void HelpTest::nothingIsTooWide()
{
  PreviewBrowser browser;
  for (const QString& page : pagesBelow(helpFolder()))
  {
    browser.show(page);
    QVERIFY2(browser.view.horizontalScrollBar()->maximum() == 0, qPrintable(page));
  }
}

void HelpTest::tipsNeedNoScrolling()
{
  PreviewBrowser browser;
  browser.view.resize(456, 283); // as the window of the tips opens
  for (const QString& page : pagesBelow(QCoreApplication::applicationDirPath() + "/Bfdata/tips"))
  {
    browser.show(page);
    QCOMPARE(browser.title(), titleIn(page));
    QVERIFY2(browser.view.verticalScrollBar()->maximum() == 0, qPrintable(page));
  }
}

QTEST_MAIN(HelpTest)
#include "help_test.moc"
