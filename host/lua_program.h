#pragma once

#include <lua.hpp>

namespace tarvelin::host
{

/// Opens the functions that start and end the program, turn paths and give the run log.
void openProgram(lua_State* lua);

} // namespace tarvelin::host
