// Every form: each field has its widget of the right kind, each named widget its field, and what changes on one side
// arrives on the other.

#include "core/forms/all_forms.h"
#include "core/forms/kinds.h"
#include "ui/binder.h"
#include "ui/form_looks.h"

#include <QtTest>
#include <QtWidgets>
#include <map>

using namespace tarvelin;

namespace
{

/// The widget classes that may show a kind.
const std::map<Kind, QStringList> classes = {
    {Kind::text, {"QLineEdit", "QPlainTextEdit"}},
    {Kind::richtext, {"QPlainTextEdit"}},
    {Kind::label, {"QLabel"}},
    {Kind::command, {"QPushButton"}},
    {Kind::check, {"QCheckBox"}},
    {Kind::option, {"QRadioButton"}},
    {Kind::list, {"QListWidget"}},
    {Kind::combo, {"QComboBox"}},
    {Kind::tree, {"QTreeWidget"}},
    {Kind::picture, {"QLabel"}},
    {Kind::slider, {"QSlider", "QScrollBar"}},
    {Kind::filelist, {"QListWidget"}},
    {Kind::folderlist, {"QTreeWidget"}},
    {Kind::drivelist, {"QComboBox"}},
    {Kind::tabstrip, {"QTabWidget"}},
    {Kind::progress, {"QProgressBar"}},
    {Kind::browser, {"QTextBrowser"}},
    {Kind::menu, {"QAction", "QMenu"}},
    {Kind::group, {"QGroupBox"}},
};

/// Forms that are never on the screen.
bool neverShown(const Form& form)
{
  return form.name() == "tmpfrm";
}

/// True for the parts of a window that stand for no field.
bool isFurniture(const QString& name)
{
  for (const char* const prefix : {"layout_", "page_", "spacer_", "box_", "qt_", "_q_"})
    if (name.startsWith(prefix))
      return true;
  return name.isEmpty();
}

/// True when a widget is inner works of another one: the viewport of a list, the editor of a combo.
bool isInside(const QObject& object)
{
  for (const QObject* above = object.parent(); above; above = above->parent())
    if (qobject_cast<const QAbstractScrollArea*>(above) || qobject_cast<const QComboBox*>(above) ||
        qobject_cast<const QTabBar*>(above))
      return true;
  return false;
}

Field* fieldOf(const Form& form, const QString& name)
{
  if (Field* const field = form.find(name.toStdString()))
    return field;
  const qsizetype mark = name.lastIndexOf('_');
  bool number = false;
  const int index = name.mid(mark + 1).toInt(&number);
  return mark > 0 && number ? form.find(name.left(mark).toStdString(), index) : nullptr;
}

/// A form's window, with its fields bound.
struct Bound
{
  explicit Bound(Form& form) : window(ui::makeLook(form.name())), links(ui::bindForm(form, *window)) {}

  template <class T> T* find(const Field& field) const { return window->findChild<T*>(ui::widgetName(field)); }

  std::unique_ptr<QWidget> window;
  std::vector<std::unique_ptr<ui::Link>> links;
};

void fillRows(Rows& rows)
{
  rows.clear();
  for (const char* const text : {"alpha", "beta", "gamma"})
    rows.add(text);
}

} // namespace

class FormsTest : public QObject
{
  Q_OBJECT

private slots:
  void init() { renewForms(); }

  void fieldsAndWidgets_data();
  void fieldsAndWidgets();
  void changesArrive_data() { fieldsAndWidgets_data(); }
  void changesArrive();
  void everyControlIsReachedByKeyboard_data() { fieldsAndWidgets_data(); }
  void everyControlIsReachedByKeyboard();

private:
  void checkText(Text& field, const Bound& bound);
  void checkCaptioned(Field& field, const Bound& bound);
  void checkCheck(Check& field, const Bound& bound);
  void checkOption(Option& field, const Bound& bound);
  void checkCommand(Command& field, const Bound& bound);
  void checkList(List& field, const Bound& bound);
  void checkCombo(Combo& field, const Bound& bound);
  void checkTree(Tree& field, const Bound& bound);
  void checkSlider(Slider& field, const Bound& bound);
  void checkProgress(Progress& field, const Bound& bound);
  void checkTabs(TabStrip& field, const Bound& bound);
  void checkMenu(Menu& field, const Bound& bound);
  void checkStates(Field& field, const Bound& bound);
};

