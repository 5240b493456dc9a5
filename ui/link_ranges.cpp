// Sliders, progress bars and tab strips.
#include "ui/links.h"

#include <QAbstractSlider>
#include <QProgressBar>
#include <QProxyStyle>
#include <QTabBar>
#include <QTabWidget>

namespace tarvelin::ui
{
namespace
{

class SliderLink : public Link
{
public:
  SliderLink(Slider& field, QAbstractSlider* widget) : Link(field, widget), m_slider(field), m_widget(widget)
  {
    connect(widget, &QAbstractSlider::valueChanged, this,
            [this](int value) { user([this, value] { m_slider.userScroll(value); }); });
    begin();
  }

private:
  void update(const FieldChange&) override
  {
    m_widget->setRange(m_slider.minimum(), m_slider.maximum());
    m_widget->setValue(m_slider.value());
  }

  Slider& m_slider;
  QAbstractSlider* m_widget;
};

class ProgressLink : public Link
{
public:
  ProgressLink(Progress& field, QProgressBar* bar) : Link(field, bar), m_progress(field), m_bar(bar) { begin(); }

private:
  void update(const FieldChange&) override
  {
    m_bar->setRange(m_progress.minimum(), m_progress.maximum());
    m_bar->setValue(m_progress.value());
  }

  Progress& m_progress;
  QProgressBar* m_bar;
};

/// The tabs of a long strip stand closer, so that all of them are seen.
class CloseTabs : public QProxyStyle
{
public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
  {
    return metric == PM_TabBarTabHSpace ? closeSpace : QProxyStyle::pixelMetric(metric, option, widget);
  }

private:
  static constexpr int closeSpace = 12;
};

constexpr int longStrip = 8; ///< tabs

class TabsLink : public Link
{
public:
  TabsLink(TabStrip& field, QTabWidget* tabs) : Link(field, tabs), m_strip(field), m_tabs(tabs)
  {
    if (tabs->count() >= longStrip)
      tabs->tabBar()->setStyle(&m_style);
    connect(tabs, &QTabWidget::currentChanged, this, [this](int tab) { user([this, tab] { m_strip.setTab(tab); }); });
    begin();
  }

private:
  void update(const FieldChange&) override
  {
    for (int i = 0; i < m_strip.count() && i < m_tabs->count(); ++i)
      m_tabs->setTabText(i, QString::fromStdString(m_strip.tabCaption(i)).trimmed());
    m_tabs->setCurrentIndex(m_strip.tab());
  }

  TabStrip& m_strip;
  QTabWidget* m_tabs;
  CloseTabs m_style;
};

} // namespace

std::unique_ptr<Link> linkSlider(Slider& field, QWidget* widget)
{
  if (auto* const slider = qobject_cast<QAbstractSlider*>(widget))
    return std::make_unique<SliderLink>(field, slider);
  return {};
}

std::unique_ptr<Link> linkProgress(Progress& field, QWidget* widget)
{
  if (auto* const bar = qobject_cast<QProgressBar*>(widget))
    return std::make_unique<ProgressLink>(field, bar);
  return {};
}

std::unique_ptr<Link> linkTabs(TabStrip& field, QWidget* widget)
{
  auto* const tabs = qobject_cast<QTabWidget*>(widget);
  if (tabs && tabs->count() == field.count())
    return std::make_unique<TabsLink>(field, tabs);
  return {};
}

} // namespace tarvelin::ui
