#include "ui/keys_and_names.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>

namespace tarvelin::ui
{
namespace
{

constexpr const char* givenText = "givenText"; // the text with the key that was given here
constexpr const char* givenName = "givenName";
constexpr const char* namedBy = "namedBy"; // in the look of a form: the label of a control that is not its buddy

constexpr const char* withoutKeys = "withoutKeys"; // in the look of a form: a page whose checks are a table

/// Caption of a label, a button or a menu's entry without the key that was given here.
QString captionOf(const QObject& object)
{
  QString text = object.property("text").toString();
  if (text == object.property(givenText).toString())
    text.remove('&');
  return text;
}

QChar keyOf(const QString& caption)
{
  const QKeySequence key = QKeySequence::mnemonic(caption);
  return key.isEmpty() ? QChar() : key.toString().back().toUpper();
}

/// Where the key stands in a caption: the first letter of a word, else any letter that is on every keyboard. -1 when
/// all of them are taken.
qsizetype keyPlace(const QString& caption, const QString& taken)
{
  const auto isFree = [&](qsizetype at)
  {
    const QChar letter = caption[at].toUpper();
    return letter >= u'A' && letter <= u'Z' && !taken.contains(letter);
  };
  for (qsizetype at = 0; at < caption.size(); ++at)
    if (isFree(at) && (at == 0 || !caption[at - 1].isLetter()))
      return at;
  for (qsizetype at = 0; at < caption.size(); ++at)
    if (isFree(at))
      return at;
  return -1;
}

/// Gives keys to objects that have a text; `taken` are those in use, and grows.
void giveKeysTo(const QObjectList& objects, QString& taken)
{
  for (const QObject* const object : objects)
    if (const QChar own = keyOf(captionOf(*object)); !own.isNull())
      taken += own;
  for (QObject* const object : objects)
  {
    QString caption = captionOf(*object);
    if (!keyOf(caption).isNull())
      continue;
    if (const qsizetype place = keyPlace(caption, taken); place >= 0)
    {
      taken += caption[place].toUpper();
      caption.insert(place, '&');
    }
    object->setProperty(givenText, caption);
    if (object->property("text").toString() != caption)
      object->setProperty("text", caption);
  }
}

void giveKeysToMenu(const QMenu& menu)
{
  QObjectList entries;
  for (QAction* const action : menu.actions())
    if (!action->isSeparator())
      entries += action;
  QString taken;
  giveKeysTo(entries, taken);
}

/// The page of a strip of tabs that holds a widget, or the window.
const QWidget* pageOf(const QWidget& widget)
{
  for (const QWidget* at = &widget; at; at = at->parentWidget())
    if (at->isWindow() ||
        (at->parentWidget() && at->parentWidget()->parentWidget() &&
         qobject_cast<const QTabWidget*>(at->parentWidget()->parentWidget()) &&
         qobject_cast<const QTabWidget*>(at->parentWidget()->parentWidget())->indexOf(const_cast<QWidget*>(at)) >= 0))
      return at;
  return nullptr;
}

/// The controls of a page, not those of the pages inside it: buttons first, they are what a key is best for.
QObjectList captionedOn(const QWidget& page)
{
  QObjectList buttons;
  QObjectList labels;
  QObjectList marks;
  for (QWidget* const widget : page.findChildren<QWidget*>())
  {
    if (pageOf(*widget) != &page)
      continue;
    const auto* const label = qobject_cast<const QLabel*>(widget);
    if (label && label->buddy())
      labels += widget;
    else if (qobject_cast<const QPushButton*>(widget))
      buttons += widget;
    else if (qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget))
      marks += widget;
  }
  return buttons + labels + (page.property(withoutKeys).toBool() ? QObjectList() : marks);
}

void giveKeysOn(const QWidget& page, QString taken)
{
  giveKeysTo(captionedOn(page), taken);
  for (const QTabWidget* const tabs : page.findChildren<QTabWidget*>())
    if (pageOf(*tabs) == &page)
      for (int i = 0; i < tabs->count(); ++i)
        giveKeysOn(*tabs->widget(i), taken);
}

QString plain(QString caption)
{
  caption.remove('&');
  caption = caption.trimmed();
  return caption.endsWith(':') ? caption.chopped(1) : caption;
}

bool hasWord(const QString& text)
{
  return std::ranges::any_of(text, [](QChar character) { return character.isLetterOrNumber(); });
}

/// What the user works with, not its inner parts.
bool isControl(const QWidget& widget)
{
  const QWidget* const above = widget.parentWidget();
  if (!above || qobject_cast<const QComboBox*>(above) || qobject_cast<const QAbstractScrollArea*>(above) ||
      qobject_cast<const QTabBar*>(above))
    return false;
  return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget) ||
         qobject_cast<const QTextEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QAbstractSlider*>(&widget) ||
         qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QTabWidget*>(&widget) ||
         (qobject_cast<const QLabel*>(&widget) && widget.focusPolicy() != Qt::NoFocus);
}

