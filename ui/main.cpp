// tarvelin: the program in its window.

#include "app/assemble.h"
#include "core/desk.h"
#include "core/exit.h"
#include "core/installation.h"
#include "core/program.h"
#include "core/startup.h"
#include "platform/program_icon.h"
#include "ui/action.h"
#include "ui/form_window.h"
#include "ui/other_pictures.h"
#include "ui/qt_desk.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string>

namespace
{

using namespace tarvelin;

/// The command line as the program reads it: the arguments as given, one blank between them.
std::string joinedArguments(const QStringList& arguments)
{
  return arguments.mid(1).join(' ').toStdString();
}

} // namespace

int main(int count, char** arguments)
{
  QApplication application(count, arguments);
  QApplication::setApplicationName("Tarvelin");
  QApplication::setDesktopFileName("tarvelin");
  QApplication::setWindowIcon(QIcon(":/tarvelin.svg"));
  QApplication::setQuitOnLastWindowClosed(false); // the program says when it ends

  QTranslator words; // those of the platform's boxes and choosers
  if (words.load(QLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&words);

  setProgramFolder(findProgramFolder());
  assembleProgram();
  platform::otherPictures = ui::readOtherPicture;
  ui::FormWindows windows;
  ui::QtDesk desk(windows);
  setDesk(&desk);
  ui::act([] { startProgram(joinedArguments(QApplication::arguments())); });
  const int status = programEnded() ? 0 : QApplication::exec();
  setDesk(nullptr);
  return status;
}
