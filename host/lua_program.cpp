#include "host/lua_program.h"

#include "app/assemble.h"
#include "core/exit.h"
#include "core/forms/frmload.h"
#include "core/startup.h"
#include "host/lua_values.h"
#include "host/script_error.h"
#include "platform/paths.h"

namespace tarvelin::host
{

namespace
{

bool started = false;

int start(lua_State* lua)
{
  const std::string commandLine = lua_isnoneornil(lua, 1) ? std::string() : toText(lua, 1);
  if (started && !programEnded())
    throw ScriptError("the program is running already");
  if (started)
    assembleProgram(); // another start in the same script begins like a new process
  started = true;
  userAction([&] { startProgram(commandLine); });
  return 0;
}

int quit(lua_State*)
{
  userAction([] { exitProgram(); });
  return 0;
}

int path(lua_State* lua)
{
  push(lua, platform::toProgram(toText(lua, 1)));
  return 1;
}

int native(lua_State* lua)
{
  push(lua, platform::toNative(toText(lua, 1)));
  return 1;
}

int log(lua_State* lua)
{
  push(lua, frmload.log.text());
  return 1;
}

} // namespace

void openProgram(lua_State* lua)
{
  lua_register(lua, "start", guarded<start>);
  lua_register(lua, "quit", guarded<quit>);
  lua_register(lua, "path", guarded<path>);
  lua_register(lua, "native", guarded<native>);
  lua_register(lua, "log", guarded<log>);
}

} // namespace tarvelin::host
