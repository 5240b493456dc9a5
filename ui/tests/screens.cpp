// tarvelin-screens FOLDER MISSION [LANGUAGE ...]: pictures of every window and every tab, in those languages or in each
// of the packs, for somebody to look at. With --filled before the FOLDER and one LANGUAGE the windows show a sample
// mission and campaign; the missions and sounds that it takes lie beside the folder of MISSION's folder
// (art/help-screens makes them). --dark is a dark desktop, --font POINTS one with another size of letters.

#include "app/assemble.h"
#include "core/desk.h"
#include "core/forms/all_forms.h"
#include "core/forms/frmloadsite.h"
#include "core/forms/frmmain.h"
#include "core/program.h"
#include "core/shared.h"
#include "core/startup.h"
#include "platform/paths.h"
#include "ui/form_window.h"
#include "ui/tests/sample_content.h"

#include <QtWidgets>

using namespace tarvelin;

namespace
{

/// Chooses the language pack at the first start and says yes to nothing.
class ScreensDesk : public Desk
{
public:
  /// `samples` is the folder with what the sample content picks, empty when the windows are not filled.
  ScreensDesk(const QString& language, const QString& samples) : m_language(language), m_samples(samples) {}

  void showModal(Form& form) override
  {
    if (!m_samples.isEmpty() && pickSample(form, m_samples.toStdString()))
      return;
    if (&form != &frmloadsite)
      return;
    for (int row = 0; row < frmloadsite.List1.count(); ++row)
      if (QString::fromStdString(frmloadsite.List1.text(row)).startsWith(m_language))
        frmloadsite.List1.userSelect(row);
    frmloadsite.Command1.click();
  }
  Answer box(std::string_view, Buttons buttons, Icon) override
  {
    return buttons == Buttons::ok ? Answer::ok : Answer::no;
  }
  std::optional<std::string> prompt(std::string_view text, std::string_view, std::string_view) override
  {
    return text == Texty(111) ? "jana@example.org" : "Jana";
  }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<tarvelin::Font> chooseFont(const tarvelin::Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view, std::string_view, std::string_view) override { return false; }
  bool browse(std::string_view) override { return false; }
  void breathe() override {}

private:
  QString m_language, m_samples;
};

void settle()
{
  for (int i = 0; i < 5; ++i)
    QCoreApplication::processEvents();
}

/// Every tab of the outermost strip of tabs, and below each the tabs of the strip inside it.
void grabTabs(QWidget& window, const QString& file, QTabWidget* strip)
{
  if (!strip)
  {
    settle();
    window.grab().save(file + ".png");
    return;
  }
  for (int tab = 0; tab < strip->count(); ++tab)
  {
    strip->setCurrentIndex(tab);
    grabTabs(window, file + '-' + QString::number(tab), strip->currentWidget()->findChild<QTabWidget*>());
  }
}

/// A dark desktop's colours.
QPalette darkPalette()
{
  QPalette palette(QColor(53, 53, 57), QColor(42, 43, 46));
  palette.setColor(QPalette::Base, QColor(30, 31, 34));
  palette.setColor(QPalette::AlternateBase, QColor(42, 43, 46));
  palette.setColor(QPalette::Highlight, QColor(45, 108, 160));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(110, 170, 240));
  return palette;
}

/// Opens what a mission may show, so that the pictures have as much to hold as there can be.
void openAll()
{
  for (Check* const check : {&frmmain.respawn, &frmmain.Skore, &frmmain.chkvicestran})
    check->set(true);
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

void grabAll(const QString& folder, const QString& language, const QString& mission, bool filled)
{
  const QTemporaryDir home;
  copyFolder(QCoreApplication::applicationDirPath() + "/Bfdata", home.filePath("Bfdata"));
  setProgramFolder(platform::toProgram(home.path().toStdString()));
  assembleProgram();
  ScreensDesk desk(language, filled ? QDir::cleanPath(QFileInfo(mission).absolutePath() + "/../..") : QString());
  setDesk(&desk);
  ui::FormWindows windows;
  startProgram(("MISSION=" + mission).toStdString());
  if (filled)
    fillWithSample(language.toStdString());
  else
    openAll();
  for (Form* const form : allForms())
  {
    QWidget* const window = windows.of(*form).window();
    if (!window)
      continue;
    form->load();
    window->setWindowTitle(QString::fromStdString(form->caption()));
    if (!window->isVisible())
      window->show();
    grabTabs(*window, folder + '/' + language + '-' + QString::fromStdString(form->name()),
             window->findChild<QTabWidget*>());
    if (form != &frmmain)
      window->hide();
  }
  setDesk(nullptr);
}

} // namespace

int main(int count, char** arguments)
{
  QApplication application(count, arguments);
  QCommandLineParser options;
  options.addOptions({{"filled", "a sample mission and campaign"},
                      {"dark", "a dark desktop"},
                      {"font", "size of the desktop's font", "points"}});
  options.process(application);
  const QStringList given = options.positionalArguments();
  const bool filled = options.isSet("filled");
  if (given.size() < 2 || (filled && given.size() != 3)) // the sample would be filled in a second time
  {
    std::fputs("usage: tarvelin-screens [--dark] [--font POINTS] FOLDER MISSION [LANGUAGE ...]\n"
               "       tarvelin-screens --filled FOLDER MISSION LANGUAGE\n",
               stderr);
    return 2;
  }
  if (options.isSet("dark"))
  {
    QApplication::setStyle("fusion");
    QApplication::setPalette(darkPalette());
  }
  if (options.isSet("font"))
  {
    QFont font = QApplication::font();
    font.setPointSize(options.value("font").toInt());
    QApplication::setFont(font);
  }
  QDir().mkpath(given[0]);
  const QString packs = QCoreApplication::applicationDirPath() + "/Bfdata/languages/Tv";
  QStringList languages = given.mid(2);
  if (languages.isEmpty())
    for (const QFileInfo& pack : QDir(packs).entryInfoList({"*.lng"}))
      languages += pack.completeBaseName();
  for (const QString& language : languages)
  {
    if (!QFile::exists(packs + '/' + language + ".lng"))
    {
      std::fprintf(stderr, "tarvelin-screens: no such language: %s\n", qUtf8Printable(language));
      return 1;
    }
    grabAll(given[0], language, given[1], filled);
  }
  return 0;
}