void FormsTest::fieldsAndWidgets_data()
{
  QTest::addColumn<int>("number");
  for (std::size_t i = 0; i < allForms().size(); ++i)
    if (!neverShown(*allForms()[i]))
      QTest::newRow(allForms()[i]->name().c_str()) << static_cast<int>(i);
}

void FormsTest::fieldsAndWidgets()
{
  QFETCH(int, number);
  Form& form = *allForms()[static_cast<std::size_t>(number)];
  const std::unique_ptr<QWidget> window = ui::makeLook(form.name());
  QVERIFY2(window, "the form has no look");
  QCOMPARE(window->objectName(), QString::fromStdString(form.name()));

  QStringList faults;
  for (const Field* const field : form.fields())
  {
    if (field->kind() == Kind::dialog)
      continue;
    const QString name = ui::widgetName(*field);
    const QObject* const widget = window->findChild<QObject*>(name);
    if (!widget)
      faults += "no widget for " + name;
    else if (!classes.at(field->kind()).contains(widget->metaObject()->className()))
      faults += name + " is a " + kindName(field->kind()) + " and has a " + widget->metaObject()->className();
    else if (window->findChildren<QObject*>(name).size() > 1)
      faults += "more than one widget for " + name;
  }
  for (const QObject* const object : window->findChildren<QObject*>())
    if ((object->isWidgetType() || qobject_cast<const QAction*>(object)) && !isFurniture(object->objectName()) &&
        !isInside(*object) && !fieldOf(form, object->objectName()))
      faults += "no field for " + object->objectName();
  QVERIFY2(faults.isEmpty(), qPrintable(faults.join("; ")));

  std::vector<std::string> unbound;
  const auto links = ui::bindForm(form, *window, &unbound);
  QVERIFY2(unbound.empty(), unbound.empty() ? "" : unbound.front().c_str());
}

void FormsTest::changesArrive()
{
  QFETCH(int, number);
  Form& form = *allForms()[static_cast<std::size_t>(number)];
  const Bound bound(form);
  for (Field* const field : form.fields())
  {
    if (field->kind() == Kind::dialog)
      continue;
    switch (field->kind())
    {
    case Kind::text:
    case Kind::richtext: checkText(static_cast<Text&>(*field), bound); break;
    case Kind::label:
    case Kind::group: checkCaptioned(*field, bound); break;
    case Kind::check: checkCheck(static_cast<Check&>(*field), bound); break;
    case Kind::option: checkOption(static_cast<Option&>(*field), bound); break;
    case Kind::command: checkCommand(static_cast<Command&>(*field), bound); break;
    case Kind::list: checkList(static_cast<List&>(*field), bound); break;
    case Kind::combo: checkCombo(static_cast<Combo&>(*field), bound); break;
    case Kind::tree: checkTree(static_cast<Tree&>(*field), bound); break;
    case Kind::slider: checkSlider(static_cast<Slider&>(*field), bound); break;
    case Kind::progress: checkProgress(static_cast<Progress&>(*field), bound); break;
    case Kind::tabstrip: checkTabs(static_cast<TabStrip&>(*field), bound); break;
    case Kind::menu: checkMenu(static_cast<Menu&>(*field), bound); continue;
    default: break;
    }
    checkStates(*field, bound);
    QVERIFY2(!QTest::currentTestFailed(), field->fullName().c_str());
  }
}

