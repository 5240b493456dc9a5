#include "ui/qt_desk.h"

#include "core/forms/form.h"
#include "platform/processes.h"
#include "ui/colours.h"
#include "ui/form_window.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QProgressBar>
#include <QWidget>

namespace tarvelin::ui
{
namespace
{

QString shown(std::string_view text)
{
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QMessageBox::Icon iconOf(Icon icon)
{
  switch (icon)
  {
  case Icon::information: return QMessageBox::Information;
  case Icon::question: return QMessageBox::Question;
  case Icon::critical: return QMessageBox::Critical;
  case Icon::none: break;
  }
  return QMessageBox::NoIcon;
}

/// "Icons|*.ico;*.png|All|*.*" in the toolkit's words.
QString filterOf(std::string_view filter)
{
  const QStringList parts = shown(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    filters += parts[i] + " (" + QString(parts[i + 1]).replace(';', ' ').replace("*.*", "*") + ')';
  return filters.join(";;");
}

/// What the user does, and not what the system asks of a window.
bool isInput(QEvent::Type type)
{
  switch (type)
  {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonRelease:
  case QEvent::MouseButtonDblClick:
  case QEvent::Wheel:
  case QEvent::KeyPress:
  case QEvent::KeyRelease:
  case QEvent::ShortcutOverride:
  case QEvent::Shortcut:
  case QEvent::ContextMenu:
  case QEvent::TouchBegin:
  case QEvent::TabletPress:
  case QEvent::Close: return true;
  default: return false;
  }
}

} // namespace

void QtDesk::showModal(Form& form)
{
  m_windows.of(form).exec();
}

Answer QtDesk::box(std::string_view text, Buttons buttons, Icon icon)
{
  QMessageBox box(iconOf(icon), QApplication::applicationDisplayName(), shown(text),
                  buttons == Buttons::ok ? QMessageBox::Ok : QMessageBox::Yes | QMessageBox::No,
                  QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  if (buttons == Buttons::yesNo) // Enter and Esc do no harm
  {
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
  }
  const int pressed = box.exec();
  if (buttons == Buttons::ok)
    return Answer::ok;
  return pressed == QMessageBox::Yes ? Answer::yes : Answer::no;
}

std::optional<std::string> QtDesk::prompt(std::string_view text, std::string_view title, std::string_view suggested)
{
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(title.empty() ? QApplication::applicationDisplayName() : shown(title));
  dialog.setLabelText(shown(text));
  dialog.setTextValue(shown(suggested));
  dialog.resize(dialog.sizeHint().expandedTo(QSize(420, 0)));
  if (dialog.exec() != QDialog::Accepted)
    return {};
  return dialog.textValue().toStdString();
}

std::optional<Colour> QtDesk::chooseColour(Colour current)
{
  const QColor chosen = QColorDialog::getColor(fromColour(current), QApplication::activeWindow());
  if (!chosen.isValid())
    return {};
  return toColour(chosen);
}

std::optional<Font> QtDesk::chooseFont(const Font& current)
{
  QFont shownFont = QApplication::font();
  if (!current.name.empty())
    shownFont.setFamily(shown(current.name));
  shownFont.setPointSize(current.size);
  shownFont.setBold(current.bold);
  shownFont.setItalic(current.italic);
  shownFont.setStrikeOut(current.strikethrough);
  shownFont.setUnderline(current.underline);
  bool accepted = false;
  const QFont chosen = QFontDialog::getFont(&accepted, shownFont, QApplication::activeWindow());
  if (!accepted)
    return {};
  Font font = current; // the chooser has no colour
  font.name = chosen.family().toStdString();
  font.size = chosen.pointSize();
  font.bold = chosen.bold();
  font.italic = chosen.italic();
  font.strikethrough = chosen.strikeOut();
  font.underline = chosen.underline();
  return font;
}

std::optional<std::string> QtDesk::chooseFile(std::string_view filter)
{
  const QString file = QFileDialog::getOpenFileName(QApplication::activeWindow(), {}, {}, filterOf(filter));
  if (file.isEmpty())
    return {};
  return file.toStdString();
}

bool QtDesk::launch(std::string_view program, std::string_view arguments, std::string_view folder)
{
  return platform::startProgram(program, arguments, folder);
}

bool QtDesk::browse(std::string_view address)
{
  return platform::openInBrowser(address);
}

void QtDesk::breathe()
{
  if (m_breathing)
    return;
  m_breathing = true;
  qApp->installEventFilter(this);
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
  m_breathing = false;
}

/// While a long work runs only the windows that show its progress take what the user does: nothing is entered twice.
bool QtDesk::eventFilter(QObject* watched, QEvent* event)
{
  if (!isInput(event->type()))
    return false;
  const auto* const widget = qobject_cast<QWidget*>(watched);
  if (!widget)
    return !qobject_cast<QCoreApplication*>(watched); // a window hands it on to its widgets
  return !widget->window()->findChild<QProgressBar*>();
}

} // namespace tarvelin::ui
