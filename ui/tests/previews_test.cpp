// What the window shows of a mission's work: its written files, and the titles on a screen of the game.

#include "app/assemble.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnahled.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/startup.h"
#include "platform/paths.h"
#include "ui/form_window.h"
#include "ui/other_pictures.h"
#include "ui/qt_desk.h"

#include <QtTest>
#include <QtWidgets>

using namespace tarvelin;

namespace
{

/// The window's own desk, but for the first start: it takes the Czech pack and a name.
class StartingDesk : public ui::QtDesk
{
public:
  explicit StartingDesk(ui::FormWindows& windows) : QtDesk(windows) {}

  void showModal(Form& form) override
  {
    if (m_started)
      return QtDesk::showModal(form);
    for (int row = 0; row < frmloadsite.List1.count(); ++row)
      if (frmloadsite.List1.text(row).starts_with("Czech"))
        frmloadsite.List1.userSelect(row);
    frmloadsite.Command1.click();
  }
  std::optional<std::string> prompt(std::string_view text, std::string_view title, std::string_view suggested) override
  {
    return m_started ? QtDesk::prompt(text, title, suggested) : "Jan";
  }

  std::optional<Colour> chooseColour(Colour) override { return chosen; }

  std::optional<Colour> chosen; ///< what the user takes in the chooser of colours