void FormsTest::checkText(Text& field, const Bound& bound)
{
  auto* const line = bound.find<QLineEdit>(field);
  auto* const plain = bound.find<QPlainTextEdit>(field);
  const auto shown = [=] { return line ? line->text() : plain->toPlainText(); };
  field.set("Žluťoučký kůň");
  QCOMPARE(shown(), QString("Žluťoučký kůň"));
  int changes = 0;
  field.onChange = [&changes] { ++changes; };
  if (line)
    line->insert("¡");
  else
    plain->textCursor().insertText("¡");
  QCOMPARE(field.text(), shown().toStdString());
  QVERIFY(field.text().find("¡") != std::string::npos);
  QCOMPARE(changes, 1);
  field.setCaption("x");
  QCOMPARE(shown(), QString("x"));
  QCOMPARE(changes, 2);
  field.onChange = {};
}

void FormsTest::checkCaptioned(Field& field, const Bound& bound)
{
  field.setCaption("Ahoj & nazdar");
  const QWidget* const widget = bound.find<QWidget>(field);
  QCOMPARE(widget->property(field.kind() == Kind::group ? "title" : "text").toString(), QString("Ahoj & nazdar"));
}

void FormsTest::checkCheck(Check& field, const Bound& bound)
{
  auto* const box = bound.find<QCheckBox>(field);
  field.setCaption("9K32Launcher");
  QCOMPARE(box->text(), QString("9K32Launcher"));
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  field.set(true);
  QVERIFY(box->isChecked());
  box->toggle();
  QCOMPARE(field.value(), 0);
  QVERIFY(clicks >= 1); // a check that stood already was not clicked by set()
  const int before = clicks;
  box->toggle();
  QCOMPARE(clicks, before + 1);
  QCOMPARE(field.value(), 1);
  field.onClick = {};
}

void FormsTest::checkOption(Option& field, const Bound& bound)
{
  auto* const button = bound.find<QRadioButton>(field);
  field.set(false);
  QVERIFY(!button->isChecked());
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  button->setChecked(true);
  QVERIFY(field.value());
  QCOMPARE(clicks, 1);
  field.set(false);
  QVERIFY(!button->isChecked());
  QCOMPARE(clicks, 1);
  field.onClick = {};
}

void FormsTest::checkCommand(Command& field, const Bound& bound)
{
  auto* const button = bound.find<QPushButton>(field);
  field.enable(true);
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  field.setCaption("Uložit");
  QCOMPARE(button->text(), QString("Uložit"));
  for (QWidget* above = button; above; above = above->parentWidget())
    above->setEnabled(true);
  button->click();
  QCOMPARE(clicks, 1);
  field.onClick = {};
}

void FormsTest::checkList(List& field, const Bound& bound)
{
  auto* const list = bound.find<QListWidget>(field);
  fillRows(field);
  QCOMPARE(list->count(), 3);
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  field.select(1);
  QCOMPARE(list->currentRow(), 1);
  QCOMPARE(clicks, 1);
  emit list->itemClicked(list->item(2));
  QCOMPARE(field.index(), 2);
  QCOMPARE(clicks, 2);
  if (field.checkMarks())
  {
    list->item(0)->setCheckState(Qt::Checked);
    QVERIFY(field.marked(0));
    QCOMPARE(field.index(), 0);
    QCOMPARE(clicks, 3);
  }
  field.remove(0);
  QCOMPARE(list->count(), 2);
  QCOMPARE(list->item(0)->text(), QString("beta"));
  field.onClick = {};
  field.clear();
  QCOMPARE(list->count(), 0);
}

void FormsTest::checkCombo(Combo& field, const Bound& bound)
{
  auto* const box = bound.find<QComboBox>(field);
  fillRows(field);
  QCOMPARE(box->count(), 3);
  QCOMPARE(box->currentIndex(), -1);
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  field.select(2);
  QCOMPARE(box->currentText(), QString("gamma"));
  emit box->activated(0);
  QCOMPARE(field.index(), 0);
  QCOMPARE(box->currentIndex(), 0);
  QCOMPARE(clicks, 2);
  field.onClick = {};
  field.clear();
  QCOMPARE(box->count(), 0);
}

