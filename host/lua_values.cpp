#include "host/lua_values.h"

#include "host/script_error.h"

namespace tarvelin::host
{

void push(lua_State* lua, std::string_view text)
{
  lua_pushlstring(lua, text.data(), text.size());
}

void push(lua_State* lua, const Font& font)
{
  lua_newtable(lua);
  setField(lua, "name", font.name);
  setField(lua, "size", static_cast<lua_Integer>(font.size));
  setField(lua, "bold", font.bold);
  setField(lua, "italic", font.italic);
  setField(lua, "strikethrough", font.strikethrough);
  setField(lua, "underline", font.underline);
  setField(lua, "color", static_cast<lua_Integer>(font.color));
}

std::string toText(lua_State* lua, int index)
{
  if (!lua_isstring(lua, index))
    throw ScriptError(std::string("string expected, got ") + luaL_typename(lua, index));
  lua_pushvalue(lua, index); // a number must stay one in its place
  std::size_t size = 0;
  const char* const text = lua_tolstring(lua, -1, &size);
  std::string result(text, size);
  lua_pop(lua, 1);
  return result;
}

lua_Integer toWhole(lua_State* lua, int index)
{
  int isWhole = 0;
  const lua_Integer number = lua_tointegerx(lua, index, &isWhole);
  if (!isWhole)
    throw ScriptError(std::string("whole number expected, got ") + luaL_typename(lua, index));
  return number;
}

double toNumber(lua_State* lua, int index)
{
  int isNumber = 0;
  const double number = lua_tonumberx(lua, index, &isNumber);
  if (!isNumber)
    throw ScriptError(std::string("number expected, got ") + luaL_typename(lua, index));
  return number;
}

bool toTruth(lua_State* lua, int index)
{
  if (lua_isboolean(lua, index))
    return lua_toboolean(lua, index) != 0;
  return toNumber(lua, index) != 0;
}

Font toFont(lua_State* lua, int index)
{
  if (!lua_istable(lua, index))
    throw ScriptError(std::string("font table expected, got ") + luaL_typename(lua, index));
  Font font;
  const auto field = [&](const char* key, auto use)
  {
    lua_getfield(lua, index, key);
    if (!lua_isnil(lua, -1))
      use(lua_gettop(lua));
    lua_pop(lua, 1);
  };
  field("name", [&](int at) { font.name = toText(lua, at); });
  field("size", [&](int at) { font.size = static_cast<int>(toWhole(lua, at)); });
  field("bold", [&](int at) { font.bold = toTruth(lua, at); });
  field("italic", [&](int at) { font.italic = toTruth(lua, at); });
  field("strikethrough", [&](int at) { font.strikethrough = toTruth(lua, at); });
  field("underline", [&](int at) { font.underline = toTruth(lua, at); });
  field("color", [&](int at) { font.color = static_cast<Colour>(toWhole(lua, at)); });
  return font;
}

void setField(lua_State* lua, const char* key, std::string_view text)
{
  push(lua, text);
  lua_setfield(lua, -2, key);
}

void setField(lua_State* lua, const char* key, lua_Integer number)
{
  lua_pushinteger(lua, number);
  lua_setfield(lua, -2, key);
}

void setField(lua_State* lua, const char* key, bool truth)
{
  lua_pushboolean(lua, truth ? 1 : 0);
  lua_setfield(lua, -2, key);
}

void call(lua_State* lua, int arguments, int results)
{
  if (lua_pcall(lua, arguments, results, 0) != LUA_OK)
    passOn(lua);
}

} // namespace tarvelin::host
