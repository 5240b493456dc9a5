// The windows by the keyboard alone: Tab reaches what takes input, in the order of reading; each key of Alt is there
// once; a screen reader finds a name for every control.

#include "core/forms/all_forms.h"
#include "core/forms/frmcamp1.h"
#include "core/forms/frmmain.h"
#include "core/forms/frmnajit.h"
#include "core/language.h"
#include "platform/paths.h"
#include "ui/binder.h"
#include "ui/form_window.h"

#include <QtTest>
#include <QtWidgets>

using namespace tarvelin;

namespace
{

QString packFile(const QString& pack)
{
  return QCoreApplication::applicationDirPath() + "/Bfdata/languages/Tv/" + pack + ".lng";
}

void loadPack(const QString& pack)
{
  QVERIFY2(QFile::exists(packFile(pack)), qPrintable(packFile(pack)));
  NactiJazyk(platform::toProgram(packFile(pack).toStdString()));
}

/// False for two controls on different pages of one strip of tabs.
bool seenTogether(const QWidget* one, const QWidget* other)
{
  while (!one->isAncestorOf(other))
    one = one->parentWidget();
  return !qobject_cast<const QStackedWidget*>(one);
}

QString keyOf(const QString& text)
{
  return QKeySequence::mnemonic(text).toString();
}

/// True when a key could be made of a caption's letters.
bool hasFreeLetter(const QString& caption, const QStringList& keys)
{
  return std::ranges::any_of(caption.toUpper(), [&keys](QChar letter)
                             { return letter >= u'A' && letter <= u'Z' && !keys.contains("Alt+" + QString(letter)); });
}

/// The names of controls that have one key, where both can be seen.
QStringList sharedKeys(const QWidget& window)
{
  QStringList faults;
  QList<QPair<QString, const QWidget*>> keys;
  for (const QMenuBar* const bar : window.findChildren<QMenuBar*>())
    for (const QAction* const action : bar->actions())
      keys.append({keyOf(action->text()), bar});
  for (const QWidget* const widget : window.findChildren<QWidget*>())
  {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    if ((label && label->buddy()) || qobject_cast<const QAbstractButton*>(widget))
      keys.append({keyOf(widget->property("text").toString()), widget});
  }
  for (qsizetype i = 0; i < keys.size(); ++i)
    for (qsizetype j = i + 1; j < keys.size(); ++j)
      if (!keys[i].first.isEmpty() && keys[i].first == keys[j].first && seenTogether(keys[i].second, keys[j].second))
        faults += keys[i].first + ": " + keys[i].second->objectName() + " and " + keys[j].second->objectName();
  for (const QMenu* const menu : window.findChildren<QMenu*>())
  {
    QStringList inMenu;
    for (const QAction* const action : menu->actions())
      if (const QString key = keyOf(action->text()); !key.isEmpty())
      {
        if (inMenu.contains(key))
          faults += menu->objectName() + " has twice " + key;
        inMenu += key;
      }
    for (const QAction* const action : menu->actions())
      if (keyOf(action->text()).isEmpty() && !action->isSeparator() && hasFreeLetter(action->text(), inMenu))
        faults += menu->objectName() + " has no key for " + action->text();
  }
  return faults;
}

/// A field takes what its user types or chooses.
bool isInput(const Field& field)
{
  switch (field.kind())
  {
  case Kind::text:
  case Kind::richtext:
  case Kind::command:
  case Kind::check:
  case Kind::option:
  case Kind::list:
  case Kind::combo:
  case Kind::tree:
  case Kind::filelist:
  case Kind::folderlist:
  case Kind::drivelist:
  case Kind::slider:
  case Kind::browser: return true;
  default: return false;
  }
}

bool takesInput(const Field& field, const QWidget& widget)
{
  return isInput(field) && widget.isVisible() && widget.isEnabled() && !qobject_cast<const QScrollBar*>(&widget);
}

/// Presses Tab until the focus is where it was before, and tells the way.
QList<QWidget*> walk(QWidget& window)
{
  QList<QWidget*> way;
  QWidget* at = QApplication::focusWidget();
  while (at && !way.contains(at))
  {
    way += at;
    QTest::keyClick(at, Qt::Key_Tab);
    QWidget* next = QApplication::focusWidget();
    if (next == at && qobject_cast<QPlainTextEdit*>(at)) // an editor of scripts keeps Tab for itself
    {
      do
        next = next->nextInFocusChain();
      while (!(next->focusPolicy() & Qt::TabFocus) || !next->isVisible() || !next->isEnabled());
      next->setFocus();
    }
    at = next && window.isAncestorOf(next) ? next : nullptr;
  }
  return way;
}

/// The frame, page or window in which a control stands.
const QWidget* groupOf(const QWidget& widget)
{
  const QWidget* at = widget.parentWidget();
  while (at->parentWidget() && !at->isWindow() && !qobject_cast<const QGroupBox*>(at) &&
         !qobject_cast<const QStackedWidget*>(at->parentWidget()))
    at = at->parentWidget();
  return at;
}

/// True when `next` is not ahead of `before` in the order of reading: on its left in the same row, or above it.
bool followsInReading(const QWidget& window, const QWidget& before, const QWidget& next)
{
  const QRect one(before.mapTo(&window, QPoint()), before.size());
  const QRect two(next.mapTo(&window, QPoint()), next.size());
  const bool behind = two.left() > one.left(); // also the next column, which begins at its top
  const bool below = two.top() >= one.center().y();
  return behind || below;
}

} // namespace

