#pragma once

#include "ui/link.h"

#include <map>
#include <memory>

class QLabel;
class QScrollBar;
class QWidget;

namespace tarvelin::ui
{

/// The bar of outside programs: icons side by side on a strip that the scroll bar moves behind its frame.
class ProgramBar : public QObject
{
public:
  /// Takes over the widgets of the bar in the main window.
  explicit ProgramBar(QWidget& window);
  ~ProgramBar() override;

  /// Icons may have come or gone: each that is there gets its widget. True when there were some.
  bool follow();

private:
  void layOut();
  bool eventFilter(QObject* watched, QEvent* event) override;

  QWidget* m_frame;
  QWidget* m_strip;
  QScrollBar* m_scroll;
  std::map<int, QLabel*> m_labels; ///< by number of the icon; one that went leaves its label to the next
  std::map<int, std::unique_ptr<Link>> m_icons;
};

} // namespace tarvelin::ui
