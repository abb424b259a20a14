#include "platform/store/schema.h"
#include "platform/text/letters.h"
#include "support/bindings.h"
#include "support/script.h"

namespace pantrigo {

namespace {

/// Fields of a row from a table of the script.
RawRow toRow(lua_State* lua, int place) {
  if (!lua_istable(lua, place)) throw ScriptError("a table of fields expected, got " + shown(lua, place));
  RawRow row;
  lua_pushnil(lua);
  while (lua_next(lua, place) != 0) {
    if (lua_type(lua, -2) != LUA_TSTRING) throw ScriptError("the name of a field expected, got " + shown(lua, -2));
    row[toText(lua, -2)] = toValue(lua, -1);
    lua_pop(lua, 1);
  }
  return row;
}

void pushRow(lua_State* lua, const RawRow& row) {
  lua_createtable(lua, 0, static_cast<int>(row.size()));
  for (const auto& [name, value] : row) setField(lua, name.c_str(), value);
}

int createStore(lua_State* lua, ScenarioCase& scenario) {
  scenario.createStore(lua_isnoneornil(lua, 1) ? RawRow() : toRow(lua, 1));
  return 0;
}

int addRow(lua_State* lua, ScenarioCase& scenario) {
  addRawRow(scenario.database(), toText(lua, 1), toRow(lua, 2));
  return 0;
}

int rows(lua_State* lua, ScenarioCase& scenario) {
  const std::vector<RawRow> all = rawRows(scenario.database(), toText(lua, 1));
  lua_createtable(lua, static_cast<int>(all.size()), 0);
  lua_Integer place = 0;
  for (const RawRow& row : all) {
    pushRow(lua, row);
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

/// The field of a table, in the spelling of the store.
std::string fieldNamed(const std::string& table, const std::string& name) {
  const TableDescription* description = findTable(table);
  if (description == nullptr) throw ScriptError("there is no table " + table);
  for (const FieldDescription& field : description->fields) {
    if (LCase(field.name) == LCase(name)) return std::string(field.name);
  }
  throw ScriptError(table + " has no field " + name);
}

int row(lua_State* lua, ScenarioCase& scenario) {
  const std::string table = toText(lua, 1);
  const std::string field = fieldNamed(table, toText(lua, 2));
  const Value value = toValue(lua, 3);
  for (const RawRow& candidate : rawRows(scenario.database(), table)) {
    if (candidate.at(field) != value) continue;
    pushRow(lua, candidate);
    return 1;
  }
  lua_pushnil(lua);
  return 1;
}

int changeRows(lua_State* lua, ScenarioCase& scenario) {
  changeRawRows(scenario.database(), toText(lua, 1), toText(lua, 2), toValue(lua, 3), toRow(lua, 4));
  return 0;
}

int removeRows(lua_State* lua, ScenarioCase& scenario) {
  removeRawRows(scenario.database(), toText(lua, 1), toText(lua, 2), toValue(lua, 3));
  return 0;
}

/// Reads the row of options, or changes it.
int system(lua_State* lua, ScenarioCase& scenario) {
  if (lua_isnoneornil(lua, 1)) {
    pushRow(lua, rawRows(scenario.database(), "System").at(0));
    return 1;
  }
  changeSystem(scenario.database(), toRow(lua, 1));
  return 0;
}

constexpr luaL_Reg words[] = {
    {"create", withinCase<createStore>}, {"add", withinCase<addRow>},
    {"rows", withinCase<rows>},          {"row", withinCase<row>},
    {"set", withinCase<changeRows>},     {"remove", withinCase<removeRows>},
    {"system", withinCase<system>},      {nullptr, nullptr},
};

}  // namespace

void bindStore(lua_State* lua) {
  luaL_newlib(lua, words);
  pushNullMark(lua);
  lua_setfield(lua, -2, "Null");
  lua_setglobal(lua, "store");
}

}  // namespace pantrigo
