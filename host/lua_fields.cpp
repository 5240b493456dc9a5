#include "host/lua_fields.h"

#include "core/forms/kinds.h"
#include "core/strings.h"
#include "host/lua_forms.h"
#include "host/lua_values.h"
#include "host/script_error.h"

#include <string_view>
#include <vector>

namespace tarvelin::host
{

namespace
{

std::string nameOf(const Field& field)
{
  return field.form().name() + "." + field.fullName();
}

void mustBeEnabled(const Field& field)
{
  if (!field.enabled())
    throw ScriptError(nameOf(field) + " is disabled");
}

template <class Kind> Kind& as(Field& field)
{
  auto* const kind = dynamic_cast<Kind*>(&field);
  if (!kind)
    throw ScriptError(nameOf(field) + " is no field of that kind");
  return *kind;
}

/// The field at stack index 1 of a member function's call, which acts as the user does.
template <class Kind> Kind& acted(lua_State* lua)
{
  Kind& field = as<Kind>(toField(lua, 1));
  mustBeEnabled(field);
  return field;
}

void pushNames(lua_State* lua, const std::vector<std::string>& names)
{
  lua_newtable(lua);
  lua_Integer n = 0;
  for (const std::string& name : names)
  {
    push(lua, name);
    lua_rawseti(lua, -2, ++n);
  }
}

int rowNumber(lua_State* lua, int index, const Rows& rows)
{
  const lua_Integer row = toWhole(lua, index);
  if (row < 0 || row >= rows.count())
    throw ScriptError(nameOf(rows) + " has no row " + std::to_string(row));
  return static_cast<int>(row);
}

void pushRow(lua_State* lua, const Rows& rows, lua_Integer index)
{
  if (index < 0 || index >= rows.count())
    return lua_pushnil(lua);
  const Row& row = rows.row(static_cast<int>(index));
  lua_newtable(lua);
  setField(lua, "text", row.text);
  setField(lua, "tag", static_cast<lua_Integer>(row.tag));
  setField(lua, "marked", row.marked);
}

/// "ctrl+shift+b".
KeyEvent toKey(const std::string& text)
{
  KeyEvent key;
  std::string_view rest = text;
  for (std::size_t plus = rest.find('+'); plus != std::string_view::npos && plus > 0; plus = rest.find('+'))
  {
    const std::string_view modifier = rest.substr(0, plus);
    if (sameAscii(modifier, "shift"))
      key.shift |= 1;
    else if (sameAscii(modifier, "ctrl"))
      key.shift |= 2;
    else if (sameAscii(modifier, "alt"))
      key.shift |= 4;
    else
      throw ScriptError("no key " + text);
    rest.remove_prefix(plus + 1);
  }
  if (rest.size() != 1)
    throw ScriptError("no key " + text);
  key.key = upper(rest)[0];
  return key;
}

int click(lua_State* lua)
{
  Field& field = toField(lua, 1);
  mustBeEnabled(field);
  if (auto* const command = dynamic_cast<Command*>(&field))
    userAction([&] { command->click(); });
  else if (auto* const menu = dynamic_cast<Menu*>(&field))
    userAction([&] { menu->click(); });
  else if (auto* const check = dynamic_cast<Check*>(&field))
    userAction([&] { check->toggle(); });
  else if (auto* const option = dynamic_cast<Option*>(&field))
    userAction([&] { option->set(true); });
  else if (auto* const picture = dynamic_cast<Picture*>(&field))
    userAction([&] { picture->click(); });
  else
  {
    Tree& tree = as<Tree>(field);
    const std::string key = toText(lua, 2);
    if (!tree.find(key))
      throw ScriptError(nameOf(tree) + " has no node " + key);
    userAction([&] { tree.userClick(key); });
  }
  return 0;
}

int type(lua_State* lua)
{
  Text& text = acted<Text>(lua);
  const std::string typed = toText(lua, 2);
  userAction([&] { text.userType(typed); });
  return 0;
}

int key(lua_State* lua)
{
  Text& text = acted<Text>(lua);
  const KeyEvent event = toKey(toText(lua, 2));
  userAction([&] { text.userKey(event); });
  return 0;
}

int style(lua_State* lua)
{
  const TextStyle at = as<RichText>(toField(lua, 1)).styleAt(static_cast<std::size_t>(toWhole(lua, 2)));
  lua_newtable(lua);
  setField(lua, "color", static_cast<lua_Integer>(at.color));
  setField(lua, "bold", at.bold);
  setField(lua, "italic", at.italic);
  return 1;
}

int texts(lua_State* lua)
{
  const Rows& rows = as<Rows>(toField(lua, 1));
  std::vector<std::string> all;
  for (int i = 0; i < rows.count(); ++i)
    all.push_back(rows.text(i));
  pushNames(lua, all);
  return 1;
}

int selectRow(lua_State* lua)
{
  Rows& rows = acted<Rows>(lua);
  const int row = rowNumber(lua, 2, rows);
  userAction([&] { rows.userSelect(row); });
  return 0;
}

int markRow(lua_State* lua)
{
  List& list = acted<List>(lua);
  const int row = rowNumber(lua, 2, list);
  const bool on = toTruth(lua, 3);
  userAction([&] { list.userMark(row, on); });
  return 0;
}

int press(lua_State* lua)
{
  Field& field = toField(lua, 1);
  mustBeEnabled(field);
  const std::string name = toText(lua, 2);
  MouseButton button = MouseButton::left;
  if (name == "right")
    button = MouseButton::right;
  else if (name == "middle")
    button = MouseButton::middle;
  else if (name != "left")
    throw ScriptError("no mouse button " + name);
  List& list = as<List>(field);
  userAction([&] { list.userPress(button); });
  return 0;
}

int treeKeys(lua_State* lua)
{
  std::vector<std::string> keys;
  for (const Tree::Node* const node : as<Tree>(toField(lua, 1)).nodes())
    keys.push_back(node->key);
  pushNames(lua, keys);
  return 1;
}

int treeNode(lua_State* lua)
{
  const Tree::Node* const node = as<Tree>(toField(lua, 1)).find(toText(lua, 2));
  if (!node)
  {
    lua_pushnil(lua);
    return 1;
  }
  lua_newtable(lua);
  setField(lua, "key", node->key);
  setField(lua, "text", node->text);
  setField(lua, "icon", static_cast<lua_Integer>(node->icon));
  if (node->parent)
    setField(lua, "parent", node->parent->key);
  return 1;
}

int scroll(lua_State* lua)
{
  Slider& slider = acted<Slider>(lua);
  const auto value = static_cast<int>(toWhole(lua, 2));
  userAction([&] { slider.userScroll(value); });
  return 0;
}

int fileNames(lua_State* lua)
{
  pushNames(lua, as<FileList>(toField(lua, 1)).names());
  return 1;
}

int folderNames(lua_State* lua)
{
  pushNames(lua, as<FolderList>(toField(lua, 1)).names());
  return 1;
}

int driveNames(lua_State* lua)
{
  DriveList& drives = as<DriveList>(toField(lua, 1));
  drives.refresh();
  pushNames(lua, drives.names());
  return 1;
}

int selectFile(lua_State* lua)
{
  FileList& files = acted<FileList>(lua);
  const std::string name = toText(lua, 2);
  if (!files.has(name))
    throw ScriptError(nameOf(files) + " has no file " + name);
  userAction([&] { files.userSelect(name); });
  return 0;
}

int tabCaption(lua_State* lua)
{
  const TabStrip& tabs = as<TabStrip>(toField(lua, 1));
  const lua_Integer tab = toWhole(lua, 2);
  if (tab < 0 || tab >= tabs.count())
    throw ScriptError(nameOf(tabs) + " has no tab " + std::to_string(tab));
  push(lua, tabs.tabCaption(static_cast<int>(tab)));
  return 1;
}

void pushWhole(lua_State* lua, auto number)
{
  lua_pushinteger(lua, static_cast<lua_Integer>(number));
}

void pushTruth(lua_State* lua, bool truth)
{
  lua_pushboolean(lua, truth ? 1 : 0);
}

/// A member of one kind of field: how it is read, and how the user writes it where he can.
struct Member
{
  std::string_view name;
  bool (*suits)(const Field&);
  void (*get)(lua_State*, Field&);
  void (*set)(lua_State*, Field&) = nullptr; ///< value at stack index 3
};

template <class Kind> bool is(const Field& field)
{
  return dynamic_cast<const Kind*>(&field) != nullptr;
}

template <lua_CFunction function> void pushFunction(lua_State* lua, Field&)
{
  lua_pushcfunction(lua, function);
}

template <class Kind, int (*function)(lua_State*)> constexpr Member method(std::string_view name)
{
  return {name, is<Kind>, pushFunction<guarded<function>>};
}

bool any(const Field&)
{
  return true;
}

bool captioned(const Field& field)
{
  return field.hasCaption();
}

bool clickable(const Field& field)
{
  return is<Command>(field) || is<Menu>(field) || is<Check>(field) || is<Option>(field) || is<Picture>(field) ||
         is<Tree>(field);
}

const Member members[] = {
    {"kind", any, [](lua_State* lua, Field& field) { push(lua, kindName(field.kind())); }},
    {"name", any, [](lua_State* lua, Field& field) { push(lua, field.fullName()); }},
    {"enabled", any, [](lua_State* lua, Field& field) { pushTruth(lua, field.enabled()); }},
    {"visible", any, [](lua_State* lua, Field& field) { pushTruth(lua, field.visible()); }},
    {"caption", captioned, [](lua_State* lua, Field& field) { push(lua, field.caption()); }},
    {"click", clickable, pushFunction<guarded<click>>},

    {"text", is<Text>, [](lua_State* lua, Field& field) { push(lua, as<Text>(field).text()); },
     [](lua_State* lua, Field& field) { as<Text>(field).userSet(toText(lua, 3)); }},
    {"selstart", is<Text>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Text>(field).selStart()); },
     [](lua_State* lua, Field& field)
     { as<Text>(field).select(static_cast<std::size_t>(std::max<lua_Integer>(toWhole(lua, 3), 0)), 0); }},
    {"sellength", is<Text>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Text>(field).selLength()); },
     [](lua_State* lua, Field& field)
     {
       Text& text = as<Text>(field);
       text.select(text.selStart(), static_cast<std::size_t>(std::max<lua_Integer>(toWhole(lua, 3), 0)));
     }},
    {"font", is<Text>, [](lua_State* lua, Field& field) { push(lua, as<Text>(field).font()); }},
    method<Text, type>("type"),
    method<Text, key>("key"),
    method<RichText, style>("style"),

    {"value", is<Check>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Check>(field).value()); },
     [](lua_State* lua, Field& field) { as<Check>(field).set(toTruth(lua, 3)); }},
    {"value", is<Option>, [](lua_State* lua, Field& field) { pushTruth(lua, as<Option>(field).value()); },
     [](lua_State* lua, Field& field)
     {
       if (!toTruth(lua, 3))
         throw ScriptError(nameOf(field) + " can only be selected");
       as<Option>(field).set(true);
     }},

    {"index", is<Rows>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Rows>(field).index()); }},
    {"newest", is<Rows>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Rows>(field).newest()); }},
    method<Rows, texts>("texts"),
    method<Rows, selectRow>("select"),
    method<List, markRow>("mark"),
    method<List, press>("press"),
    {"text", is<Combo>, [](lua_State* lua, Field& field) { push(lua, as<Combo>(field).text()); },
     [](lua_State* lua, Field& field)
     {
       Combo& combo = as<Combo>(field);
       if (!combo.editable())
         throw ScriptError(nameOf(field) + ".text cannot be written");
       combo.setText(toText(lua, 3));
     }},

    method<Tree, treeKeys>("keys"),
    method<Tree, treeNode>("node"),
    {"selected", is<Tree>,
     [](lua_State* lua, Field& field)
     {
       if (const Tree::Node* const node = as<Tree>(field).selected())
         push(lua, node->key);
       else
         lua_pushnil(lua);
     }},

    {"path", is<Picture>, [](lua_State* lua, Field& field) { push(lua, as<Picture>(field).path()); }},
    {"width", is<Picture>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Picture>(field).width()); }},
    {"height", is<Picture>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Picture>(field).height()); }},
    {"color", is<Picture>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Picture>(field).color()); }},

    {"value", is<Slider>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Slider>(field).value()); },
     [](lua_State* lua, Field& field) { as<Slider>(field).userScroll(static_cast<int>(toWhole(lua, 3))); }},
    {"min", is<Slider>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Slider>(field).minimum()); }},
    {"max", is<Slider>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Slider>(field).maximum()); }},
    method<Slider, scroll>("scroll"),
    {"value", is<Progress>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Progress>(field).value()); }},
    {"min", is<Progress>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Progress>(field).minimum()); }},
    {"max", is<Progress>, [](lua_State* lua, Field& field) { pushWhole(lua, as<Progress>(field).maximum()); }},

    {"path", is<FileList>, [](lua_State* lua, Field& field) { push(lua, as<FileList>(field).path()); }},
    {"pattern", is<FileList>, [](lua_State* lua, Field& field) { push(lua, as<FileList>(field).pattern()); }},
    {"selected", is<FileList>, [](lua_State* lua, Field& field) { push(lua, as<FileList>(field).selected()); }},
    method<FileList, fileNames>("names"),
    method<FileList, selectFile>("select"),

    {"path", is<FolderList>, [](lua_State* lua, Field& field) { push(lua, as<FolderList>(field).path()); },
     [](lua_State* lua, Field& field)
     {
       FolderList& folders = as<FolderList>(field);
       const std::string path = toText(lua, 3);
       if (!FolderList::exists(path))
         throw ScriptError(nameOf(field) + ": no folder " + path);
       folders.userSetPath(path);
     }},
    method<FolderList, folderNames>("names"),

    {"drive", is<DriveList>, [](lua_State* lua, Field& field) { push(lua, as<DriveList>(field).drive()); },
     [](lua_State* lua, Field& field)
     {
       DriveList& drives = as<DriveList>(field);
       const std::string drive = toText(lua, 3);
       if (!drives.has(drive))
         throw ScriptError(nameOf(field) + ": no drive " + drive);
       drives.setDrive(drive);
     }},
    method<DriveList, driveNames>("names"),

    {"tab", is<TabStrip>, [](lua_State* lua, Field& field) { pushWhole(lua, as<TabStrip>(field).tab()); },
     [](lua_State* lua, Field& field)
     {
       TabStrip& tabs = as<TabStrip>(field);
       const lua_Integer tab = toWhole(lua, 3);
       if (tab < 0 || tab >= tabs.count())
         throw ScriptError(nameOf(field) + " has no tab " + std::to_string(tab));
       tabs.setTab(static_cast<int>(tab));
     }},
    method<TabStrip, tabCaption>("caption"),

    {"address", is<Browser>, [](lua_State* lua, Field& field) { push(lua, as<Browser>(field).address()); }},
};

