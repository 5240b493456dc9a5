#pragma once

#include "core/forms/font.h"

#include <lua.hpp>
#include <string>
#include <string_view>

// Values between Lua and C++. What a script gives wrong throws a ScriptError.
namespace tarvelin::host
{

void push(lua_State* lua, std::string_view text);
void push(lua_State* lua, const Font& font);

/// The value at `index` as a string; numbers count.
std::string toText(lua_State* lua, int index);

/// The value at `index` as a whole number.
lua_Integer toWhole(lua_State* lua, int index);

double toNumber(lua_State* lua, int index);

/// true, and every number but 0.
bool toTruth(lua_State* lua, int index);

Font toFont(lua_State* lua, int index);

/// Sets field `key` of the table on top.
void setField(lua_State* lua, const char* key, std::string_view text);
void setField(lua_State* lua, const char* key, lua_Integer number);
void setField(lua_State* lua, const char* key, bool truth);

/// Calls the function below its `arguments` on the stack; an error of it is passed on.
void call(lua_State* lua, int arguments, int results);

} // namespace tarvelin::host
