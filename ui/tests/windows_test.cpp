// Windows of forms, lists under the mouse, disk lists, pages, and the desk.

#include "core/exit.h"
#include "core/forms/all_forms.h"
#include "core/forms/form1.h"
#include "core/forms/form3.h"
#include "core/forms/frmabout2.h"
#include "core/forms/frmcopy.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmopenmission.h"
#include "core/forms/frmstart.h"
#include "core/shared.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "ui/action.h"
#include "ui/form_window.h"
#include "ui/links.h"
#include "ui/page.h"
#include "ui/qt_desk.h"

#include <QtTest>
#include <QtWidgets>

using namespace tarvelin;

namespace
{

struct Page : Form
{
  Page() : Form("page", "") {}
  List list{this, "list", List::Style::checkMarks};
  Tree tree{this, "tree"};
  FileList files{this, "files", "*.sqm*"};
  FolderList folders{this, "folders"};
  DriveList drives{this, "drives"};
  Picture picture{this, "picture"};
  Browser browser{this, "browser"};
};

/// Does something as soon as a dialog waits for its user.
void whenDialogOpens(const std::function<void(QWidget&)>& action)
{
  QTimer::singleShot(50, qApp,
                     [action]
                     {
                       if (QWidget* const dialog = QApplication::activeModalWidget())
                         action(*dialog);
                       else
                         whenDialogOpens(action);
                     });
}

void writeFile(const QString& path, const QByteArray& bytes)
{
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

} // namespace

class WindowsTest : public QObject
{
  Q_OBJECT

private slots:
  void init() { renewForms(); }

  void formIsShownAndHidden();
  void waitingWindowsArePaintedAtOnce();
  void mainWindowCannotBeResized();
  void programsBar();
  void closingAsksTheForm();
  void modalFormWaits();
  void boxIsHarmless();
  void promptGivesTheText();
  void nothingIsEnteredTwice();
  void failureEndsTheProgram();
  void listUnderTheMouse();
  void listByKeys();
  void thousandRows();
  void shownAgainTakesTheFocus();
  void treeKeepsItsOpenNodes();
  void treeIsSearchedByTyping();
  void diskLists();
  void typedPath();
  void pictureOfTheLook();
  void bigPicture();
  void pagesByCharacterSet();
  void pagesOnADarkDesktop();
};

void WindowsTest::formIsShownAndHidden()
{
  ui::FormWindows windows;
  Form3.setCaption("Moment");
  Form3.show();
  QWidget* const window = windows.of(Form3).window();
  QVERIFY(window->isVisible());
  QCOMPARE(window->windowTitle(), QString("Moment"));
  Form3.setCaption("Chvilku");
  QCOMPARE(window->windowTitle(), QString("Chvilku"));
  Form3.refresh();
  Form3.hide();
  QVERIFY(!window->isVisible());
}

void WindowsTest::waitingWindowsArePaintedAtOnce()
{
  struct Paints : QObject
  {
    int count = 0;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
      count += event->type() == QEvent::Paint ? 1 : 0;
      return QObject::eventFilter(watched, event);
    }
  };
  ui::FormWindows windows;
  for (Form* const form : std::initializer_list<Form*>{&frmstart, &Form3, &Form1, &frmcopy})
  {
    Paints paints;
    windows.of(*form).window()->installEventFilter(&paints);
    form->show();
    form->refresh(); // the work begins behind it, with no event loop
    QVERIFY2(paints.count > 0, form->name().c_str());
    form->hide();
  }
}

void WindowsTest::mainWindowCannotBeResized()
{
  ui::FormWindows windows;
  frmmain.show();
  const QWidget* const window = windows.of(frmmain).window();
  QCOMPARE(window->minimumSize(), window->maximumSize());
  QCOMPARE(window->width(), 722 * window->logicalDpiX() / 96);
  QCOMPARE(window->height(), 575 * window->logicalDpiY() / 96);
  const QSize needed = window->layout()->totalMinimumSize();
  QVERIFY2(needed.width() <= window->width() && needed.height() <= window->height(),
           qPrintable(QString("%1 x %2").arg(needed.width()).arg(needed.height())));
}

