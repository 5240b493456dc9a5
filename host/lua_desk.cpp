#include "host/lua_desk.h"

#include "core/strings.h"
#include "host/lua_forms.h"
#include "host/lua_values.h"
#include "host/script_error.h"
#include "platform/processes.h"

namespace tarvelin::host
{

namespace
{

const char* iconName(Icon icon)
{
  switch (icon)
  {
  case Icon::information: return "information";
  case Icon::question: return "question";
  case Icon::critical: return "critical";
  case Icon::none: break;
  }
  return "";
}

/// Begins an event: a table on top of the stack.
void beginEvent(lua_State* lua, const char* kind)
{
  lua_newtable(lua);
  setField(lua, "kind", std::string_view(kind));
}

/// Restores the height of the stack, also when an error of a script passes through.
class StackGuard
{
public:
  explicit StackGuard(lua_State* lua) : m_lua(lua), m_top(lua_gettop(lua)) { luaL_checkstack(lua, 20, nullptr); }
  ~StackGuard() { lua_settop(m_lua, m_top); }
  StackGuard(const StackGuard&) = delete;
  StackGuard& operator=(const StackGuard&) = delete;

private:
  lua_State* m_lua;
  int m_top;
};

} // namespace

LuaDesk::LuaDesk(lua_State* lua) : m_lua(lua)
{
  lua_newtable(lua);
  lua_newtable(lua);
  lua_setfield(lua, -2, "modal");
  lua_setglobal(lua, "on");
  lua_newtable(lua);
  lua_setglobal(lua, "events");
}

/// Pushes on[name]; false, and nothing pushed, when it is no function.
bool LuaDesk::pushHandler(const char* name) const
{
  if (lua_getglobal(m_lua, "on") == LUA_TTABLE && lua_getfield(m_lua, -1, name) == LUA_TFUNCTION)
  {
    lua_remove(m_lua, -2);
    return true;
  }
  return false;
}

/// Pushes on.modal[form], the name found ignoring case.
bool LuaDesk::pushModalHandler(const Form& form) const
{
  if (lua_getglobal(m_lua, "on") != LUA_TTABLE || lua_getfield(m_lua, -1, "modal") != LUA_TTABLE)
    return false;
  if (lua_getfield(m_lua, -1, form.name().c_str()) == LUA_TFUNCTION)
    return true;
  lua_pop(m_lua, 1);
  lua_pushnil(m_lua);
  while (lua_next(m_lua, -2) != 0)
  {
    if (lua_type(m_lua, -2) == LUA_TSTRING && lua_isfunction(m_lua, -1) &&
        sameAscii(lua_tostring(m_lua, -2), form.name()))
      return true;
    lua_pop(m_lua, 1);
  }
  return false;
}

/// Adds the table on top of the stack to `events`; it stays on top.
void LuaDesk::addEvent() const
{
  if (lua_getglobal(m_lua, "events") == LUA_TTABLE)
  {
    lua_pushvalue(m_lua, -2);
    lua_rawseti(m_lua, -2, static_cast<lua_Integer>(lua_rawlen(m_lua, -2)) + 1);
  }
  lua_pop(m_lua, 1);
}

void LuaDesk::showModal(Form& form)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "modal");
  pushForm(m_lua, form);
  lua_setfield(m_lua, -2, "form");
  addEvent();
  if (!pushModalHandler(form))
    return;
  pushForm(m_lua, form);
  call(m_lua, 1, 0);
}

