#pragma once

#include "core/forms/font.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvelin
{

struct Form;

enum class Buttons
{
  ok,
  yesNo,
};

enum class Icon
{
  none,
  information,
  question,
  critical,
};

enum class Answer
{
  ok,
  yes,
  no,
};

/// Where the program meets its user: what it asks, shows and starts. The window and the script host each have one.
class Desk
{
public:
  virtual ~Desk() = default;

  /// Shows a form and returns when it is hidden or closed.
  virtual void showModal(Form& form) = 0;

  virtual Answer box(std::string_view text, Buttons buttons, Icon icon) = 0;

  /// A text from the user; nothing when cancelled.
  virtual std::optional<std::string> prompt(std::string_view text, std::string_view title,
                                            std::string_view suggested) = 0;

  /// The platform's choosers; nothing when cancelled. A file comes as a path of the system.
  virtual std::optional<Colour> chooseColour(Colour current) = 0;
  virtual std::optional<Font> chooseFont(const Font& current) = 0;
  virtual std::optional<std::string> chooseFile(std::string_view filter) = 0;

  /// Starts an outside program, without waiting; paths in the program's form. False when it cannot be started.
  virtual bool launch(std::string_view program, std::string_view arguments, std::string_view folder) = 0;

  /// Opens an address in the user's browser. False when there is none.
  virtual bool browse(std::string_view address) = 0;

  /// Lets the interface run during a long work.
  virtual void breathe() = 0;
};

/// The desk in use. Without one nobody answers: modal forms close at once, boxes say ok or no, prompts are cancelled.
Desk& desk();
void setDesk(Desk* desk);

/// A box with an OK button.
void tell(std::string_view text, Icon icon = Icon::information);

/// A box with Yes and No.
bool askYesNo(std::string_view text);

} // namespace tarvelin
