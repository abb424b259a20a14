#pragma once

#include <lua.hpp>

namespace pantrigo {

// Each puts one group of the words of the scenarios into a new state of the language.

void bindCases(lua_State* lua);
void bindChecks(lua_State* lua);
void bindRun(lua_State* lua);
void bindPerson(lua_State* lua);
void bindFiles(lua_State* lua);
void bindStore(lua_State* lua);
void bindPrinter(lua_State* lua);
void bindForms(lua_State* lua);
void bindGlobal(lua_State* lua);

/// All of them.
void bindAll(lua_State* lua);

}  // namespace pantrigo