/// The name of what is around a widget.
QString nameAround(const QWidget& widget)
{
  for (const QWidget* at = widget.parentWidget(); at; at = at->parentWidget())
  {
    if (const auto* const frame = qobject_cast<const QGroupBox*>(at); frame && hasWord(frame->title()))
      return plain(frame->title());
    if (at->isWindow())
      return plain(at->windowTitle());
    if (at != pageOf(*at))
      continue;
    const auto* const tabs = qobject_cast<const QTabWidget*>(at->parentWidget()->parentWidget());
    return plain(tabs->tabText(tabs->indexOf(const_cast<QWidget*>(at))));
  }
  return {};
}

/// The labels of a window that say something, by what they are buddies of and by their own names.
class Labels
{
public:
  explicit Labels(const QWidget& window)
  {
    for (const QLabel* const label : window.findChildren<QLabel*>())
    {
      if (!hasWord(label->text()))
        continue;
      if (label->buddy())
        m_byBuddy.insert(label->buddy(), label);
      m_byName.insert(label->objectName(), label);
    }
  }

  const QLabel* of(const QWidget& widget) const
  {
    const QLabel* const label = m_byBuddy.value(&widget);
    const QString name = widget.property(namedBy).toString();
    return label || name.isEmpty() ? label : m_byName.value(name);
  }

private:
  QHash<const QWidget*, const QLabel*> m_byBuddy;
  QHash<QString, const QLabel*> m_byName;
};

QString nameFor(const Labels& labels, const QWidget& widget)
{
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget); button && hasWord(button->text()))
    return plain(button->text());
  if (const QLabel* const label = labels.of(widget))
    return plain(label->text());
  if (hasWord(widget.toolTip()))
    return plain(widget.toolTip());
  const QString symbol = widget.property("text").toString();
  return (nameAround(widget) + ' ' + (qobject_cast<const QAbstractButton*>(&widget) ? symbol : QString())).trimmed();
}

} // namespace

void giveKeys(QWidget& window)
{
  QString taken;
  const auto* const main = qobject_cast<const QMainWindow*>(&window);
  if (main && main->menuBar())
  {
    QObjectList menus;
    for (QAction* const action : main->menuBar()->actions())
      menus += action;
    giveKeysTo(menus, taken);
    for (const QMenu* const menu : main->menuBar()->findChildren<QMenu*>())
      giveKeysToMenu(*menu);
  }
  giveKeysOn(window, taken);
}

void giveNames(QWidget& window)
{
  const Labels labels(window);
  for (QWidget* const widget : window.findChildren<QWidget*>())
  {
    const bool own =
        !widget->accessibleName().isEmpty() && widget->accessibleName() != widget->property(givenName).toString();
    if (own || !isControl(*widget))
      continue;
    const QString name = nameFor(labels, *widget);
    widget->setProperty(givenName, name);
    widget->setAccessibleName(name);
  }
}

} // namespace tarvelin::ui
