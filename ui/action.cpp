#include "ui/action.h"

#include "core/exit.h"
#include "platform/failure.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

namespace tarvelin::ui
{
namespace
{

[[noreturn]] void endWith(const Failure& failure)
{
  const QString text =
      QStringLiteral("Run-time error '%1':\n\n%2").arg(failure.number).arg(QString::fromStdString(failure.description));
  QMessageBox(QMessageBox::Critical, QApplication::applicationDisplayName(), text, QMessageBox::Ok).exec();
  std::fprintf(stderr, "run-time error %d: %s\n", failure.number, failure.description.c_str());
  std::fflush(nullptr);
  std::_Exit(programFailed); // nothing behind the failed statement may run any more
}

} // namespace

void act(const std::function<void()>& action)
{
  try
  {
    action();
  }
  catch (const Failure& failure)
  {
    endWith(failure);
  }
  if (programEnded())
    QCoreApplication::quit();
}

} // namespace tarvelin::ui