class KeyboardTest : public QObject
{
  Q_OBJECT

private slots:
  void init() { renewForms(); }

  void tabReachesAll_data();
  void tabReachesAll();
  void keysAreThereOnce_data();
  void keysAreThereOnce();
  void keysFollowTheLanguage();
  void namesAreTheCaptions();

private:
  void walkPages(Form& form, QWidget& window, QTabWidget* strip, QSet<const QWidget*>& reached, QStringList& faults);
};

void KeyboardTest::tabReachesAll_data()
{
  QTest::addColumn<int>("number");
  for (std::size_t i = 0; i < allForms().size(); ++i)
    if (allForms()[i]->name() != "tmpfrm" && allForms()[i]->name() != "frmstart")
      QTest::newRow(allForms()[i]->name().c_str()) << static_cast<int>(i);
}

/// Walks a window on every page of its strips of tabs.
void KeyboardTest::walkPages(Form& form, QWidget& window, QTabWidget* strip, QSet<const QWidget*>& reached,
                             QStringList& faults)
{
  if (strip)
  {
    for (int tab = 0; tab < strip->count(); ++tab)
    {
      strip->setCurrentIndex(tab);
      walkPages(form, window, strip->currentWidget()->findChild<QTabWidget*>(), reached, faults);
    }
    return;
  }
  QCoreApplication::processEvents();
  QWidget* first = window.nextInFocusChain();
  while (first != &window && (!(first->focusPolicy() & Qt::TabFocus) || !first->isVisible() || !first->isEnabled()))
    first = first->nextInFocusChain();
  first->setFocus();
  const QList<QWidget*> way = walk(window);
  for (const QWidget* const widget : way)
  {
    reached.insert(widget);
    for (const QWidget* at = widget; at; at = at->parentWidget()) // the editor inside a combo
      reached.insert(at);
  }
  for (qsizetype i = 1; i < way.size(); ++i)
    if (groupOf(*way[i - 1]) == groupOf(*way[i]) && !followsInReading(window, *way[i - 1], *way[i]))
      faults += way[i - 1]->objectName() + " is followed by " + way[i]->objectName();
  for (const Field* const field : form.fields())
  {
    const auto* const widget = window.findChild<QWidget*>(ui::widgetName(*field));
    if (!widget || !takesInput(*field, *widget) || reached.contains(widget))
      continue;
    const auto isBrother = [widget](const QWidget* other)
    { return qobject_cast<const QRadioButton*>(other) && other->parentWidget() == widget->parentWidget(); };
    const bool byArrows = qobject_cast<const QRadioButton*>(widget) && std::ranges::any_of(reached, isBrother);
    if (!byArrows)
      faults += "Tab does not reach " + widget->objectName();
  }
}

