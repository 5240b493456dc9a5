#pragma once

#include <lua.hpp>
#include <string_view>

namespace tarvelin::host
{

/// Opens the table `proc`: the procedures of the program by name.
void openProcedures(lua_State* lua);

/// True when `message` is the failure of a procedure that a script called and did not catch.
bool isProcedureFailure(std::string_view message);

} // namespace tarvelin::host
