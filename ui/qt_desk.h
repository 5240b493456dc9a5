#pragma once

#include "core/desk.h"

#include <QObject>

namespace tarvelin::ui
{

class FormWindows;

/// The desk of the window: the platform's own boxes and choosers.
class QtDesk : public QObject, public Desk
{
public:
  explicit QtDesk(FormWindows& windows) : m_windows(windows) {}

  void showModal(Form& form) override;
  Answer box(std::string_view text, Buttons buttons, Icon icon) override;
  std::optional<std::string> prompt(std::string_view text, std::string_view title, std::string_view suggested) override;
  std::optional<Colour> chooseColour(Colour current) override;
  std::optional<Font> chooseFont(const Font& current) override;
  std::optional<std::string> chooseFile(std::string_view filter) override;
  bool launch(std::string_view program, std::string_view arguments, std::string_view folder) override;
  bool browse(std::string_view address) override;
  void breathe() override;

private:
  bool eventFilter(QObject* watched, QEvent* event) override;

  FormWindows& m_windows;
  bool m_breathing = false;
};

} // namespace tarvelin::ui