void WindowsTest::programsBar()
{
  ui::FormWindows windows;
  frmmain.Image1.load(1);                     // before the window is there
  for (Field* const field : frmmain.fields()) // nothing is pushed out of the window by what comes and goes
    field->show(true);
  frmmain.show();
  const QWidget* const window = windows.of(frmmain).window();
  const QSize needed = window->layout()->totalMinimumSize();
  QVERIFY2(needed.width() <= window->width() && needed.height() <= window->height(),
           qPrintable(QString("%1 x %2").arg(needed.width()).arg(needed.height())));
  constexpr int programs = 30;
  int started = 0;
  for (int i = 1; i <= programs; ++i)
    frmmain.Image1.load(i).onClick = [&started, i] { started = i; };
  frmmain.HScroll1.setRange(0, 500);
  auto* const last = window->findChild<QLabel*>("Image1_30");
  QVERIFY(last && last->isVisible());
  QTest::mouseClick(last, Qt::LeftButton);
  QCOMPARE(started, programs);

  const auto* const frame = window->findChild<QLabel*>("Picture1");
  QVERIFY2(frame->height() >= last->height(), qPrintable(QString::number(frame->height())));
  const auto right = [&] { return last->mapTo(frame, last->rect().bottomRight()).x(); };
  QVERIFY(right() > frame->width());
  frmmain.HScroll1.set(500); // its end is the strip's end
  QVERIFY(right() < frame->width());

  // a program without an icon has the first letter of its name
  shared.Programy.redim(programs - 1);
  shared.PocetProgramu = programs - 1;
  const QImage nameless = last->grab().toImage();
  shared.Programy.at(programs - 1).Nazev = "žába";
  QVERIFY(last->grab().toImage() != nameless);
  shared.Programy.erase();
  shared.PocetProgramu = -1;

  frmmain.Image1.unload(programs);
  QVERIFY(last->isHidden());
  QTest::mouseClick(last, Qt::LeftButton); // nobody is there any more
  frmmain.Image1.load(programs);
  QVERIFY(!last->isHidden());
}

void WindowsTest::closingAsksTheForm()
{
  ui::FormWindows windows;
  int closed = 0;
  frmabout2.onClose = [&closed] { ++closed; };
  frmabout2.show();
  QWidget* const window = windows.of(frmabout2).window();
  window->close();
  QCOMPARE(closed, 1);
  QVERIFY(window->isVisible());
  QTest::keyClick(window, Qt::Key_Escape);
  QCOMPARE(closed, 2);
  QVERIFY(window->isVisible());
  frmabout2.onClose = {};
  window->close();
  QVERIFY(!window->isVisible());
  QVERIFY(!frmabout2.visible());
}

void WindowsTest::modalFormWaits()
{
  ui::FormWindows windows;
  ui::QtDesk desk(windows);
  setDesk(&desk);
  bool wasModal = false;
  whenDialogOpens(
      [&wasModal](QWidget& dialog)
      {
        wasModal = frmabout2.modal() && dialog.objectName() == "frmabout2";
        frmabout2.hide();
      });
  frmabout2.showModal();
  QVERIFY(wasModal);
  QVERIFY(!windows.of(frmabout2).window()->isVisible());
  whenDialogOpens([](QWidget& dialog) { dialog.close(); });
  frmabout2.showModal();
  QVERIFY(!frmabout2.visible());
  setDesk(nullptr);
}

