#pragma once

#include <lua.hpp>

namespace tarvelin::host
{

/// Opens the table `shared`: the shared values by name, records and arrays inside of them step by step.
void openShared(lua_State* lua);

} // namespace tarvelin::host
