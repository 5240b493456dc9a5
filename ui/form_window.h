#pragma once

#include "core/forms/form.h"
#include "ui/link.h"

#include <QElapsedTimer>
#include <QObject>
#include <QWidget>
#include <memory>
#include <vector>

namespace tarvelin::ui
{

class ProgramBar;
class TitlePreview;

/// A form's window. It is made when the form is first shown.
class FormWindow : public QObject, public FormObserver
{
public:
  explicit FormWindow(Form& form);
  ~FormWindow() override;

  void formChanged(Form& form) override;
  void formRefreshed(Form& form) override;

  Form& form() const { return m_form; }

  /// The window, made when there is none yet; null for a form that has no look.
  QWidget* window();

  /// Shows the window and returns when the form is hidden.
  void exec();

private:
  void make();
  void followCaptions();
  void place();
  void paintNow();
  bool eventFilter(QObject* watched, QEvent* event) override;

  Form& m_form;
  std::unique_ptr<QWidget> m_window;
  std::vector<std::unique_ptr<Link>> m_links;
  std::unique_ptr<ProgramBar> m_bar;
  std::unique_ptr<TitlePreview> m_preview;
  QElapsedTimer m_painted; ///< since the window was painted at once; invalid when it was not since it was shown
  bool m_placed = false;
};

/// The windows of all forms, from the start to the end of the program.
class FormWindows
{
public:
  FormWindows();
  ~FormWindows();
  FormWindows(const FormWindows&) = delete;
  FormWindows& operator=(const FormWindows&) = delete;

  FormWindow& of(const Form& form) const;

private:
  std::vector<std::unique_ptr<FormWindow>> m_windows;
};

} // namespace tarvelin::ui