Answer LuaDesk::box(std::string_view text, Buttons buttons, Icon icon)
{
  const StackGuard guard(m_lua);
  const std::string_view buttonNames = buttons == Buttons::ok ? "ok" : "yesno";
  beginEvent(m_lua, "box");
  const int event = lua_gettop(m_lua);
  setField(m_lua, "text", text);
  setField(m_lua, "buttons", buttonNames);
  setField(m_lua, "icon", std::string_view(iconName(icon)));
  addEvent();
  std::string given;
  if (pushHandler("box"))
  {
    push(m_lua, text);
    push(m_lua, buttonNames);
    push(m_lua, iconName(icon));
    call(m_lua, 3, 1);
    if (lua_type(m_lua, -1) == LUA_TSTRING)
      given = toText(m_lua, -1);
  }
  const Answer answer = buttons == Buttons::ok ? Answer::ok : given == "yes" ? Answer::yes : Answer::no;
  lua_settop(m_lua, event);
  setField(m_lua, "answer", std::string_view(answer == Answer::ok ? "ok" : answer == Answer::yes ? "yes" : "no"));
  return answer;
}

std::optional<std::string> LuaDesk::prompt(std::string_view text, std::string_view title, std::string_view suggested)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "prompt");
  const int event = lua_gettop(m_lua);
  setField(m_lua, "text", text);
  setField(m_lua, "title", title);
  setField(m_lua, "default", suggested);
  addEvent();
  if (!pushHandler("prompt"))
    return {};
  push(m_lua, text);
  push(m_lua, title);
  push(m_lua, suggested);
  call(m_lua, 3, 1);
  if (lua_isnil(m_lua, -1))
    return {};
  std::string answer = toText(m_lua, -1);
  lua_setfield(m_lua, event, "answer");
  return answer;
}

std::optional<Colour> LuaDesk::chooseColour(Colour current)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "color");
  const int event = lua_gettop(m_lua);
  setField(m_lua, "current", static_cast<lua_Integer>(current));
  addEvent();
  if (!pushHandler("color"))
    return {};
  lua_pushinteger(m_lua, static_cast<lua_Integer>(current));
  call(m_lua, 1, 1);
  if (lua_isnil(m_lua, -1))
    return {};
  const auto answer = static_cast<Colour>(toWhole(m_lua, -1));
  lua_setfield(m_lua, event, "answer");
  return answer;
}

std::optional<Font> LuaDesk::chooseFont(const Font& current)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "font");
  const int event = lua_gettop(m_lua);
  push(m_lua, current);
  lua_setfield(m_lua, event, "current");
  addEvent();
  if (!pushHandler("font"))
    return {};
  push(m_lua, current);
  call(m_lua, 1, 1);
  if (lua_isnil(m_lua, -1))
    return {};
  Font answer = toFont(m_lua, lua_gettop(m_lua));
  lua_setfield(m_lua, event, "answer");
  return answer;
}

std::optional<std::string> LuaDesk::chooseFile(std::string_view filter)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "file");
  const int event = lua_gettop(m_lua);
  setField(m_lua, "filter", filter);
  addEvent();
  if (!pushHandler("file"))
    return {};
  push(m_lua, filter);
  call(m_lua, 1, 1);
  if (lua_isnil(m_lua, -1))
    return {};
  std::string answer = toText(m_lua, -1);
  lua_setfield(m_lua, event, "answer");
  return answer;
}

bool LuaDesk::launch(std::string_view program, std::string_view arguments, std::string_view folder)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "launch");
  const int event = lua_gettop(m_lua);
  setField(m_lua, "program", program);
  setField(m_lua, "arguments", arguments);
  setField(m_lua, "folder", folder);
  addEvent();
  bool started = false;
  if (pushHandler("launch"))
  {
    push(m_lua, program);
    push(m_lua, arguments);
    push(m_lua, folder);
    call(m_lua, 3, 1);
    started = lua_toboolean(m_lua, -1) != 0;
  }
  else
    started = platform::startProgram(program, arguments, folder);
  lua_settop(m_lua, event);
  setField(m_lua, "answer", started);
  return started;
}

bool LuaDesk::browse(std::string_view address)
{
  const StackGuard guard(m_lua);
  beginEvent(m_lua, "browse");
  setField(m_lua, "address", address);
  addEvent();
  if (!pushHandler("browse"))
    return platform::openInBrowser(address);
  push(m_lua, address);
  call(m_lua, 1, 0);
  return true;
}

} // namespace tarvelin::host
