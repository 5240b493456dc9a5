#include "host/script_error.h"

#include <cstdio>
#include <cstdlib>

namespace tarvelin::host
{

namespace
{

constexpr const char* raisedKey = "tarvelin.raised";

} // namespace

void passOn(lua_State* lua)
{
  lua_setfield(lua, LUA_REGISTRYINDEX, raisedKey);
  throw LuaRaised{};
}

void pushCurrentError(lua_State* lua)
{
  try
  {
    throw;
  }
  catch (const LuaRaised&)
  {
    lua_getfield(lua, LUA_REGISTRYINDEX, raisedKey);
  }
  catch (const ScriptError& error)
  {
    luaL_where(lua, 1);
    lua_pushstring(lua, error.what());
    lua_concat(lua, 2);
  }
  catch (const Failure& failure)
  {
    lua_pushstring(lua, runTimeError(failure).c_str());
  }
}

std::string runTimeError(const Failure& failure)
{
  return "run-time error " + std::to_string(failure.number) + ": " + failure.description;
}

void endByFailure(const Failure& failure)
{
  std::fflush(stdout);
  std::fprintf(stderr, "%s\n", runTimeError(failure).c_str());
  std::exit(70);
}

} // namespace tarvelin::host