void FormsTest::checkTree(Tree& field, const Bound& bound)
{
  auto* const tree = bound.find<QTreeWidget>(field);
  field.clear();
  field.add("", "PART1", "First", 1);
  field.add("PART1", "PART1MISSION1", "Intro", 2);
  QCoreApplication::processEvents();
  QCOMPARE(tree->topLevelItemCount(), 1);
  QCOMPARE(tree->topLevelItem(0)->child(0)->text(0), QString("Intro"));
  QVERIFY(!tree->topLevelItem(0)->icon(0).isNull());
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  emit tree->itemClicked(tree->topLevelItem(0)->child(0), 0);
  QVERIFY(field.selected());
  QCOMPARE(field.selected()->key, std::string("PART1MISSION1"));
  QCOMPARE(clicks, 1);
  QVERIFY(tree->topLevelItem(0)->child(0)->isSelected());
  field.onClick = {};
}

void FormsTest::checkSlider(Slider& field, const Bound& bound)
{
  auto* const slider = bound.find<QAbstractSlider>(field);
  field.setRange(0, 50);
  QCOMPARE(slider->maximum(), 50);
  int scrolls = 0;
  int changes = 0;
  field.onScroll = [&scrolls] { ++scrolls; };
  field.onChange = [&changes] { ++changes; };
  slider->setValue(20);
  QCOMPARE(field.value(), 20);
  QCOMPARE(scrolls, 1);
  QCOMPARE(changes, 1);
  field.set(7);
  QCOMPARE(slider->value(), 7);
  QCOMPARE(scrolls, 1);
  field.onScroll = {};
  field.onChange = {};
}

void FormsTest::checkProgress(Progress& field, const Bound& bound)
{
  const auto* const bar = bound.find<QProgressBar>(field);
  field.setRange(0, 12);
  field.set(5);
  QCOMPARE(bar->maximum(), 12);
  QCOMPARE(bar->value(), 5);
}

void FormsTest::checkTabs(TabStrip& field, const Bound& bound)
{
  auto* const tabs = bound.find<QTabWidget>(field);
  QCOMPARE(tabs->count(), field.count());
  field.setTabCaption(1, " Waffen ");
  QCOMPARE(tabs->tabText(1), QString("Waffen"));
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  tabs->setCurrentIndex(1);
  QCOMPARE(field.tab(), 1);
  QCOMPARE(clicks, 1);
  field.setTab(0);
  QCOMPARE(tabs->currentIndex(), 0);
  QCOMPARE(clicks, 2);
  field.onClick = {};
}

void FormsTest::checkMenu(Menu& field, const Bound& bound)
{
  auto* const menu = bound.find<QMenu>(field);
  QAction* const action = menu ? menu->menuAction() : bound.find<QAction>(field);
  if (field.caption() == "-")
  {
    QVERIFY(action->isSeparator());
    return;
  }
  field.setCaption("Datei");
  QCOMPARE(action->text(), QString("Datei"));
  field.enable(false);
  QVERIFY(!action->isEnabled());
  field.enable(true);
  int clicks = 0;
  field.onClick = [&clicks] { ++clicks; };
  action->trigger();
  QCOMPARE(clicks, 1);
  field.onClick = {};
}

void FormsTest::checkStates(Field& field, const Bound& bound)
{
  const QWidget* const widget = bound.find<QWidget>(field);
  for (const bool on : {false, true})
  {
    field.enable(on);
    QCOMPARE(widget->isEnabledTo(widget->parentWidget()), on);
    field.show(on);
    QCOMPARE(!widget->isHidden(), on);
  }
}

void FormsTest::everyControlIsReachedByKeyboard()
{
  QFETCH(int, number);
  Form& form = *allForms()[static_cast<std::size_t>(number)];
  const Bound bound(form);
  for (const Field* const field : form.fields())
  {
    if (field->kind() == Kind::label || field->kind() == Kind::group || field->kind() == Kind::progress ||
        field->kind() == Kind::picture || field->kind() == Kind::menu || field->kind() == Kind::dialog)
      continue;
    const QWidget* const widget = bound.find<QWidget>(*field);
    QVERIFY2((widget->focusPolicy() & Qt::TabFocus) || qobject_cast<const QScrollBar*>(widget),
             field->fullName().c_str());
  }
}

QTEST_MAIN(FormsTest)
#include "forms_test.moc"
