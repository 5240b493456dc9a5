#pragma once

#include "core/desk.h"

#include <lua.hpp>

namespace tarvelin::host
{

/// The desk of the script host: the functions of the table `on` stand for the user, the array `events` keeps what was
/// asked, shown and started.
class LuaDesk : public Desk
{
public:
  /// Opens `on` and `events`.
  explicit LuaDesk(lua_State* lua);

  void showModal(Form& form) override;
  Answer box(std::string_view text, Buttons buttons, Icon icon) override;
  std::optional<std::string> prompt(std::string_view text, std::string_view title, std::string_view suggested) override;
  std::optional<Colour> chooseColour(Colour current) override;
  std::optional<Font> chooseFont(const Font& current) override;
  std::optional<std::string> chooseFile(std::string_view filter) override;
  bool launch(std::string_view program, std::string_view arguments, std::string_view folder) override;
  bool browse(std::string_view address) override;
  void breathe() override {}

private:
  bool pushHandler(const char* name) const;
  bool pushModalHandler(const Form& form) const;
  void addEvent() const;

  lua_State* m_lua;
};

} // namespace tarvelin::host