const Member* findMember(const Field& field, std::string_view name)
{
  for (const Member& member : members)
    if (member.name == name && member.suits(field))
      return &member;
  return nullptr;
}

} // namespace

int getMember(lua_State* lua, Field& field)
{
  if (lua_type(lua, 2) == LUA_TNUMBER)
  {
    pushRow(lua, as<Rows>(field), toWhole(lua, 2));
    return 1;
  }
  const std::string name = toText(lua, 2);
  const Member* const member = findMember(field, name);
  if (!member)
    throw ScriptError("no member " + nameOf(field) + "." + name);
  member->get(lua, field);
  return 1;
}

void setMember(lua_State* lua, Field& field)
{
  const std::string name = toText(lua, 2);
  const Member* const member = findMember(field, name);
  if (!member)
    throw ScriptError("no member " + nameOf(field) + "." + name);
  if (!member->set)
    throw ScriptError(nameOf(field) + "." + name + " cannot be written");
  mustBeEnabled(field);
  userAction([&] { member->set(lua, field); });
}

lua_Integer fieldCount(const Field& field)
{
  if (const auto* const rows = dynamic_cast<const Rows*>(&field))
    return rows->count();
  if (const auto* const tree = dynamic_cast<const Tree*>(&field))
    return tree->count();
  if (const auto* const tabs = dynamic_cast<const TabStrip*>(&field))
    return tabs->count();
  throw ScriptError(nameOf(field) + " has no length");
}

} // namespace tarvelin::host
