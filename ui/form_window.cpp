#include "ui/form_window.h"

#include "core/forms/all_forms.h"
#include "core/forms/frmdalsinast.h"
#include "core/forms/frmmain.h"
#include "ui/action.h"
#include "ui/binder.h"
#include "ui/default_button.h"
#include "ui/form_looks.h"
#include "ui/keys_and_names.h"
#include "ui/places.h"
#include "ui/program_bar.h"
#include "ui/title_preview.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <iterator>

namespace tarvelin::ui
{
namespace
{

// The main window's size in twips, 1440 to the inch.
constexpr int mainWidth = 10830;
constexpr int mainHeight = 8625;
constexpr int twipsPerInch = 1440;

constexpr int betweenPaints = 15; ///< milliseconds: a work of many small steps is not held up by the sight of it
constexpr int paintWait = 100;    ///< milliseconds that a new window may take to come to the screen

/// The main window, where it is on the screen.
QWidget* mainWindow()
{
  for (QWidget* const window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->objectName() == QString::fromStdString(frmmain.name()))
      return window;
  return nullptr;
}

} // namespace

FormWindow::FormWindow(Form& form) : m_form(form)
{
  form.observe(this);
}

FormWindow::~FormWindow()
{
  m_form.observe(nullptr);
}

QWidget* FormWindow::window()
{
  if (!m_window)
    make();
  return m_window.get();
}

void FormWindow::make()
{
  m_window = makeLook(m_form.name());
  if (!m_window)
    return;
  m_window->setWindowTitle(QString::fromStdString(m_form.caption()));
  m_window->installEventFilter(this);
  tameButtons(*m_window);
  m_links = bindForm(m_form, *m_window);
  std::ranges::move(bindPlaces(m_form, *m_window), std::back_inserter(m_links));
  if (&m_form == &frmmain)
  {
    m_window->setFixedSize(mainWidth * m_window->logicalDpiX() / twipsPerInch,
                           mainHeight * m_window->logicalDpiY() / twipsPerInch);
    m_bar = std::make_unique<ProgramBar>(*m_window);
  }
  if (&m_form == &frmdalsinast)
    m_preview = std::make_unique<TitlePreview>(*m_window);
  followCaptions();
}

/// Keys and names come from the captions, which another language changes.
void FormWindow::followCaptions()
{
  giveKeys(*m_window);
  giveNames(*m_window);
}

void FormWindow::formChanged(Form& form)
{
  if (!form.visible())
  {
    if (m_window)
      m_window->hide();
    return;
  }
  if (!window())
    return;
  const QString caption = QString::fromStdString(form.caption());
  const bool renamed = m_window->windowTitle() != caption;
  m_window->setWindowTitle(caption);
  if (!m_window->isVisible())
    followCaptions();
  const bool refilled = m_bar && m_bar->follow();
  if (form.modal()) // it is shown by exec()
    return;
  if (m_window->isVisible())
  {
    if (!renamed && !refilled && QApplication::activeWindow()) // shown once more: it takes the focus
    {
      m_window->raise();
      m_window->activateWindow();
    }
    return;
  }
  place();
  m_painted.invalidate();
  m_window->show();
}

void FormWindow::formRefreshed(Form&)
{
  if (m_window && m_window->isVisible() && (!m_painted.isValid() || m_painted.hasExpired(betweenPaints)))
    paintNow();
}

void FormWindow::exec()
{
  auto* const dialog = qobject_cast<QDialog*>(window());
  if (!dialog || !m_form.visible())
    return;
  QWidget* const asking = QApplication::activeWindow();
  dialog->hide(); // it may be on the screen already, without being modal
  dialog->setWindowTitle(QString::fromStdString(m_form.caption()));
  followCaptions();
  place();
  if (asking && asking != dialog) // it gets the keys back
    dialog->windowHandle()->setTransientParent(asking->windowHandle());
  dialog->exec();
}

/// Puts a window over the main window, in front of it.
void FormWindow::place()
{
  QWidget* const main = mainWindow();
  m_window->winId();
  if (main && main != m_window.get())
    m_window->windowHandle()->setTransientParent(main->windowHandle());
  if (m_placed)
    return;
  m_placed = true;
  m_window->ensurePolished();
  if (!m_window->testAttribute(Qt::WA_Resized))
    m_window->adjustSize();
  const QRect over = main && main != m_window.get() ? main->frameGeometry() : m_window->screen()->availableGeometry();
  const QRect screen = m_window->screen()->availableGeometry();
  QRect place = QRect(QPoint(), m_window->size());
  place.moveCenter(over.center());
  place.moveLeft(std::clamp(place.left(), screen.left(), std::max(screen.left(), screen.right() - place.width())));
  place.moveTop(std::clamp(place.top(), screen.top(), std::max(screen.top(), screen.bottom() - place.height())));
  m_window->move(place.topLeft());
}

/// Paints the window before the program goes on with its work; what the user does meanwhile waits.
void FormWindow::paintNow()
{
  const QWindow* const handle = m_window->windowHandle();
  QElapsedTimer waited;
  waited.start();
  do
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  while (handle && !handle->isExposed() && waited.elapsed() < paintWait);
  m_window->repaint();
  m_painted.start();
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_window.get())
    return false;
  if (event->type() == QEvent::WindowActivate)
    followCaptions();
  if (isEnter(*event) && m_window->focusWidget() && m_window->focusWidget()->property("keepsEnter").toBool())
    return true; // a name that is being typed does not lead to the next step
  const bool escape = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
                      qobject_cast<QDialog*>(m_window.get());
  if (event->type() != QEvent::Close && !escape)
    return false;
  event->setAccepted(escape);  // a closing window stays until its form is hidden
  if (!pressCancel(*m_window)) // what was chosen in a picker is chosen no more
    act([this] { m_form.closeByUser(); });
  return true;
}

FormWindows::FormWindows()
{
  for (Form* const form : allForms())
    m_windows.push_back(std::make_unique<FormWindow>(*form));
}

FormWindows::~FormWindows() = default;

FormWindow& FormWindows::of(const Form& form) const
{
  return **std::ranges::find_if(m_windows, [&form](const auto& window) { return &window->form() == &form; });
}

} // namespace tarvelin::ui