  void start(const std::string& commandLine)
  {
    startProgram(commandLine);
    m_started = true;
  }

private:
  bool m_started = false;
};

void writeFile(const QString& path, const QByteArray& bytes)
{
  QFile file(path);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

QByteArray readFile(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

} // namespace

class PreviewsTest : public QObject
{
  Q_OBJECT

private slots:
  void initTestCase();
  void cleanupTestCase();

  void oneBriefing();
  void chooserOfSeveral();
  void rewrittenTable();
  void helpPage();
  void titleOnItsScreen();
  void controlsFollowTheSliders();
  void drawnIcon();

private:
  QWidget& window(Form& form) { return *m_windows->of(form).window(); }
  void press(Form& form, const char* name)
  {
    QTest::mouseClick(window(form).findChild<QPushButton*>(name), Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  QString page() { return window(frmnahled).findChild<QTextBrowser*>("nahledbrowser")->toPlainText(); }
  QString title() { return window(frmnahled).windowTitle(); }

  /// The preview of the titles as it is painted, and the game's screen on it.
  QImage preview()
  {
    QCoreApplication::processEvents();
    return window(frmdalsinast).findChild<QLabel*>("picnahled")->grab().toImage();
  }
  QColor at(double x, double y)
  {
    const QImage image = preview();
    const double width = std::min<double>(image.width(), image.height() * 4.0 / 3);
    const double height = width * 3 / 4;
    return image.pixelColor(static_cast<int>((image.width() - width) / 2 + x * width),
                            static_cast<int>((image.height() - height) / 2 + y * height));
  }

  QTemporaryDir m_folder;
  std::unique_ptr<ui::FormWindows> m_windows;
  std::unique_ptr<StartingDesk> m_desk;
};

void PreviewsTest::initTestCase()
{
  copyFolder(QCoreApplication::applicationDirPath() + "/Bfdata", m_folder.filePath("Bfdata"));
  QDir().mkpath(m_folder.filePath("Bfdata/dokumentace"));
  writeFile(m_folder.filePath("Bfdata/dokumentace/index.html"), "<html><body>This is the help.</body></html>");
  QDir().mkpath(m_folder.filePath("mission.Eden"));
  writeFile(m_folder.filePath("mission.Eden/mission.sqm"), "version=11;\r\nclass Mission\r\n{\r\n};\r\n");
  setProgramFolder(platform::toProgram(m_folder.path().toStdString()));
  assembleProgram();
  m_windows = std::make_unique<ui::FormWindows>();
  m_desk = std::make_unique<StartingDesk>(*m_windows);
  setDesk(m_desk.get());
  m_desk->start("MISSION=" + m_folder.filePath("mission.Eden/mission.sqm").toStdString());
  QVERIFY(!shared.CestaMise.empty());
  QCOMPARE(QString::fromStdString(shared.Nastaveni.SouborJazyka).section('\\', -1), QString("Czech.lng"));
}

void PreviewsTest::cleanupTestCase()
{
  setDesk(nullptr);
  m_windows.reset();
}

void PreviewsTest::oneBriefing()
{
  frmmain.mnushowfiles.click();
  QVERIFY(window(frmnahled).isVisible());
  QCOMPARE(page(), QString("This is the help."));
  const QString before = title();
  press(frmnahled, "cmdbriefing");
  QCOMPARE(title(), before); // there is none
  QCOMPARE(page(), QString("This is the help."));
  writeFile(m_folder.filePath("mission.Eden/Briefing.html"),
            "<html><head><meta charset=\"windows-1250\"></head><body>Pl\xE1n \xFAtoku</body></html>");
  press(frmnahled, "cmdbriefing");
  QCOMPARE(page(), QString("Plán útoku"));
  QCOMPARE(title(), QString("Náhled souborů: Briefing.html"));
}

void PreviewsTest::chooserOfSeveral()
{
  writeFile(m_folder.filePath("mission.Eden/Briefing.German.html"), "<html><body>Angriff</body></html>");
  QStringList rows;
  whenDialogOpens(
      [&rows](QWidget& dialog)
      {
        QCOMPARE(dialog.objectName(), QString("frmloadsite"));
        auto* const list = dialog.findChild<QListWidget*>("List1");
        for (int i = 0; i < list->count(); ++i)
          rows += list->item(i)->text();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        QTest::mouseClick(dialog.findChild<QPushButton*>("Command1"), Qt::LeftButton);
      });
  press(frmnahled, "cmdbriefing");
  QCOMPARE(rows, QStringList({"Briefing.German.html", "Briefing.html"}));
  QCOMPARE(page(), QString("Angriff"));
  QCOMPARE(title(), QString("Náhled souborů: Briefing.German.html"));

  whenDialogOpens([](QWidget& dialog) { dialog.close(); });
  press(frmnahled, "cmdnapoveda");
  press(frmnahled, "cmdbriefing");
  QCOMPARE(title(), QString("Náhled souborů: Nápověda")); // closed without a choice
  QCOMPARE(page(), QString("This is the help."));
}

void PreviewsTest::rewrittenTable()
{
  const QString table = m_folder.filePath("mission.Eden/Stringtable.csv");
  writeFile(table, "LANGUAGE,Czech\r\nold,\"star\xFD\"\r\n");
  press(frmnahled, "cmdukaystrtable");
  QCOMPARE(page(), QString("LANGUAGE,Czech\nold,\"starý\"\n"));
  QCOMPARE(title(), QString("Náhled souborů: Stringtable.csv"));
  QString shown;
  QByteArray kept;
  QString told;
  whenDialogOpens(
      [&](QWidget& dialog)
      {
        shown = page();
        kept = readFile(table);
        if (const auto* const box = qobject_cast<QMessageBox*>(&dialog))
          told = box->text();
        QTest::keyClick(&dialog, Qt::Key_Return);
      });
  press(frmmain, "cmdvytvor");
  QCOMPARE(told, QString::fromStdString(shared.Hlasky.at(22)));
  QVERIFY(!told.isEmpty());
  QCOMPARE(shown, QString("This is the help."));
  QVERIFY2(kept.contains("old,"), kept); // told before the file is touched
  QCOMPARE(title(), QString("Náhled souborů: Nápověda"));
  QVERIFY(readFile(table).startsWith("LANGUAGE,Czech,English,German,French,Italian,Spanish,Comment\r\n"));

  press(frmnahled, "cmddescription"); // of another file nothing is told
  QVERIFY2(page().contains("class"), qPrintable(page()));
  press(frmmain, "cmdvytvor");
  QCOMPARE(title(), QString("Náhled souborů: Description.ext"));
}

void PreviewsTest::helpPage()
{
  press(frmnahled, "cmdnapoveda");
  QCOMPARE(page(), QString("This is the help."));
  QFile::remove(m_folder.filePath("mission.Eden/Description.ext"));
  press(frmnahled, "cmddescription"); // not there: an empty page
  QCOMPARE(page(), QString());
  press(frmnahled, "cmdOk");
  QVERIFY(!window(frmnahled).isVisible());
}

void PreviewsTest::titleOnItsScreen()
{
  QImage picture(64, 64, QImage::Format_RGB32);
  picture.fill(QColor(200, 40, 40));
  const QString file = m_folder.filePath("picture.jpg");
  QVERIFY(picture.save(file, "JPEG", 100));

  frmmain.mnudalsizvuky.click();
  frmdalsinast.SSTab1.setTab(2);
  QVERIFY(window(frmdalsinast).isVisible());
  QCOMPARE(at(0.5, 0.5), QColor(Qt::black)); // an empty screen
  press(frmdalsinast, "cmdpridat1");
  frmdalsinast.List3.userSelect(0);
  press(frmdalsinast, "cmdpridat2");
  frmdalsinast.List4.userSelect(0);
  frmdalsinast.Option2.set(true);
  frmdalsinast.txttext.set(platform::toProgram(file.toStdString()));
  frmdalsinast.x.userScroll(500);
  frmdalsinast.y.userScroll(500);
  frmdalsinast.w.userScroll(250);
  frmdalsinast.h.userScroll(250);
  QVERIFY(at(0.6, 0.6).red() < 100); // a typed path shows nothing
  frmdalsinast.List4.userSelect(0);
  const auto isRed = [this](double x, double y)
  {
    const QColor colour = at(x, y);
    return std::abs(colour.red() - 200) < 12 && colour.green() < 60 && colour.blue() < 60;
  };
  QVERIFY(isRed(0.6, 0.6));
  QVERIFY(isRed(0.73, 0.53));
  QCOMPARE(at(0.4, 0.6), QColor(Qt::black));
  QCOMPARE(at(0.6, 0.8), QColor(Qt::black));
  frmdalsinast.x.userScroll(0);
  QVERIFY(isRed(0.1, 0.6));
  QCOMPARE(at(0.6, 0.6), QColor(Qt::black));

  // beside another control that is highlighted it stays on the screen, until its mark is taken off
  press(frmdalsinast, "cmdpridat2");
  frmdalsinast.List4.userSelect(1);
  QVERIFY(isRed(0.1, 0.6));
  frmdalsinast.List4.mark(0, false);
  frmdalsinast.List4.userSelect(1);
  QCOMPARE(at(0.1, 0.6), QColor(Qt::black));

  frmdalsinast.x.userScroll(1000); // out of the screen
  frmdalsinast.w.userScroll(1000);
  QCOMPARE(at(0.5, 0.5), QColor(Qt::black));
}

void PreviewsTest::controlsFollowTheSliders()
{
  frmdalsinast.List4.userSelect(1); // a text
  const QColor outline = window(frmdalsinast).palette().color(QPalette::Highlight);
  const auto hasOutline = [&](double x, double y)
  {
    for (double off = -0.012; off <= 0.012; off += 0.002)
      if (at(x + off, y) == outline)
        return true;
    return false;
  };
  frmdalsinast.x.userScroll(250);
  frmdalsinast.y.userScroll(250);
  frmdalsinast.w.userScroll(500);
  frmdalsinast.h.userScroll(200);
  QVERIFY(hasOutline(0.25, 0.35));
  QVERIFY(hasOutline(0.75, 0.35));
  QVERIFY(!hasOutline(0.5, 0.35));
  QVERIFY(!hasOutline(0.25, 0.55));
  frmdalsinast.x.userScroll(400);
  frmdalsinast.w.userScroll(100);
  QVERIFY(hasOutline(0.4, 0.35));
  QVERIFY(hasOutline(0.5, 0.35));
  QVERIFY(!hasOutline(0.25, 0.35));
  QCOMPARE(frmdalsinast.picnahled.path(), std::string()); // the field knows of pictures alone

  // a background of full alpha fills it
  m_desk->chosen = 0x0000FF00;
  frmdalsinast.picbackcolor.click();
  frmdalsinast.cba.set("100");
  QCOMPARE(at(0.45, 0.35), QColor(0, 255, 0));
  frmdalsinast.cba.set("0");
  QCOMPARE(at(0.45, 0.35), QColor(Qt::black));

  press(frmdalsinast, "cmdelvse1");
  QCOMPARE(at(0.45, 0.35), QColor(Qt::black));
  QVERIFY(!hasOutline(0.4, 0.35));
}

void PreviewsTest::drawnIcon()
{
  writeFile(m_folder.filePath("icon.svg"),
            "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 10 5\"><rect width=\"10\" height=\"5\" "
            "fill=\"#204060\"/></svg>");
  const auto icon = ui::readOtherPicture(m_folder.filePath("icon.svg").toStdString(), 32);
  QVERIFY(icon);
  QCOMPARE(icon->width, 32);
  QCOMPARE(icon->pixels[16 * 32 + 16], 0xFF204060U);
  QCOMPARE(icon->pixels[0], 0U); // it keeps its shape
  writeFile(m_folder.filePath("icon.xpm"),
            "/* XPM */\nstatic char *a[] = {\n\"2 1 2 1\",\n\"a c #FF0000\",\n\"b c None\",\n\"ab\"};\n");
  const auto old = ui::readOtherPicture(m_folder.filePath("icon.xpm").toStdString(), 32);
  QVERIFY(old);
  QCOMPARE(old->pixels, (std::vector<std::uint32_t>{0xFFFF0000, 0}));
  writeFile(m_folder.filePath("bad.svg"), "no picture");
  QVERIFY(!ui::readOtherPicture(m_folder.filePath("bad.svg").toStdString(), 32));
  QVERIFY(!ui::readOtherPicture(m_folder.filePath("missing.xpm").toStdString(), 32));
}

QTEST_MAIN(PreviewsTest)
#include "previews_test.moc"
