// tarvelin-script: the program without a window, driven by a Lua script.

#include "app/assemble.h"
#include "core/installation.h"
#include "core/program.h"
#include "host/lua_desk.h"
#include "host/lua_forms.h"
#include "host/lua_procs.h"
#include "host/lua_program.h"
#include "host/lua_shared.h"
#include "platform/files.h"
#include "platform/paths.h"

#include <cstdio>
#include <filesystem>
#include <lua.hpp>
#include <memory>
#include <string>
#include <string_view>

namespace
{

using namespace tarvelin;

constexpr int scriptFailed = 1;
constexpr int wrongCommandLine = 2;
constexpr int programFailed = 70;

struct CommandLine
{
  std::string home; ///< native; empty to find the program folder
  int script = 0;   ///< index of the script among the arguments
};

/// False for a wrong command line.
bool parse(int count, char** arguments, CommandLine& line)
{
  int i = 1;
  for (; i < count; ++i)
  {
    const std::string_view argument = arguments[i];
    if (argument == "--home")
    {
      if (++i >= count)
        return false;
      line.home = arguments[i];
      if (!platform::folderExists(platform::toProgram(line.home)))
        return false;
    }
    else if (argument.size() > 1 && argument[0] == '-')
      return false;
    else
      break;
  }
  line.script = i;
  return i < count;
}

void setArguments(lua_State* lua, int count, char** arguments, int script)
{
  lua_createtable(lua, count - script - 1, script + 1);
  for (int i = 0; i < count; ++i)
  {
    lua_pushstring(lua, arguments[i]);
    lua_rawseti(lua, -2, i - script);
  }
  lua_setglobal(lua, "arg");
}

bool uncaughtProgramFailure = false;

/// Adds the traceback to an error message.
int traceback(lua_State* lua)
{
  const char* message = lua_tostring(lua, 1);
  if (!message)
  {
    if (luaL_callmeta(lua, 1, "__tostring") != 0 && lua_type(lua, -1) == LUA_TSTRING)
      return 1;
    message = lua_pushfstring(lua, "(error object is a %s value)", luaL_typename(lua, 1));
  }
  uncaughtProgramFailure = host::isProcedureFailure(message);
  luaL_traceback(lua, lua, message, 1);
  return 1;
}

int run(lua_State* lua, int count, char** arguments, int script)
{
  lua_pushcfunction(lua, traceback);
  const char* const file = std::string_view(arguments[script]) == "-" ? nullptr : arguments[script];
  int status = luaL_loadfile(lua, file);
  if (status == LUA_OK)
  {
    for (int i = script + 1; i < count; ++i)
      lua_pushstring(lua, arguments[i]);
    status = lua_pcall(lua, count - script - 1, 0, 1);
  }
  if (status == LUA_OK)
    return 0;
  const char* const message = lua_tostring(lua, -1);
  std::fflush(stdout);
  std::fprintf(stderr, "%s\n", message ? message : "error without a message");
  return uncaughtProgramFailure ? programFailed : scriptFailed;
}

} // namespace

int main(int count, char** arguments)
{
  CommandLine line;
  if (!parse(count, arguments, line))
  {
    std::fputs("usage: tarvelin-script [--home DIR] SCRIPT.lua [ARGUMENT ...]\n", stderr);
    return wrongCommandLine;
  }
  setProgramFolder(line.home.empty() ? findProgramFolder()
                                     : platform::toProgram(std::filesystem::absolute(line.home).string()));
  assembleProgram();
  const std::unique_ptr<lua_State, decltype(&lua_close)> lua(luaL_newstate(), &lua_close);
  if (!lua)
    return scriptFailed;
  luaL_openlibs(lua.get());
  setArguments(lua.get(), count, arguments, line.script);
  host::openForms(lua.get());
  host::openShared(lua.get());
  host::openProcedures(lua.get());
  host::openProgram(lua.get());
  host::LuaDesk desk(lua.get());
  setDesk(&desk);
  const int status = run(lua.get(), count, arguments, line.script);
  setDesk(nullptr);
  return status;
}
