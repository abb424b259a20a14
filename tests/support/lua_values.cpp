#include "support/lua_values.h"

#include <cmath>
#include <limits>
#include <map>

#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

// Addresses that stand for something, whatever they hold.
constexpr char nullMark = 0;
constexpr char leaveMark = 0;

void* mark(const char& address) {
  return const_cast<char*>(&address);
}

bool isMark(lua_State* lua, int place, const char& address) {
  return lua_islightuserdata(lua, place) && lua_touserdata(lua, place) == mark(address);
}

[[noreturn]] void refuse(lua_State* lua, int place, const char* wanted) {
  throw ScriptError(std::string(wanted) + " expected, got " + shown(lua, place));
}

/// Longest text and deepest table that a message shows.
constexpr std::size_t longestShown = 400;
constexpr int deepestShown = 4;

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char character : text.substr(0, longestShown)) {
    switch (character) {
      case '\r':
        result += "\\r";
        break;
      case '\n':
        result += "\\n";
        break;
      case '"':
        result += "\\\"";
        break;
      default:
        result += character;
    }
  }
  return result + (text.size() > longestShown ? "...\"" : "\"");
}

std::string plainlyShown(lua_State* lua, int place) {
  std::size_t length = 0;
  const char* text = luaL_tolstring(lua, place, &length);
  std::string result(text, length);
  lua_pop(lua, 1);
  return result;
}

std::string shownTo(lua_State* lua, int place, int depth);

/// List entries in order, then the other keys, sorted.
std::string shownTable(lua_State* lua, int place, int depth) {
  if (depth == 0) return "{...}";
  place = lua_absindex(lua, place);
  luaL_checkstack(lua, 4, "a table that is too deep");
  const auto count = static_cast<lua_Integer>(lua_rawlen(lua, place));
  std::string list;
  const auto add = [&](const std::string& entry) { list += (list.empty() ? "" : ", ") + entry; };
  for (lua_Integer at = 1; at <= count; ++at) {
    lua_rawgeti(lua, place, at);
    add(shownTo(lua, -1, depth - 1));
    lua_pop(lua, 1);
  }
  std::map<std::string, std::string> others;
  lua_pushnil(lua);
  while (lua_next(lua, place) != 0) {
    const bool inList = lua_isinteger(lua, -2) && lua_tointeger(lua, -2) >= 1 && lua_tointeger(lua, -2) <= count;
    if (!inList) others[plainlyShown(lua, -2)] = shownTo(lua, -1, depth - 1);
    lua_pop(lua, 1);
  }
  for (const auto& [key, value] : others) add(key + " = " + value);
  return "{" + list + "}";
}

std::string shownTo(lua_State* lua, int place, int depth) {
  if (isMark(lua, place, nullMark)) return "store.Null";
  switch (lua_type(lua, place)) {
    case LUA_TSTRING: {
      std::size_t length = 0;
      const char* text = lua_tolstring(lua, place, &length);
      return quoted({text, length});
    }
    case LUA_TTABLE:
      return shownTable(lua, place, depth);
    case LUA_TNONE:
      return "nothing";
    default:
      return plainlyShown(lua, place);
  }
}

}  // namespace

LuaFunction::LuaFunction(lua_State* lua, int place) {
  luaL_checktype(lua, place, LUA_TFUNCTION);
  lua_pushvalue(lua, place);
  // The main thread outlives every thread of a script.
  lua_rawgeti(lua, LUA_REGISTRYINDEX, LUA_RIDX_MAINTHREAD);
  lua_ = lua_tothread(lua, -1);
  lua_pop(lua, 1);
  reference_ = luaL_ref(lua, LUA_REGISTRYINDEX);
}

void LuaFunction::push(lua_State* lua) const {
  lua_rawgeti(lua, LUA_REGISTRYINDEX, reference_);
}

void LuaFunction::release() {
  if (lua_ != nullptr) luaL_unref(lua_, LUA_REGISTRYINDEX, reference_);
  lua_ = nullptr;
}

void pushNumber(lua_State* lua, double number) {
  // Beyond this a double holds no odd whole numbers.
  constexpr double largestWhole = 9007199254740992.0;
  if (std::floor(number) == number && std::abs(number) <= largestWhole) {
    lua_pushinteger(lua, static_cast<lua_Integer>(number));
  } else {
    lua_pushnumber(lua, number);
  }
}

void pushText(lua_State* lua, std::string_view text) {
  lua_pushlstring(lua, text.data(), text.size());
}

void pushValue(lua_State* lua, const Value& value) {
  if (value.isNull()) {
    lua_pushnil(lua);
  } else if (value.isBoolean()) {
    lua_pushboolean(lua, value.truth() ? 1 : 0);
  } else if (value.isNumber()) {
    pushNumber(lua, value.number());
  } else {
    pushText(lua, value.text());
  }
}

void setField(lua_State* lua, const char* name, const Value& value) {
  pushValue(lua, value);
  lua_setfield(lua, -2, name);
}

void pushNullMark(lua_State* lua) {
  lua_pushlightuserdata(lua, mark(nullMark));
}

Value toValue(lua_State* lua, int place) {
  if (isMark(lua, place, nullMark)) return {};
  switch (lua_type(lua, place)) {
    case LUA_TNIL:
    case LUA_TNONE:
      return {};
    case LUA_TBOOLEAN:
      return lua_toboolean(lua, place) != 0;
    case LUA_TNUMBER:
      return lua_tonumber(lua, place);
    case LUA_TSTRING:
      return toText(lua, place);
    default:
      refuse(lua, place, "a number, a text, a boolean or Null");
  }
}

std::string toText(lua_State* lua, int place) {
  if (lua_type(lua, place) == LUA_TNUMBER) return Value(lua_tonumber(lua, place)).text();
  if (lua_type(lua, place) != LUA_TSTRING) refuse(lua, place, "a text");
  std::size_t length = 0;
  const char* text = lua_tolstring(lua, place, &length);
  return {text, length};
}

double toNumber(lua_State* lua, int place) {
  if (lua_type(lua, place) != LUA_TNUMBER) refuse(lua, place, "a number");
  return lua_tonumber(lua, place);
}

int toWhole(lua_State* lua, int place) {
  const double number = toNumber(lua, place);
  const bool fits = std::abs(number) <= std::numeric_limits<int>::max();
  if (!fits || std::floor(number) != number) refuse(lua, place, "a whole number");
  return static_cast<int>(number);
}

bool toTruth(lua_State* lua, int place) {
  if (!lua_isboolean(lua, place)) refuse(lua, place, "true or false");
  return lua_toboolean(lua, place) != 0;
}

std::string shown(lua_State* lua, int place) {
  return shownTo(lua, place, deepestShown);
}

std::string errorText(lua_State* lua) {
  return lua_type(lua, -1) == LUA_TSTRING ? toText(lua, -1) : "an error that is no text: " + shown(lua, -1);
}

std::string runningPlace(lua_State* lua) {
  lua_Debug frame;
  for (int level = 0; lua_getstack(lua, level, &frame) != 0; ++level) {
    lua_getinfo(lua, "Sl", &frame);
    if (frame.currentline > 0 && frame.source[0] == '@') {
      return std::string(frame.source + 1) + ":" + plainText(static_cast<long>(frame.currentline));
    }
  }
  return {};
}

void pushLeaveMark(lua_State* lua) {
  lua_pushlightuserdata(lua, mark(leaveMark));
}
bool isLeaveMark(lua_State* lua, int place) {
  return isMark(lua, place, leaveMark);
}

}  // namespace pantrigo
