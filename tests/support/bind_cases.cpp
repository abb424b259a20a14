#include "support/bindings.h"
#include "support/script.h"

namespace pantrigo {

namespace {

int runCase(lua_State* lua) {
  return guardedCall(lua, [&] {
    Script::of(lua).runCase(lua);
    return 0;
  });
}

/// The language's own `pcall`, but that it doesn't stop what leaves a function at once.
int protectedCall(lua_State* lua) {
  luaL_checkany(lua, 1);
  const int status = lua_pcall(lua, lua_gettop(lua) - 1, LUA_MULTRET, 0);
  if (status != LUA_OK && isLeaveMark(lua, -1)) return lua_error(lua);
  lua_pushboolean(lua, status == LUA_OK ? 1 : 0);
  lua_insert(lua, 1);
  return lua_gettop(lua);
}

/// Runs a function and gives the run-time error that ended the program under it.
int fails(lua_State* lua) {
  luaL_checktype(lua, 1, LUA_TFUNCTION);
  lua_pushvalue(lua, 1);
  const bool ran = lua_pcall(lua, 0, 0, 0) == LUA_OK;
  return guardedCall(lua, [&] {
    ScenarioCase& scenario = Script::of(lua).currentCase();
    const bool left = !ran && isLeaveMark(lua, -1);
    if ((!ran && !left) || scenario.failure()) return lua_error(lua);
    const std::optional<RuntimeError> error = scenario.takeError();
    if (!error) {
      if (left) throw LeaveFunction();
      lua_pushnil(lua);
      return 1;
    }
    lua_createtable(lua, 0, 2);
    setField(lua, "number", error->number());
    setField(lua, "text", error->text());
    return 1;
  });
}

}  // namespace

void bindCases(lua_State* lua) {
  lua_register(lua, "case", runCase);
  lua_register(lua, "pcall", protectedCall);
  lua_register(lua, "fails", fails);
}

void bindAll(lua_State* lua) {
  bindCases(lua);
  bindChecks(lua);
  bindRun(lua);
  bindPerson(lua);
  bindFiles(lua);
  bindStore(lua);
  bindPrinter(lua);
  bindForms(lua);
  bindGlobal(lua);
}

}  // namespace pantrigo
