// What no author does on purpose: windows closed at the wrong moment, a mission opened twice, enormous pictures,
// folders and texts. The times are printed for somebody to look at; nothing here fails for being slow.

#include "app/assemble.h"
#include "core/desk.h"
#include "core/exit.h"
#include "core/forms/all_forms.h"
#include "core/forms/form4.h"
#include "core/forms/frmabout2.h"
#include "core/forms/frmdebrief.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnactizvuky.h"
#include "core/forms/frmopen.h"
#include "core/forms/frmopen2.h"
#include "core/forms/frmopenmission.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/startup.h"
#include "platform/paths.h"
#include "ui/binder.h"
#include "ui/form_window.h"
#include "ui/links.h"
#include "ui/page_view.h"
#include "ui/qt_desk.h"

#include <QtTest>
#include <QtWidgets>

using namespace tarvelin;

namespace
{

constexpr int manyFiles = 50'000;
constexpr qsizetype megabyte = 1'000'000;
constexpr qsizetype longestLine = 32767; // what a line for typing takes

/// A picture of 20,000 by 20,000 grey pixels in a small file: each of its blocks is two bits.
QByteArray hugeJpeg()
{
  QByteArray bytes = QByteArray::fromHex("ffd8"
                                         "ffdb004300") +
                     QByteArray(64, 1) +
                     QByteArray::fromHex("ffc0000b084e204e2001011100"
                                         "ffc40014000100000000000000000000000000000000"
                                         "ffc40014100100000000000000000000000000000000"
                                         "ffda0008010100003f00");
  bytes += QByteArray(2500 * 2500 / 4, 0);
  return bytes + QByteArray::fromHex("ffd9");
}

void writeFile(const QString& path, const QByteArray& bytes)
{
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  QCOMPARE(file.write(bytes), bytes.size());
}

void copyFolder(const QString& from, const QString& to)
{
  QDir().mkpath(to);
  for (const QFileInfo& entry : QDir(from).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot))
    if (entry.isDir())
      copyFolder(entry.filePath(), to + '/' + entry.fileName());
    else
      QFile::copy(entry.filePath(), to + '/' + entry.fileName());
}

/// Does something as soon as that window waits for its user.
void whenOpen(const QString& name, const std::function<void(QWidget&)>& action)
{
  QTimer::singleShot(20, qApp,
                     [name, action]
                     {
                       QWidget* const dialog = QApplication::activeModalWidget();
                       if (dialog && (dialog->objectName() == name || name.isEmpty()))
                         action(*dialog);
                       else
                         whenOpen(name, action);
                     });
}

/// The whole program in a new home; the first run is answered with the Czech language and no name.
struct Program
{
  Program()
  {
    copyFolder(QCoreApplication::applicationDirPath() + "/Bfdata", home.filePath("Bfdata"));
    setProgramFolder(platform::toProgram(home.path().toStdString()));
    assembleProgram();
    windows = std::make_unique<ui::FormWindows>();
    desk = std::make_unique<ui::QtDesk>(*windows);
    setDesk(desk.get());
  }
  ~Program() { setDesk(nullptr); }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  void start()
  {
    whenOpen("frmloadsite",
             [](QWidget& chooser)
             {
               chooser.findChild<QListWidget*>("List1")->setCurrentRow(0);
               whenOpen({},
                        [](QWidget& name)
                        {
                          whenOpen({}, [](QWidget& mail) { QTest::keyClick(&mail, Qt::Key_Escape); });
                          QTest::keyClick(&name, Qt::Key_Escape);
                        });
               chooser.findChild<QPushButton*>("Command1")->click();
             });
    ui::act([] { startProgram(""); });
  }

  QTemporaryDir home;
  std::unique_ptr<ui::FormWindows> windows;
  std::unique_ptr<ui::QtDesk> desk;
};

} // namespace

class BadInputTest : public QObject
{
  Q_OBJECT

private slots:
  void hugePicture();
  void pagesStayHere();
  void manyFilesInEachPicker();
  void megabyteInEachText();
  void missionOpenedTwice();
  void closedWhileAnotherWaits();
};

