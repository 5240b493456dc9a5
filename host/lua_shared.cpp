#include "host/lua_shared.h"

#include "core/shared.h"
#include "host/lua_values.h"
#include "host/script_error.h"

#include <concepts>
#include <new>
#include <utility>
#include <variant>
#include <vector>

namespace tarvelin::host
{

namespace
{

constexpr const char* referenceType = "tarvelin.shared";

/// The way to a shared value: names of members and indexes of elements. It is walked anew at each access, so nothing
/// dangles when an array is dimensioned again.
using Step = std::variant<std::string, lua_Integer>;
using Path = std::vector<Step>;

void pushReference(lua_State* lua, Path path)
{
  void* const memory = lua_newuserdatauv(lua, sizeof(Path), 0);
  new (memory) Path(std::move(path));
  luaL_setmetatable(lua, referenceType);
}

Path& referenceAt(lua_State* lua, int index)
{
  return *static_cast<Path*>(luaL_checkudata(lua, index, referenceType));
}

std::string written(const Path& path)
{
  std::string text = "shared";
  for (const Step& step : path)
    if (const auto* const name = std::get_if<std::string>(&step))
      text += "." + *name;
    else
      text += "[" + std::to_string(std::get<lua_Integer>(step)) + "]";
  return text;
}

template <class T>
concept Leaf = std::same_as<T, std::string> || std::integral<T> || std::floating_point<T>;

template <class T> struct IsArray : std::false_type
{
};
template <class T> struct IsArray<Array<T>> : std::true_type
{
};

void pushLeaf(lua_State* lua, const std::string& value)
{
  push(lua, value);
}

void pushLeaf(lua_State* lua, std::integral auto value)
{
  lua_pushinteger(lua, static_cast<lua_Integer>(value));
}

void pushLeaf(lua_State* lua, std::floating_point auto value)
{
  lua_pushnumber(lua, static_cast<lua_Number>(value));
}

void writeLeaf(lua_State* lua, std::string& value)
{
  value = toText(lua, 3);
}

template <std::integral T> void writeLeaf(lua_State* lua, T& value)
{
  const lua_Integer number = lua_isboolean(lua, 3) ? (lua_toboolean(lua, 3) != 0 ? -1 : 0) : toWhole(lua, 3);
  if (!std::in_range<T>(number))
    throw Failure(Fault::overflow);
  value = static_cast<T>(number);
}

void writeLeaf(lua_State* lua, std::floating_point auto& value)
{
  value = static_cast<std::decay_t<decltype(value)>>(toNumber(lua, 3));
}

/// Walks from `value` along the path from step `depth` on and does `reach` with what stands at its end.
template <class T, class Reach> void walk(T& value, const Path& path, std::size_t depth, const Reach& reach)
{
  if (depth == path.size())
    return reach(value);
  if constexpr (IsArray<T>::value)
  {
    const auto* const index = std::get_if<lua_Integer>(&path[depth]);
    if (!index)
      throw ScriptError("no value " + written(path));
    if (!std::in_range<int>(*index))
      throw Failure(Fault::subscript);
    walk(value.at(static_cast<int>(*index)), path, depth + 1, reach);
  }
  else if constexpr (Leaf<T>)
    throw ScriptError("no value " + written(path));
  else
  {
    const auto* const name = std::get_if<std::string>(&path[depth]);
    bool found = false;
    T::members(value,
               [&](std::string_view member, auto& inside)
               {
                 if (found || !name || member != *name)
                   return;
                 found = true;
                 walk(inside, path, depth + 1, reach);
               });
    if (!found)
      throw ScriptError("no value " + written(path));
  }
}

Path extended(lua_State* lua)
{
  Path path = referenceAt(lua, 1);
  if (lua_type(lua, 2) == LUA_TNUMBER)
    path.emplace_back(toWhole(lua, 2));
  else
    path.emplace_back(toText(lua, 2));
  return path;
}

/// `.bound` of an array; false when the path leads to something else.
bool pushBound(lua_State* lua, const Path& path)
{
  const auto* const last = std::get_if<std::string>(&path.back());
  if (!last || *last != "bound" || path.size() < 2)
    return false;
  bool pushed = false;
  walk(shared, Path(path.begin(), path.end() - 1), 0,
       [&](auto& value)
       {
         if constexpr (IsArray<std::decay_t<decltype(value)>>::value)
         {
           lua_pushinteger(lua, value.bound());
           pushed = true;
         }
       });
  return pushed;
}

int sharedIndex(lua_State* lua)
{
  const Path path = extended(lua);
  if (pushBound(lua, path))
    return 1;
  walk(shared, path, 0,
       [&](auto& value)
       {
         if constexpr (Leaf<std::decay_t<decltype(value)>>)
           pushLeaf(lua, value);
         else
           pushReference(lua, path);
       });
  return 1;
}

int sharedNewIndex(lua_State* lua)
{
  const Path path = extended(lua);
  walk(shared, path, 0,
       [&](auto& value)
       {
         if constexpr (Leaf<std::decay_t<decltype(value)>>)
           writeLeaf(lua, value);
         else
           throw ScriptError(written(path) + " cannot be written as a whole");
       });
  return 0;
}

int sharedToString(lua_State* lua)
{
  push(lua, written(referenceAt(lua, 1)));
  return 1;
}

int sharedCollected(lua_State* lua)
{
  referenceAt(lua, 1).~Path();
  return 0;
}

} // namespace

void openShared(lua_State* lua)
{
  constexpr luaL_Reg functions[] = {{"__index", guarded<sharedIndex>},
                                    {"__newindex", guarded<sharedNewIndex>},
                                    {"__tostring", guarded<sharedToString>},
                                    {"__gc", sharedCollected},
                                    {nullptr, nullptr}};
  luaL_newmetatable(lua, referenceType);
  luaL_setfuncs(lua, functions, 0);
  lua_pop(lua, 1);
  pushReference(lua, {});
  lua_setglobal(lua, "shared");
}

} // namespace tarvelin::host
