#pragma once

#include "platform/failure.h"

#include <stdexcept>
#include <string>

struct lua_State;

namespace tarvelin::host
{

/// A mistake of the script: becomes a Lua error.
struct ScriptError : std::runtime_error
{
  using std::runtime_error::runtime_error;
};

/// An error that a Lua function raised while the program was calling it; its value lies in the registry. It passes
/// through the program to the script that called the program.
struct LuaRaised
{
};

/// Keeps the error value on top of the stack and throws LuaRaised.
[[noreturn]] void passOn(lua_State* lua);

/// Puts the error of the exception in flight on the stack; to be called in a catch block.
void pushCurrentError(lua_State* lua);

/// "run-time error N: DESCRIPTION".
std::string runTimeError(const Failure& failure);

/// A failure that the program does not trap: says so on standard error and ends the process with status 70.
[[noreturn]] void endByFailure(const Failure& failure);

/// Runs what the user does; a failure that leaves the program's handlers ends the process.
template <class Action> void userAction(Action&& action)
{
  try
  {
    action();
  }
  catch (const Failure& failure)
  {
    endByFailure(failure);
  }
}

/// A C++ function as Lua calls it: its exceptions become Lua errors, after all its objects are gone.
template <int (*function)(lua_State*)> int guarded(lua_State* lua);

} // namespace tarvelin::host

#include <lua.hpp>

template <int (*function)(lua_State*)> int tarvelin::host::guarded(lua_State* lua)
{
  try
  {
    return function(lua);
  }
  catch (const LuaRaised&)
  {
    pushCurrentError(lua);
  }
  catch (const ScriptError&)
  {
    pushCurrentError(lua);
  }
  catch (const Failure&)
  {
    pushCurrentError(lua);
  }
  return lua_error(lua);
}