void BadInputTest::hugePicture()
{
  const QTemporaryDir folder;
  writeFile(folder.filePath("huge.jpg"), hugeJpeg());
  struct Page : Form
  {
    Page() : Form("page", "") {}
    Picture picture{this, "picture"};
  } page;
  QLabel label;
  label.resize(200, 200);
  const auto link = ui::linkPicture(page.picture, &label);
  QElapsedTimer timer;
  timer.start();
  page.picture.load(platform::toProgram(folder.filePath("huge.jpg").toStdString()));
  qInfo("the window waited %lld ms for a picture of %d x %d", timer.elapsed(), page.picture.width(),
        page.picture.height());
  QCOMPARE(page.picture.width(), 20000);
  QCOMPARE(page.picture.height(), 20000);
  QTRY_VERIFY_WITH_TIMEOUT(!label.pixmap(Qt::ReturnByValue).isNull(), 60000);
  qInfo("it was there after %lld ms", timer.elapsed());
  QCOMPARE(label.pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize(), QSize(200, 200));
}

void BadInputTest::pagesStayHere()
{
  const QTemporaryDir folder;
  writeFile(folder.filePath("huge.jpg"), hugeJpeg());
  QImage small(8, 8, QImage::Format_RGB32);
  small.fill(Qt::red);
  QVERIFY(small.save(folder.filePath("small.png")));
  writeFile(folder.filePath("page.html"),
            "<img src='small.png'><img src='huge.jpg'><img src='file://other/share/a.png'>"
            "<img src='//other/share/a.png'><img src='\\\\other\\share\\a.png'><img src='http://localhost:9/a.png'>"
            "<script>document.write('scripted')</script><p>text");
  QVERIFY(ui::isOnThisMachine(QUrl("pic.jpg")));
  QVERIFY(ui::isOnThisMachine(QUrl("#Main")));
  QVERIFY(ui::isOnThisMachine(QUrl::fromLocalFile(folder.filePath("small.png"))));
  for (const char* const elsewhere : {"file://other/share/a.png", "file:////other/share/a.png", "//other/share/a.png",
                                      "\\\\other\\share\\a.png", "http://localhost:9/a.png", "ftp://localhost/a"})
    QVERIFY2(!ui::isOnThisMachine(QUrl(elsewhere)), elsewhere);
  struct Page : Form
  {
    Page() : Form("page", "") {}
    Browser browser{this, "browser"};
  } page;
  ui::PageView view;
  const auto link = ui::linkBrowser(page.browser, &view);
  QElapsedTimer timer;
  timer.start();
  view.show();
  page.browser.navigate(platform::toProgram(folder.filePath("page.html").toStdString()));
  QCoreApplication::processEvents();
  qInfo("a page with an enormous picture: %lld ms", timer.elapsed());
  QVERIFY(view.toPlainText().contains("text"));
  QVERIFY(!view.toPlainText().contains("scripted"));
  const QUrl base = view.document()->baseUrl();
  QVERIFY(view.loadResource(QTextDocument::ImageResource, base.resolved(QUrl("small.png"))).isValid());
  QVERIFY(!view.loadResource(QTextDocument::ImageResource, QUrl("file://other/share/a.png")).isValid());
}

void BadInputTest::manyFilesInEachPicker()
{
  renewForms();
  const QTemporaryDir folder;
  const QTemporaryDir empty;
  for (int i = 0; i < manyFiles; ++i)
    writeFile(folder.filePath(QString("%1.sqm.jpg.wav.exe").arg(i)), {});
  const ui::FormWindows windows;
  FolderList* const folders[] = {&frmopenmission.Dir1, &Frmopen.Dir1, &frmopen2.Dir1, &frmnactizvuky.Dir1};
  FileList* const files[] = {&frmopenmission.File1, &Frmopen.File1, &frmopen2.File1, &frmnactizvuky.File1};
  for (int i = 0; i < 4; ++i)
  {
    FolderList* const tree = folders[i];
    FileList* const list = files[i];
    list->setPattern("*.*");
    tree->onChange = [tree, list] { list->setPath(tree->path()); };
    tree->form().show();
    QWidget* const window = windows.of(tree->form()).window();
    tree->setPath(platform::toProgram(empty.path().toStdString()));
    QCoreApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    tree->userSetPath(platform::toProgram(folder.path().toStdString()));
    QCoreApplication::processEvents();
    const qint64 read = timer.restart();
    auto* const view = window->findChild<QListWidget*>(ui::widgetName(*list));
    QCOMPARE(view->count(), manyFiles);
    view->setFocus();
    for (int key = 0; key < 10; ++key)
      QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_End);
    qInfo("%s: %d files in %lld ms, eleven keys in %lld ms", tree->form().name().c_str(), view->count(), read,
          timer.elapsed());
    QCOMPARE(list->selected(), view->item(manyFiles - 1)->text().toStdString());
    tree->onChange = {};
    tree->form().hide();
  }
}

