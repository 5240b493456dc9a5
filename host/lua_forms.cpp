#include "host/lua_forms.h"

#include "core/exit.h"
#include "core/forms/all_forms.h"
#include "host/lua_fields.h"
#include "host/lua_values.h"
#include "host/script_error.h"

#include <algorithm>
#include <new>

namespace tarvelin::host
{

namespace
{

constexpr const char* formType = "tarvelin.form";
constexpr const char* fieldType = "tarvelin.field";
constexpr const char* arrayType = "tarvelin.array";

// What a script holds of the program: nothing that could be left dangling when an element of an array goes.
struct FormHandle
{
  Form* form;
};

struct FieldHandle
{
  Form* form;
  Field* field;
};

struct ArrayHandle
{
  Form* form;
  char name[64];
};

template <class Handle> Handle& newHandle(lua_State* lua, const char* type)
{
  void* const memory = lua_newuserdatauv(lua, sizeof(Handle), 0);
  luaL_setmetatable(lua, type);
  return *new (memory) Handle{};
}

template <class Handle> Handle* handleAt(lua_State* lua, int index, const char* type)
{
  return static_cast<Handle*>(luaL_testudata(lua, index, type));
}

Form& living(Form* form)
{
  if (programEnded())
    throw ScriptError("no form " + form->name());
  return *form;
}

void pushFormValue(lua_State* lua, const FormValueEntry& entry)
{
  if (const auto* const text = std::get_if<std::string*>(&entry.value))
    push(lua, **text);
  else if (const auto* const number = std::get_if<std::int16_t*>(&entry.value))
    lua_pushinteger(lua, **number);
  else if (const auto* const wide = std::get_if<std::int32_t*>(&entry.value))
    lua_pushinteger(lua, **wide);
  else
    lua_pushboolean(lua, *std::get<bool*>(entry.value) ? 1 : 0);
}

int formFields(lua_State* lua)
{
  Form& form = toForm(lua, 1);
  lua_newtable(lua);
  lua_Integer n = 0;
  for (const Field* const field : form.fields())
  {
    push(lua, field->fullName());
    lua_rawseti(lua, -2, ++n);
  }
  return 1;
}

int formClose(lua_State* lua)
{
  Form& form = toForm(lua, 1);
  userAction([&] { form.closeByUser(); });
  return 0;
}

int formIndex(lua_State* lua)
{
  Form& form = toForm(lua, 1);
  const std::string key = toText(lua, 2);
  if (key == "caption")
    push(lua, form.caption());
  else if (key == "visible")
    lua_pushboolean(lua, form.visible() ? 1 : 0);
  else if (key == "modal")
    lua_pushboolean(lua, form.modal() ? 1 : 0);
  else if (key == "name")
    push(lua, form.name());
  else if (key == "fields")
    lua_pushcfunction(lua, guarded<formFields>);
  else if (key == "close")
    lua_pushcfunction(lua, guarded<formClose>);
  else if (Field* const field = form.find(key))
    pushField(lua, *field);
  else if (form.hasArray(key))
  {
    ArrayHandle& array = newHandle<ArrayHandle>(lua, arrayType);
    array.form = &form;
    key.copy(array.name, sizeof array.name - 1);
  }
  else if (const FormValueEntry* const value = form.findValue(key))
    pushFormValue(lua, *value);
  else
    throw ScriptError("no field " + form.name() + "." + key);
  return 1;
}

int formNewIndex(lua_State* lua)
{
  Form& form = toForm(lua, 1);
  throw ScriptError(form.name() + "." + toText(lua, 2) + " cannot be written");
}

int formToString(lua_State* lua)
{
  push(lua, toForm(lua, 1).name());
  return 1;
}

int arrayIndex(lua_State* lua)
{
  const ArrayHandle& array = *handleAt<ArrayHandle>(lua, 1, arrayType);
  Form& form = living(array.form);
  const lua_Integer index = toWhole(lua, 2);
  Field* const field = index >= 0 && index <= 32767 ? form.find(array.name, static_cast<int>(index)) : nullptr;
  if (!field)
    throw ScriptError("no field " + form.name() + "." + array.name + "(" + std::to_string(index) + ")");
  pushField(lua, *field);
  return 1;
}

int fieldIndex(lua_State* lua)
{
  return getMember(lua, toField(lua, 1));
}

int fieldNewIndex(lua_State* lua)
{
  setMember(lua, toField(lua, 1));
  return 0;
}

int fieldLength(lua_State* lua)
{
  lua_pushinteger(lua, fieldCount(toField(lua, 1)));
  return 1;
}

int fieldToString(lua_State* lua)
{
  const Field& field = toField(lua, 1);
  push(lua, field.form().name() + "." + field.fullName());
  return 1;
}

int fieldEquals(lua_State* lua)
{
  const auto* const a = handleAt<FieldHandle>(lua, 1, fieldType);
  const auto* const b = handleAt<FieldHandle>(lua, 2, fieldType);
  lua_pushboolean(lua, a && b && a->field == b->field ? 1 : 0);
  return 1;
}

int formEquals(lua_State* lua)
{
  const auto* const a = handleAt<FormHandle>(lua, 1, formType);
  const auto* const b = handleAt<FormHandle>(lua, 2, formType);
  lua_pushboolean(lua, a && b && a->form == b->form ? 1 : 0);
  return 1;
}

/// A global that does not exist otherwise: a form, as long as the program runs.
int globalIndex(lua_State* lua)
{
  if (lua_type(lua, 2) != LUA_TSTRING || programEnded())
    return 0;
  Form* const form = findForm(toText(lua, 2));
  if (!form)
    return 0;
  pushForm(lua, *form);
  return 1;
}

void newType(lua_State* lua, const char* type, const luaL_Reg* functions)
{
  luaL_newmetatable(lua, type);
  luaL_setfuncs(lua, functions, 0);
  lua_pop(lua, 1);
}

} // namespace

void pushForm(lua_State* lua, Form& form)
{
  newHandle<FormHandle>(lua, formType).form = &form;
}

void pushField(lua_State* lua, Field& field)
{
  FieldHandle& handle = newHandle<FieldHandle>(lua, fieldType);
  handle.form = &field.form();
  handle.field = &field;
}

Field& toField(lua_State* lua, int index)
{
  const auto* const handle = handleAt<FieldHandle>(lua, index, fieldType);
  if (!handle)
    throw ScriptError(std::string("field expected, got ") + luaL_typename(lua, index));
  const std::vector<Field*>& fields = living(handle->form).fields();
  if (std::ranges::find(fields, handle->field) == fields.end())
    throw ScriptError("the field is gone from " + handle->form->name());
  return *handle->field;
}

Form& toForm(lua_State* lua, int index)
{
  const auto* const handle = handleAt<FormHandle>(lua, index, formType);
  if (!handle)
    throw ScriptError(std::string("form expected, got ") + luaL_typename(lua, index));
  return living(handle->form);
}

void openForms(lua_State* lua)
{
  constexpr luaL_Reg form[] = {{"__index", guarded<formIndex>},
                               {"__newindex", guarded<formNewIndex>},
                               {"__tostring", guarded<formToString>},
                               {"__eq", guarded<formEquals>},
                               {nullptr, nullptr}};
  constexpr luaL_Reg array[] = {{"__index", guarded<arrayIndex>}, {nullptr, nullptr}};
  constexpr luaL_Reg field[] = {{"__index", guarded<fieldIndex>}, {"__newindex", guarded<fieldNewIndex>},
                                {"__len", guarded<fieldLength>},  {"__tostring", guarded<fieldToString>},
                                {"__eq", guarded<fieldEquals>},   {nullptr, nullptr}};
  newType(lua, formType, form);
  newType(lua, arrayType, array);
  newType(lua, fieldType, field);
  lua_pushglobaltable(lua);
  lua_newtable(lua);
  lua_pushcfunction(lua, guarded<globalIndex>);
  lua_setfield(lua, -2, "__index");
  lua_setmetatable(lua, -2);
  lua_pop(lua, 1);
}

} // namespace tarvelin::host