void WindowsTest::boxIsHarmless()
{
  ui::FormWindows windows;
  ui::QtDesk desk(windows);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
  {
    whenDialogOpens([key](QWidget& dialog) { QTest::keyClick(&dialog, key); });
    QCOMPARE(desk.box("Delete all?", Buttons::yesNo, Icon::question), Answer::no);
  }
  whenDialogOpens([](QWidget& dialog) { qobject_cast<QMessageBox*>(&dialog)->button(QMessageBox::Yes)->click(); });
  QCOMPARE(desk.box("Delete all?", Buttons::yesNo, Icon::question), Answer::yes);
  whenDialogOpens([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  QCOMPARE(desk.box("Done", Buttons::ok, Icon::information), Answer::ok);
}

void WindowsTest::promptGivesTheText()
{
  ui::FormWindows windows;
  ui::QtDesk desk(windows);
  whenDialogOpens(
      [](QWidget& dialog)
      {
        dialog.findChild<QLineEdit*>()->setText("Jiří");
        QTest::keyClick(&dialog, Qt::Key_Return);
      });
  QCOMPARE(desk.prompt("Name?", "", "nobody").value_or("cancelled"), std::string("Jiří"));
  whenDialogOpens([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  QVERIFY(!desk.prompt("Name?", "", "nobody"));
}

void WindowsTest::nothingIsEnteredTwice()
{
  ui::FormWindows windows;
  ui::QtDesk desk(windows);
  frmmain.cmdend.enable(true);
  frmmain.show();
  Form1.show();
  int entered = 0;
  int cancelled = 0;
  frmmain.cmdend.onClick = [&entered] { ++entered; };
  Form1.Command1.onClick = [&cancelled] { ++cancelled; };
  const auto press = [](const QWidget* window, const char* name)
  {
    auto* const button = window->findChild<QPushButton*>(name);
    const QPointF place(5, 5);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      QCoreApplication::postEvent(
          button, new QMouseEvent(type, place, button->mapToGlobal(place), Qt::LeftButton,
                                  type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier));
  };
  press(windows.of(frmmain).window(), "cmdend");
  press(windows.of(Form1).window(), "Command1");
  desk.breathe();
  QCOMPARE(entered, 0);
  QCOMPARE(cancelled, 1);
  press(windows.of(frmmain).window(), "cmdend");
  QCoreApplication::processEvents();
  QCOMPARE(entered, 1);
}

void WindowsTest::failureEndsTheProgram()
{
  QProcess program;
  program.start(QCoreApplication::applicationFilePath(), {"--fail"});
  QVERIFY(program.waitForFinished(20000));
  QCOMPARE(program.exitStatus(), QProcess::NormalExit);
  QCOMPARE(program.exitCode(), ui::programFailed);
  const QByteArray error = program.readAllStandardError();
  QVERIFY2(error.contains("box: Run-time error '9':"), error);
  QVERIFY2(error.contains("Subscript out of range"), error);
}

void WindowsTest::listUnderTheMouse()
{
  Page page;
  QListWidget list;
  list.resize(300, 200);
  for (const char* const text : {"alpha", "beta", "gamma"})
    page.list.add(text);
  QStringList told;
  page.list.onPress = [&](MouseButton button)
  { told += QString(button == MouseButton::right ? "right %1" : "left %1").arg(page.list.index()); };
  page.list.onClick = [&] { told += QString("click %1").arg(page.list.index()); };
  const auto link = ui::linkList(page.list, &list);
  list.show();
  const auto middle = [&list](int row) { return list.visualItemRect(list.item(row)).center(); };
  const auto mark = [&list](int row) { return list.visualItemRect(list.item(row)).topLeft() + QPoint(10, 8); };

  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle(1));
  QCoreApplication::processEvents();
  QCOMPARE(told, QStringList({"left 1", "click 1"}));
  told.clear();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, mark(2));
  QCoreApplication::processEvents();
  QVERIFY(page.list.marked(2));
  QCOMPARE(page.list.index(), 2);
  QCOMPARE(told, QStringList({"click 2", "left 2"}));
  told.clear();
  QTest::mouseClick(list.viewport(), Qt::RightButton, {}, middle(0));
  QCoreApplication::processEvents();
  QCOMPARE(told, QStringList("right 2")); // the highlight stays
  QCOMPARE(list.currentRow(), 2);
  told.clear();
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, middle(0));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, QPoint(150, 180)); // taken back
  QCoreApplication::processEvents();
  QVERIFY(told.isEmpty());
  QCOMPARE(list.currentRow(), 2);
  page.list.clear();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(20, 20));
  QVERIFY(told.isEmpty());
}

void WindowsTest::listByKeys()
{
  Page page;
  QListWidget list;
  for (const char* const text : {"alpha", "beta"})
    page.list.add(text);
  int clicks = 0;
  page.list.onClick = [&clicks] { ++clicks; };
  const auto link = ui::linkList(page.list, &list);
  list.show();
  QTest::keyClick(&list, Qt::Key_Down);
  QCOMPARE(page.list.index(), 0);
  QTest::keyClick(&list, Qt::Key_Down);
  QCOMPARE(page.list.index(), 1);
  QCOMPARE(clicks, 2);
  QTest::keyClick(&list, Qt::Key_Space);
  QVERIFY(page.list.marked(1));
  QCOMPARE(clicks, 3);
}

