#pragma once

#include "core/forms/form.h"

#include <lua.hpp>

namespace tarvelin::host
{

/// Makes each form a global of its own name, found ignoring case, as long as the program runs.
void openForms(lua_State* lua);

void pushForm(lua_State* lua, Form& form);
void pushField(lua_State* lua, Field& field);

/// The field that stands at `index` of the stack. Throws a ScriptError when there is none.
Field& toField(lua_State* lua, int index);

/// The form that stands at `index` of the stack.
Form& toForm(lua_State* lua, int index);

} // namespace tarvelin::host
