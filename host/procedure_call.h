#pragma once

#include "core/forms/kinds.h"
#include "host/lua_forms.h"
#include "host/lua_values.h"
#include "host/script_error.h"

#include <concepts>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace tarvelin::host
{

/// Holds one argument of a procedure between Lua and the call.
template <class T> struct Argument;

template <> struct Argument<std::string>
{
  std::string value;
  Argument(lua_State* lua, int index) : value(toText(lua, index)) {}
  const std::string& get() const { return value; }
};

template <class T>
requires std::integral<T> &&(!std::same_as<T, bool>)struct Argument<T>
{
  T value;
  Argument(lua_State* lua, int index)
      : value(static_cast<T>(lua_isboolean(lua, index) ? (toTruth(lua, index) ? -1 : 0) : toWhole(lua, index)))
  {
  }
  T get() const { return value; }
};

template <> struct Argument<bool>
{
  bool value;
  Argument(lua_State* lua, int index) : value(toTruth(lua, index)) {}
  bool get() const { return value; }
};

template <std::floating_point T> struct Argument<T>
{
  T value;
  Argument(lua_State* lua, int index) : value(static_cast<T>(toNumber(lua, index))) {}
  T get() const { return value; }
};

template <std::derived_from<Field> T> struct Argument<T>
{
  T* value;
  Argument(lua_State* lua, int index) : value(dynamic_cast<T*>(&toField(lua, index)))
  {
    if (!value)
      throw ScriptError("argument " + std::to_string(index) + " is a field of another kind");
  }
  T& get() const { return *value; }
};

template <class T>
using ArgumentOf =
    Argument<std::conditional_t<std::same_as<std::decay_t<T>, std::string_view>, std::string, std::decay_t<T>>>;

inline void pushResult(lua_State* lua, std::string_view value)
{
  push(lua, value);
}

inline void pushResult(lua_State* lua, bool value)
{
  lua_pushboolean(lua, value ? 1 : 0);
}

template <std::integral T> void pushResult(lua_State* lua, T value)
{
  lua_pushinteger(lua, static_cast<lua_Integer>(value));
}

template <std::floating_point T> void pushResult(lua_State* lua, T value)
{
  lua_pushnumber(lua, static_cast<lua_Number>(value));
}

template <class Result, class... Arguments, std::size_t... I>
int callWith(lua_State* lua, Result (*procedure)(Arguments...), std::index_sequence<I...>)
{
  // braces: the arguments are taken from left to right
  const std::tuple<ArgumentOf<Arguments>...> arguments{ArgumentOf<Arguments>(lua, static_cast<int>(I) + 1)...};
  if constexpr (std::is_void_v<Result>)
  {
    procedure(std::get<I>(arguments).get()...);
    return 0;
  }
  else
  {
    pushResult(lua, procedure(std::get<I>(arguments).get()...));
    return 1;
  }
}

template <class Result, class... Arguments> int callProcedure(lua_State* lua, Result (*procedure)(Arguments...))
{
  return callWith(lua, procedure, std::index_sequence_for<Arguments...>{});
}

/// A procedure of the program as Lua calls it: strings, numbers and fields go in, its result comes back.
template <auto procedure> int called(lua_State* lua)
{
  return callProcedure(lua, procedure);
}

} // namespace tarvelin::host