void KeyboardTest::tabReachesAll()
{
  QFETCH(int, number);
  Form& form = *allForms()[static_cast<std::size_t>(number)];
  ui::FormWindows windows;
  for (Field* const field : form.fields())
  {
    field->enable(true);
    field->show(true);
  }
  form.show();
  QWidget& window = *windows.of(form).window();
  window.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&window));
  QSet<const QWidget*> reached;
  QStringList faults;
  walkPages(form, window, window.findChild<QTabWidget*>(), reached, faults);
  faults.removeDuplicates();
  QVERIFY2(faults.isEmpty(), qPrintable(faults.join("; ")));
}

void KeyboardTest::keysAreThereOnce_data()
{
  QTest::addColumn<QString>("pack");
  for (const char* const pack : {"Czech", "English", "German", "French", "Spanish", "Italian"})
    QTest::newRow(pack) << QString(pack);
}

void KeyboardTest::keysAreThereOnce()
{
  QFETCH(QString, pack);
  loadPack(pack);
  const ui::FormWindows windows;
  for (const Form* const form : allForms())
    if (const QWidget* const window = windows.of(*form).window())
    {
      const QStringList faults = sharedKeys(*window);
      QVERIFY2(faults.isEmpty(), qPrintable(QString::fromStdString(form->name()) + ": " + faults.join("; ")));
    }
}

void KeyboardTest::keysFollowTheLanguage()
{
  loadPack("English");
  ui::FormWindows windows;
  frmnajit.show();
  const QWidget* const window = windows.of(frmnajit).window();
  const auto* const button = window->findChild<QPushButton*>("cmdnajdi");
  QVERIFY(!keyOf(button->text()).isEmpty());
  QString english = button->text();
  QCOMPARE(english.remove('&'), QString::fromStdString(frmnajit.cmdnajdi.caption()));
  frmnajit.cmdnajdi.setCaption("Čti");
  frmnajit.cmddalsi.setCaption("&Weiter");
  frmnajit.hide();
  frmnajit.show();
  QCOMPARE(button->text(), QString("Č&ti"));
  QCOMPARE(window->findChild<QPushButton*>("cmddalsi")->text(), QString("&Weiter"));
  QCOMPARE(frmnajit.cmdnajdi.caption(), std::string("Čti")); // the field knows nothing of it
  QVERIFY(sharedKeys(*window).isEmpty());
}

void KeyboardTest::namesAreTheCaptions()
{
  loadPack("English");
  ui::FormWindows windows;
  for (const Form* const form : allForms())
  {
    QWidget* const window = windows.of(*form).window();
    if (!window)
      continue;
    for (const Field* const field : form->fields())
    {
      const auto* const widget = window->findChild<QWidget*>(ui::widgetName(*field));
      if (!widget || !isInput(*field))
        continue;
      const QString name = widget->accessibleName();
      QVERIFY2(std::ranges::any_of(name, [](QChar character) { return character.isLetter(); }),
               qPrintable(QString::fromStdString(field->fullName()) + ": " + name));
    }
  }
  const QWidget* const main = windows.of(frmmain).window();
  QCOMPARE(main->findChild<QWidget*>("txtJmenoMise")->accessibleName(), QString("Mission name"));
  QCOMPARE(main->findChild<QWidget*>("txtBriefink")->accessibleName(), QString("Briefing"));
  QCOMPARE(main->findChild<QWidget*>("cmdnext")->accessibleName(), QString("Markers >"));
  QCOMPARE(main->findChild<QWidget*>("cmdvytvor")->accessibleName(), QString("Create"));
}

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