void WindowsTest::thousandRows()
{
  Page page;
  QListWidget list;
  const auto link = ui::linkList(page.list, &list);
  list.show();
  QElapsedTimer timer;
  timer.start();
  {
    const BulkChange bulk(page.list);
    for (int i = 0; i < 1000; ++i)
      page.list.mark(page.list.add("row " + std::to_string(i)), true);
    QCOMPARE(list.count(), 0); // they come as one
  }
  QCOMPARE(list.count(), 1000);
  QCOMPARE(list.item(999)->text(), QString("row 999"));
  QCOMPARE(list.item(999)->checkState(), Qt::Checked);
  page.list.remove(0);
  QCOMPARE(list.item(0)->text(), QString("row 1"));
  QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

void WindowsTest::treeKeepsItsOpenNodes()
{
  Page page;
  QTreeWidget tree;
  page.tree.add("", "A", "Heading");
  page.tree.add("A", "A1", "leaf");
  const auto link = ui::linkTree(page.tree, &tree);
  tree.topLevelItem(0)->setExpanded(true);
  QVERIFY(page.tree.find("A")->expanded);
  page.tree.setKey("A1", "A2");
  page.tree.add("A", "A3", "another");
  QCoreApplication::processEvents();
  QVERIFY(tree.topLevelItem(0)->isExpanded());
  QCOMPARE(tree.topLevelItem(0)->childCount(), 2);
  emit tree.itemClicked(tree.topLevelItem(0)->child(0), 0);
  QVERIFY(page.tree.selected());
  QCOMPARE(page.tree.selected()->key, std::string("A2"));
}

void WindowsTest::treeIsSearchedByTyping()
{
  Page page;
  for (const char* const heading : {"Units", "Groups"})
  {
    page.tree.add("", heading, heading);
    for (const char* const group : {"Face", "Orders"})
      page.tree.add(heading, std::string(heading) + group, group);
  }
  page.tree.add("UnitsFace", "1", "unit setFace \"Face1\"");
  page.tree.add("UnitsFace", "2", "unit setMimic \"Smile\"");
  page.tree.add("GroupsOrders", "3", "grp move pos");
  page.tree.setExpanded("Groups", true);
  QWidget window;
  QLineEdit line(&window);
  line.setProperty("filterOf", "tree");
  QTreeWidget tree(&window);
  tree.setObjectName("tree");
  tree.setProperty("clickByEnter", true);
  std::string clicked;
  page.tree.onClick = [&] { clicked += page.tree.selected()->key; };
  const auto link = ui::linkTree(page.tree, &tree);
  window.show();
  const auto shown = [&tree]
  {
    QStringList texts;
    for (QTreeWidgetItemIterator item(&tree, QTreeWidgetItemIterator::NotHidden); *item; ++item)
      texts += (*item)->text(0);
    return texts.join('|');
  };
  QTest::keyClicks(&line, "SETM");
  QCOMPARE(shown(), QString("Units|Face|unit setMimic \"Smile\""));
  QVERIFY(tree.topLevelItem(0)->isExpanded());
  QVERIFY(!page.tree.find("Units")->expanded); // the field keeps its own
  line.clear();
  QCOMPARE(shown().count('|'), 8);
  QVERIFY(!tree.topLevelItem(0)->isExpanded());
  QVERIFY(tree.topLevelItem(1)->isExpanded());
  QTest::keyClicks(&line, "face"); // a heading brings all that is below it
  QCOMPARE(shown(), QString("Units|Face|unit setFace \"Face1\"|unit setMimic \"Smile\"|Groups|Face"));
  line.setText("units  smile");
  QCOMPARE(shown(), QString("Units|Face|unit setMimic \"Smile\""));
  line.setText("smile move");
  QCOMPARE(shown(), QString());
  QTest::keyClick(&line, Qt::Key_Down);
  QTest::keyClick(&line, Qt::Key_Escape);
  QCOMPARE(line.text(), QString());
  line.setText("move");
  QTest::keyClick(&line, Qt::Key_Return);
  QCOMPARE(tree.currentItem()->text(0), QString("grp move pos"));
  QCOMPARE(clicked, std::string()); // only highlighted
  QTest::keyClick(&tree, Qt::Key_Return);
  QCOMPARE(clicked, std::string("3"));
  page.tree.add("GroupsOrders", "4", "remove");
  page.tree.add("GroupsOrders", "5", "stop");
  QCoreApplication::processEvents();
  QCOMPARE(shown(), QString("Groups|Orders|grp move pos|remove"));
}

void WindowsTest::shownAgainTakesTheFocus()
{
  ui::FormWindows windows;
  frmmain.show();
  const QWidget* const main = windows.of(frmmain).window();
  frmabout2.show();
  QTRY_COMPARE(QApplication::activeWindow(), windows.of(frmabout2).window());
  frmmain.setCaption("Another");
  frmmain.Image1.load(1);
  QCoreApplication::processEvents();
  QCOMPARE(QApplication::activeWindow(), windows.of(frmabout2).window());
  frmmain.show();
  QTRY_COMPARE(QApplication::activeWindow(), main);
}

void WindowsTest::diskLists()
{
  QTemporaryDir folder;
  QVERIFY(QDir(folder.path()).mkpath("inner/Mise.Eden"));
  writeFile(folder.filePath("inner/mission.sqm"), "class Mission\r\n");
  writeFile(folder.filePath("inner/readme.txt"), "text");
  Page page;
  QTreeWidget tree;
  QListWidget list;
  QComboBox drives;
  const auto folderLink = ui::linkFolderList(page.folders, &tree);
  const auto fileLink = ui::linkFileList(page.files, &list);
  const auto driveLink = ui::linkDriveList(page.drives, &drives);
  int changes = 0;
  page.folders.onChange = [&]
  {
    ++changes;
    page.files.setPath(page.folders.path());
  };
  page.folders.setPath(platform::toProgram(folder.path().toStdString()));
  QCOMPARE(changes, 1);
  QTreeWidgetItem* const here = tree.currentItem();
  QVERIFY(here && here->isSelected());
  QCOMPARE(here->text(0), QFileInfo(folder.path()).fileName());
  QCOMPARE(here->childCount(), 1);
  emit tree.itemClicked(here->child(0), 0);
  QCOMPARE(changes, 2);
  QVERIFY(page.folders.path().ends_with("\\inner"));
  QCOMPARE(list.count(), 1);
  QCOMPARE(list.item(0)->text(), QString("mission.sqm"));
  int clicks = 0;
  page.files.onClick = [&clicks] { ++clicks; };
  emit list.itemClicked(list.item(0));
  QCOMPARE(page.files.selected(), std::string("mission.sqm"));
  QCOMPARE(clicks, 1);
  QDir(folder.path()).rename("inner/Mise.Eden", "inner/gone");
  for (int i = 0; i < tree.currentItem()->childCount(); ++i) // its row is still there
    emit tree.itemClicked(tree.currentItem()->child(i), 0);
  QVERIFY(page.folders.path().ends_with("\\inner"));
  QVERIFY(drives.count() >= 1);
}

void WindowsTest::typedPath()
{
  QTemporaryDir folder;
  QVERIFY(QDir(folder.path()).mkpath("inner"));
  writeFile(folder.filePath("inner/mission.sqm"), "class Mission\r\n");
  ui::FormWindows windows;
  frmopenmission.File1.setPattern("*.sqm*");
  frmopenmission.Dir1.onChange = [] { frmopenmission.File1.setPath(frmopenmission.Dir1.path()); };
  int confirmed = 0;
  frmopenmission.Command1.onClick = [&confirmed] { ++confirmed; };
  frmopenmission.show();
  auto* const line = windows.of(frmopenmission).window()->findChild<QLineEdit*>("box_path");
  const auto type = [line](const QString& path)
  {
    line->setText(path);
    QTest::keyClick(line, Qt::Key_Return);
  };
  type(folder.path());
  QCOMPARE(frmopenmission.Dir1.path(), platform::toProgram(folder.path().toStdString()));
  QCOMPARE(line->text(), folder.path());
  QCOMPARE(confirmed, 0);
  type("nowhere");
  QCOMPARE(frmopenmission.Dir1.path(), platform::toProgram(folder.path().toStdString()));
  type("inner/mission.sqm");
  QVERIFY(frmopenmission.Dir1.path().ends_with("\\inner"));
  QCOMPARE(frmopenmission.File1.selected(), std::string("mission.sqm"));
  QCOMPARE(confirmed, 1);
}

void WindowsTest::pictureOfTheLook()
{
  QPixmap drawn(24, 24);
  drawn.fill(Qt::red);
  QLabel label;
  label.setPixmap(drawn);
  Page page;
  const auto link = ui::linkPicture(page.picture, &label);
  QCOMPARE(label.pixmap(Qt::ReturnByValue).toImage().pixelColor(5, 5), QColor(Qt::red));
  label.resize(50, 50);
  label.show();
  QCOMPARE(label.pixmap(Qt::ReturnByValue).toImage().pixelColor(5, 5), QColor(Qt::red));
}

void WindowsTest::bigPicture()
{
  QTemporaryDir folder;
  QImage image(3000, 2000, QImage::Format_RGB32);
  image.fill(QColor(200, 40, 40));
  const QString file = folder.filePath("pic.jpg");
  QVERIFY(image.save(file, "JPEG"));
  Page page;
  QLabel label;
  label.resize(240, 200);
  const auto link = ui::linkPicture(page.picture, &label);
  page.picture.load(platform::toProgram(file.toStdString()));
  QTRY_VERIFY(!label.pixmap(Qt::ReturnByValue).isNull());
  const QSize size = label.pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
  QCOMPARE(size, QSize(240, 160));
  int clicks = 0;
  page.picture.onClick = [&clicks] { ++clicks; };
  QTest::mouseClick(&label, Qt::LeftButton);
  QCOMPARE(clicks, 1);
  page.picture.clear();
  QVERIFY(label.pixmap(Qt::ReturnByValue).isNull());
}

void WindowsTest::pagesByCharacterSet()
{
  QTemporaryDir folder;
  const auto page = [&folder](const char* name, const QByteArray& bytes)
  {
    writeFile(folder.filePath(name), bytes);
    return ui::readPage(platform::toProgram(folder.filePath(name).toStdString()));
  };
  const ui::Page czech = page("a.html", "<html><head><meta http-equiv=\"Content-Type\" content=\"text/html; "
                                        "charset=windows-1250\"></head><body>k\xF9\xF2</body></html>");
  QVERIFY(czech.html);
  QVERIFY(czech.text.contains("kůň"));
  QVERIFY(page("b.htm", "<meta charset='utf-8'>k\xC5\xAF\xC5\x88").text.contains("kůň"));
  const ui::Page text = page("c.ext", "k\xF9\xF2 <b>");
  QVERIFY(!text.html);
  QCOMPARE(text.text, QString("kůň <b>"));

  Page form;
  QTextBrowser view;
  const auto link = ui::linkBrowser(form.browser, &view);
  form.browser.navigate(platform::toProgram(folder.filePath("a.html").toStdString()));
  QCOMPARE(view.toPlainText(), QString("kůň"));
  form.browser.navigate(platform::toProgram(folder.filePath("c.ext").toStdString()));
  QCOMPARE(view.toPlainText(), QString("kůň <b>"));
  form.browser.navigate("nowhere");
  QCOMPARE(view.toPlainText(), QString());
}

void WindowsTest::pagesOnADarkDesktop()
{
  const QPalette light = QApplication::palette();
  QApplication::setPalette(QPalette(QColor(53, 53, 57), QColor(42, 43, 46)));
  QTemporaryDir folder;
  writeFile(folder.filePath("page.html"), "<body>word <a href='#there'>link</a></body>");
  writeFile(folder.filePath("page.ext"), "word");
  Page form;
  QTextBrowser view;
  const auto link = ui::linkBrowser(form.browser, &view);
  form.browser.navigate(platform::toProgram(folder.filePath("page.ext").toStdString()));
  QVERIFY(view.palette().color(QPalette::Base).lightness() < 128); // a text is the desktop's
  form.browser.navigate(platform::toProgram(folder.filePath("page.html").toStdString()));
  QCOMPARE(view.palette().color(QPalette::Base), QColor(Qt::white));
  QCOMPARE(view.palette().color(QPalette::Text), QColor(Qt::black));
  QTextCursor cursor(view.document());
  cursor.setPosition(7);
  QCOMPARE(cursor.charFormat().foreground().color(), QColor("#0645ad"));
  form.browser.navigate(platform::toProgram(folder.filePath("page.ext").toStdString()));
  QVERIFY(view.palette().color(QPalette::Base).lightness() < 128);
  QApplication::setPalette(light);
}

/// With --fail the test is the program whose handler fails.
int main(int count, char** arguments)
{
  QApplication application(count, arguments);
  if (QCoreApplication::arguments().contains("--fail"))
  {
    whenDialogOpens(
        [](QWidget& dialog)
        {
          std::fprintf(stderr, "box: %s\n", qPrintable(qobject_cast<QMessageBox*>(&dialog)->text()));
          QTest::keyClick(&dialog, Qt::Key_Return);
        });
    ui::act([] { throw Failure(Fault::subscript); });
    return 0;
  }
  WindowsTest test;
  return QTest::qExec(&test, count, arguments);
}

#include "windows_test.moc"