void BadInputTest::megabyteInEachText()
{
  renewForms();
  const ui::FormWindows windows;
  const QString line(megabyte, 'a');
  QString lines;
  while (lines.size() < megabyte)
    lines += "_unit setdamage 1\n";
  QPlainTextEdit bare; // what the toolkit takes by itself
  QApplication::clipboard()->setText(lines);
  bare.show();
  QElapsedTimer watch;
  watch.start();
  bare.paste();
  QCoreApplication::processEvents();
  qInfo("a text widget that is nobody's: pasted in %lld ms", watch.elapsed());
  for (Form* const form : allForms())
  {
    QWidget* const window = windows.of(*form).window();
    if (!window)
      continue;
    form->show();
    for (Field* const field : form->fields())
    {
      if (field->kind() != Kind::text && field->kind() != Kind::richtext)
        continue;
      auto& text = static_cast<Text&>(*field);
      auto* const edit = window->findChild<QWidget*>(ui::widgetName(text));
      const bool oneLine = qobject_cast<QLineEdit*>(edit);
      if (edit->property("readOnly").toBool())
        continue;
      text.set("");
      text.enable(true);
      QApplication::clipboard()->setText(oneLine ? line : lines);
      QElapsedTimer timer;
      timer.start();
      QMetaObject::invokeMethod(edit, "paste");
      QCoreApplication::processEvents();
      const qint64 pasted = timer.restart();
      QTest::keyClick(edit, Qt::Key_B);
      QCoreApplication::processEvents();
      qInfo("%s: pasted in %lld ms, then a key in %lld ms", text.fullName().c_str(), pasted, timer.elapsed());
      QString expected = oneLine ? line.left(longestLine) : lines + 'b';
      expected.replace("\n", "\r\n");
      QCOMPARE(text.text().size(), static_cast<std::size_t>(expected.size()));
      QVERIFY(text.text() == expected.toStdString());
      text.set("");
    }
    form->hide();
  }
}

void BadInputTest::missionOpenedTwice()
{
  Program program;
  program.start();
  const QTemporaryDir folder;
  const QString mission = folder.filePath("Demo.Eden/mission.sqm");
  QDir().mkpath(folder.filePath("Demo.Eden"));
  writeFile(mission, "version=11;\r\nclass Mission\r\n{\r\n\tclass Markers\r\n\t{\r\n\t\titems=1;\r\n"
                     "\t\tclass Item0\r\n\t\t{\r\n\t\t\tname=\"start\";\r\n\t\t};\r\n\t};\r\n};\r\n");
  const auto open = [&mission]
  {
    whenOpen("frmopenmission",
             [&mission](QWidget& dialog)
             {
               auto* const line = dialog.findChild<QLineEdit*>("box_path");
               line->setText(mission);
               QTest::keyClick(line, Qt::Key_Return);
             });
    ui::act([] { frmmain.mnufileopen.click(); });
  };
  open();
  QCOMPARE(shared.SouborMise, platform::toProgram(mission.toStdString()));
  const int markers = shared.PocetZnacek;
  int asked = 0;
  for (const QMessageBox::StandardButton answer : {QMessageBox::No, QMessageBox::Yes})
  {
    QTimer watch;
    connect(&watch, &QTimer::timeout, this,
            [&asked, answer]
            {
              auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
              if (!box || !box->button(answer))
                return;
              ++asked;
              box->button(answer)->click();
            });
    watch.start(20);
    open();
    QCOMPARE(shared.SouborMise, platform::toProgram(mission.toStdString()));
    QCOMPARE(static_cast<int>(shared.PocetZnacek), markers);
    if (frmopenmission.visible())
      frmopenmission.hide();
  }
  QCOMPARE(asked, 2);
}

void BadInputTest::closedWhileAnotherWaits()
{
  Program program;
  program.start();
  QVERIFY(frmmain.visible());
  QWidget* const main = program.windows->of(frmmain).window();
  whenOpen("frmabout2", [main](QWidget&) { main->close(); });
  ui::act([] { frmabout2.showModal(); }); // it comes back
  QVERIFY(programEnded());
  QVERIFY(!main->isVisible());
  QVERIFY(QFile::exists(program.home.filePath("Tarvinfo.cfg")));
  QVERIFY(!QDir(program.home.filePath("Bfdata/LogFiles")).isEmpty());
}

QTEST_MAIN(BadInputTest)
#include "bad_input_test.moc"
