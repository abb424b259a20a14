#pragma once

#include <lua.hpp>
#include <string>
#include <utility>

#include "platform/store/value.h"
#include "support/script_errors.h"

namespace pantrigo {

/// A function of a script, kept from being collected.
class LuaFunction {
 public:
  LuaFunction() = default;
  /// Takes the function at that place of the stack. A Lua error when there is none.
  LuaFunction(lua_State* lua, int place);
  ~LuaFunction() { release(); }
  LuaFunction(LuaFunction&& other) noexcept { swap(other); }
  LuaFunction& operator=(LuaFunction&& other) noexcept {
    swap(other);
    return *this;
  }

  [[nodiscard]] bool isSet() const { return lua_ != nullptr; }
  /// Puts the function on the stack.
  void push(lua_State* lua) const;

 private:
  void release();
  void swap(LuaFunction& other) noexcept {
    std::swap(lua_, other.lua_);
    std::swap(reference_, other.reference_);
  }

  lua_State* lua_ = nullptr;
  int reference_ = LUA_NOREF;
};

/// A whole number goes as an integer of the language, so that it joins into texts without a point.
void pushNumber(lua_State* lua, double number);
void pushText(lua_State* lua, std::string_view text);
/// Null is nil.
void pushValue(lua_State* lua, const Value& value);

/// Sets a field of the table on top of the stack.
void setField(lua_State* lua, const char* name, const Value& value);

/// The mark by which a script writes Null.
void pushNullMark(lua_State* lua);

// What stands at a place of the stack; a ScriptError when it is something else. A number where a text is wanted is
// taken in its plain form.
[[nodiscard]] Value toValue(lua_State* lua, int place);
[[nodiscard]] std::string toText(lua_State* lua, int place);
[[nodiscard]] double toNumber(lua_State* lua, int place);
[[nodiscard]] int toWhole(lua_State* lua, int place);
[[nodiscard]] bool toTruth(lua_State* lua, int place);

/// The value as a script would write it, for the text of a failed check.
[[nodiscard]] std::string shown(lua_State* lua, int place);

/// The error value on top of the stack, as a text.
[[nodiscard]] std::string errorText(lua_State* lua);

/// "FILE:LINE" of the innermost line of a script that is running; empty when none is.
[[nodiscard]] std::string runningPlace(lua_State* lua);

/// The error value that leaves a function of a script, and whether that is what stands there.
void pushLeaveMark(lua_State* lua);
[[nodiscard]] bool isLeaveMark(lua_State* lua, int place);

/// Runs what a function of the language is made of. C++ errors become errors of the script; nothing but Lua's own
/// unwinding leaves it.
template <class Body>
int guardedCall(lua_State* lua, Body&& body) {
  try {
    return body();
  } catch (const LeaveFunction&) {
    pushLeaveMark(lua);
  } catch (const std::exception& error) {
    luaL_where(lua, 1);
    pushText(lua, error.what());
    lua_concat(lua, 2);
  }
  return lua_error(lua);
}

}  // namespace pantrigo
