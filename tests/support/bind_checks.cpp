#include <cmath>

#include "support/bindings.h"
#include "support/script.h"

namespace pantrigo {

namespace {

/// Numbers that differ by less than this part of the larger one count as equal.
constexpr double tolerance = 1e-6;
/// Tables that hold each other deeper than this are taken for endless.
constexpr int deepestTable = 100;

bool equalNumbers(double left, double right) {
  if (left == right) return true;
  return std::abs(left - right) <= tolerance * std::max(std::abs(left), std::abs(right));
}

bool equalContents(lua_State* lua, int left, int right, int depth);

/// Whether every entry of one table stands in the other; leaves the stack as it was.
bool holdsAll(lua_State* lua, int holder, int held, int depth) {
  lua_pushnil(lua);
  while (lua_next(lua, held) != 0) {
    lua_pushvalue(lua, -2);
    lua_gettable(lua, holder);
    const bool equal = equalContents(lua, lua_gettop(lua), lua_gettop(lua) - 1, depth);
    lua_pop(lua, 2);
    if (!equal) {
      lua_pop(lua, 1);
      return false;
    }
  }
  return true;
}

bool equalContents(lua_State* lua, int left, int right, int depth) {
  if (depth == 0) throw ScriptError("a table without end");
  const int type = lua_type(lua, left);
  if (type != lua_type(lua, right)) return false;
  if (type == LUA_TNUMBER) return equalNumbers(lua_tonumber(lua, left), lua_tonumber(lua, right));
  if (type != LUA_TTABLE) return lua_rawequal(lua, left, right) != 0;
  luaL_checkstack(lua, 6, "a table that is too deep");
  return holdsAll(lua, left, right, depth - 1) && holdsAll(lua, right, left, depth - 1);
}

bool equalArguments(lua_State* lua) {
  lua_settop(lua, 3);
  return equalContents(lua, 1, 2, deepestTable);
}

/// The note of a check, in brackets; empty without one.
std::string note(lua_State* lua, int place) {
  if (lua_isnoneornil(lua, place)) return {};
  return " (" + (lua_type(lua, place) == LUA_TSTRING ? toText(lua, place) : shown(lua, place)) + ")";
}

int equal(lua_State* lua, ScenarioCase& scenario) {
  scenario.countCheck();
  if (!equalArguments(lua)) scenario.fail(lua, "expected " + shown(lua, 2) + ", got " + shown(lua, 1) + note(lua, 3));
  return 0;
}

int differ(lua_State* lua, ScenarioCase& scenario) {
  scenario.countCheck();
  if (equalArguments(lua)) {
    scenario.fail(lua, "expected something other than " + shown(lua, 2) + ", got " + shown(lua, 1) + note(lua, 3));
  }
  return 0;
}

int check(lua_State* lua, ScenarioCase& scenario) {
  scenario.countCheck();
  if (lua_toboolean(lua, 1) == 0) scenario.fail(lua, "expected a true condition, got " + shown(lua, 1) + note(lua, 2));
  return 0;
}

int contains(lua_State* lua, ScenarioCase& scenario) {
  scenario.countCheck();
  const std::string piece = toText(lua, 2);
  const bool isText = lua_type(lua, 1) == LUA_TSTRING;
  if (!isText || toText(lua, 1).find(piece) == std::string::npos) {
    scenario.fail(lua, "expected a text with " + shown(lua, 2) + ", got " + shown(lua, 1) + note(lua, 3));
  }
  return 0;
}

}  // namespace

void bindChecks(lua_State* lua) {
  lua_register(lua, "equal", withinCase<equal>);
  lua_register(lua, "differ", withinCase<differ>);
  lua_register(lua, "check", withinCase<check>);
  lua_register(lua, "contains", withinCase<contains>);
}

}  // namespace pantrigo
