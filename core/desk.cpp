#include "core/desk.h"

#include "platform/processes.h"

namespace tarvelin
{

namespace
{

class EmptyDesk : public Desk
{
public:
  void showModal(Form&) override {}
  Answer box(std::string_view, Buttons buttons, Icon) override
  {
    return buttons == Buttons::ok ? Answer::ok : Answer::no;
  }
  std::optional<std::string> prompt(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<Colour> chooseColour(Colour) override { return {}; }
  std::optional<Font> chooseFont(const Font&) override { return {}; }
  std::optional<std::string> chooseFile(std::string_view) override { return {}; }
  bool launch(std::string_view program, std::string_view arguments, std::string_view folder) override
  {
    return platform::startProgram(program, arguments, folder);
  }
  bool browse(std::string_view address) override { return platform::openInBrowser(address); }
  void breathe() override {}
};

EmptyDesk emptyDesk;
Desk* current = &emptyDesk;

} // namespace

Desk& desk()
{
  return *current;
}

void setDesk(Desk* desk)
{
  current = desk ? desk : &emptyDesk;
}

void tell(std::string_view text, Icon icon)
{
  desk().box(text, Buttons::ok, icon);
}

bool askYesNo(std::string_view text)
{
  return desk().box(text, Buttons::yesNo, Icon::question) == Answer::yes;
}

} // namespace tarvelin
