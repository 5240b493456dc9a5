// tarvelin-script-times: how long the script editor's window works on a script of 1 MB, in milliseconds of the
// processor's time, so that a busy machine tells the same.

#include "app/assemble.h"
#include "core/forms/all_forms.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmrejstrik.h"
#include "core/program.h"
#include "core/settings.h"
#include "core/shared.h"
#include "platform/paths.h"
#include "script/catalogue.h"
#include "ui/code_edit.h"
#include "ui/form_window.h"

#include <QtWidgets>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

using namespace tarvelin;

namespace
{

constexpr int megabyte = 1 << 20;

void settle()
{
  for (int i = 0; i < 3; ++i)
    QCoreApplication::processEvents();
}

double milliseconds()
{
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// Prints the mean and the longest of some runs.
void measure(const char* what, int runs, const std::function<void()>& action)
{
  double sum = 0;
  double longest = 0;
  for (int i = 0; i < runs; ++i)
  {
    const double before = milliseconds();
    action();
    settle();
    const double took = milliseconds() - before;
    sum += took;
    longest = std::max(longest, took);
  }
  std::printf("%-40s %8.2f ms, at most %8.2f\n", what, sum / runs, longest);
}

void key(QWidget* widget, Qt::Key code, const QString& text, Qt::KeyboardModifiers modifiers = {})
{
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
  {
    QKeyEvent event(type, code, modifiers, text);
    QCoreApplication::sendEvent(widget, &event);
  }
}

QByteArray script()
{
  QByteArray text;
  for (int i = 0; text.size() < megabyte; ++i)
    text += "_u" + QByteArray::number(i) + " DOMOVE getpos hrac_" + QByteArray::number(i % 100) +
            " AND alive \"M16\" ; note\r\n~0.5\r\n";
  return text;
}

void writeFile(const QString& path, const QByteArray& bytes)
{
  QFile file(path);
  if (file.open(QIODevice::WriteOnly))
    file.write(bytes);
}

} // namespace

int main(int count, char** arguments)
{
  QApplication application(count, arguments);
  const QTemporaryDir folder;
  writeFile(folder.filePath("a.sqs"), script());
  writeFile(folder.filePath("b.sqs"), "hint \"b\"\r\n");
  writeFile(folder.filePath("line.sqs"), "hint " + QByteArray(5 * megabyte, 'x'));
  assembleProgram();
  setDefaultSettings();
  NactiDruhePrikazy(platform::toProgram((QCoreApplication::applicationDirPath() + "/Bfdata/edit.dat").toStdString()));
  const ui::FormWindows windows;
  frmmain.show();
  frmmain.SSTab1.enable(true);
  frmmain.SSTab1.setTab(7);
  shared.PovolBarvy = -1;
  frmmain.otevreneskripty.setPath(platform::toProgram(folder.path().toStdString()));
  settle();
  auto* const edit = dynamic_cast<ui::CodeEdit*>(windows.of(frmmain).window()->findChild<QWidget*>("skript"));
  edit->setFocus();
  const auto open = [](const char* name) { frmmain.otevreneskripty.userSelect(name); };
  const auto caret = [edit](int place)
  {
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(place);
    edit->setTextCursor(cursor);
  };
  std::printf("words in the index: %d\n", frmrejstrik.seznam.count());

  measure("open 1 MB, coloured, on the screen", 1, [&] { open("a.sqs"); });
  std::printf("lines: %d\n", edit->blockCount());
  for (int i = 0; i < 3; ++i)
  {
    open("b.sqs");
    settle();
    measure("open it again", 1, [&] { open("a.sqs"); });
  }
  measure("colour it anew (cmdrefresh)", 3, [] { frmmain.cmdrefresh.click(); });
  const int end = edit->document()->characterCount() - 1;
  for (const auto& [where, place] :
       {std::pair("the start", 0), std::pair("the middle", end / 2), std::pair("the end", end)})
  {
    std::printf("at %s:\n", where);
    measure("  the caret goes there", 1, [&] { caret(place); });
    measure("  a letter", 20, [edit] { key(edit, Qt::Key_D, "d"); });
    measure("  a blank that closes a word", 20,
            [edit]
            {
              edit->insertPlainText("DOMOVE");
              key(edit, Qt::Key_Space, " ");
            });
    measure("  Enter", 20, [edit] { key(edit, Qt::Key_Return, "\r"); });
    measure("  undo", 20, [edit] { key(edit, Qt::Key_Z, {}, Qt::ControlModifier); });
  }
  caret(0);
  measure("a page down", 200, [edit] { key(edit, Qt::Key_PageDown, {}); });
  measure("a line down", 200, [edit] { key(edit, Qt::Key_Down, {}); });
  const int last = edit->verticalScrollBar()->maximum();
  int line = 0;
  measure("scrolled by the bar", 100, [&] { edit->verticalScrollBar()->setValue(line++ * 7919 % last); });

  std::printf("one line of 5 MB:\n");
  measure("  open", 1, [&] { open("line.sqs"); });
  measure("  its end", 1, [edit] { edit->moveCursor(QTextCursor::End); });
  measure("  a letter", 20, [edit] { key(edit, Qt::Key_D, "d"); });
  return 0;
}
