#pragma once

#include "core/forms/field.h"

#include <lua.hpp>

namespace tarvelin::host
{

/// Pushes the member of a field whose name or row number stands at stack index 2: a state, or a function that acts as
/// the user does. Gives the number of results.
int getMember(lua_State* lua, Field& field);

/// Writes the member named at stack index 2 with the value at index 3, as the user does.
void setMember(lua_State* lua, Field& field);

/// Rows of a list or combo, nodes of a tree, tabs of a tab strip.
lua_Integer fieldCount(const Field& field);

} // namespace tarvelin::host
