// The captions of all shipped languages in the windows: each has room for its whole text, and each window for all of
// them.

#include "app/assemble.h"
#include "core/forms/all_forms.h"
#include "core/forms/form.h"
#include "core/language.h"
#include "core/program.h"
#include "platform/paths.h"
#include "ui/binder.h"
#include "ui/form_looks.h"
#include "ui/link.h"

#include <QtTest>
#include <QtWidgets>

using namespace tarvelin;

namespace
{

/// What a small screen leaves for a window.
constexpr QSize screen(1024, 720);

/// The width that a widget needs for its caption; 0 for one without a caption of its own.
int neededWidth(const QWidget& widget)
{
  if (const auto* const label = qobject_cast<const QLabel*>(&widget))
    return label->text().isEmpty() || label->wordWrap() ? 0 : label->sizeHint().width();
  if (const auto* const button = qobject_cast<const QPushButton*>(&widget))
  {
    constexpr int edges = 8;
    return edges + button->fontMetrics().horizontalAdvance(button->text()) +
           (button->icon().isNull() ? 0 : button->iconSize().width());
  }
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
    return button->text().isEmpty() ? 0 : button->minimumSizeHint().width();
  if (const auto* const box = qobject_cast<const QGroupBox*>(&widget))
    return box->fontMetrics().horizontalAdvance(box->title());
  return 0;
}

/// What of a window's captions does not fit, as "NAME: TEXT".
QStringList cutCaptions(QWidget& window)
{
  QStringList cut;
  const QList<QWidget*> widgets = window.findChildren<QWidget*>();
  for (const QWidget* const widget : widgets)
  {
    if (!widget->isVisible())
      continue;
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const bool isLow = label && label->wordWrap() && label->height() < label->heightForWidth(label->width());
    if (isLow || widget->width() < neededWidth(*widget))
      cut += widget->objectName() + ": " + widget->property("text").toString() + widget->property("title").toString();
  }
  return cut;
}

/// Every tab of the outermost strip of tabs, and below each the tabs of the strip inside it.
QStringList cutOnTabs(QWidget& window, QTabWidget* strip)
{
  QCoreApplication::processEvents();
  if (!strip)
    return cutCaptions(window);
  QStringList cut;
  for (int tab = 0; tab < strip->count(); ++tab)
  {
    strip->setCurrentIndex(tab);
    cut += cutOnTabs(window, strip->currentWidget()->findChild<QTabWidget*>());
  }
  return cut;
}

} // namespace

class CaptionsTest : public QObject
{
  Q_OBJECT

private slots:
  void fit_data();
  void fit();
};

void CaptionsTest::fit_data()
{
  QTest::addColumn<QString>("pack");
  const QDir packs(QCoreApplication::applicationDirPath() + "/Bfdata/languages/Tv");
  const QFileInfoList files = packs.entryInfoList({"*.lng"});
  QCOMPARE(files.size(), 6);
  for (const QFileInfo& file : files)
    QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
}

void CaptionsTest::fit()
{
  QFETCH(QString, pack);
  assembleProgram();
  NactiJazyk(platform::toProgram(pack.toStdString()));
  QStringList cut;
  for (Form* const form : allForms())
  {
    const std::unique_ptr<QWidget> window = ui::makeLook(form->name());
    if (!window)
      continue;
    const std::vector<std::unique_ptr<ui::Link>> links = ui::bindForm(*form, *window);
    window->show();
    const QSize least = window->minimumSizeHint();
    if (least.width() > screen.width() || least.height() > screen.height())
      cut += QString("%1 needs %2 by %3").arg(form->name().c_str()).arg(least.width()).arg(least.height());
    for (const QString& caption : cutOnTabs(*window, window->findChild<QTabWidget*>()))
      cut += QString::fromStdString(form->name()) + '.' + caption;
  }
  QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

QTEST_MAIN(CaptionsTest)
#include "captions_test.moc"
