#include "support/bindings.h"
#include "support/script.h"

namespace pantrigo {

namespace {

int lines(lua_State* lua, ScenarioCase& scenario) {
  lua_newtable(lua);
  lua_Integer place = 0;
  for (const PrintedLine& line : scenario.toolkit().recorder().takeLines()) {
    lua_createtable(lua, 0, 5);
    setField(lua, "text", line.text);
    setField(lua, "bold", line.bold);
    setField(lua, "size", line.size);
    setField(lua, "page", line.page);
    setField(lua, "job", line.job);
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

int pictures(lua_State* lua, ScenarioCase& scenario) {
  lua_newtable(lua);
  lua_Integer place = 0;
  for (const PrintedPicture& picture : scenario.toolkit().recorder().takePictures()) {
    lua_createtable(lua, 0, 7);
    setField(lua, "file", picture.file);
    setField(lua, "x", picture.area.x);
    setField(lua, "y", picture.area.y);
    setField(lua, "width", picture.area.width);
    setField(lua, "height", picture.area.height);
    setField(lua, "page", picture.page);
    setField(lua, "job", picture.job);
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

int jobs(lua_State* lua, ScenarioCase& scenario) {
  lua_pushinteger(lua, scenario.toolkit().recorder().jobs());
  return 1;
}

int open(lua_State* lua, ScenarioCase& scenario) {
  lua_pushboolean(lua, scenario.toolkit().recorder().open() ? 1 : 0);
  return 1;
}

constexpr luaL_Reg words[] = {
    {"lines", withinCase<lines>}, {"pictures", withinCase<pictures>},
    {"jobs", withinCase<jobs>},   {"open", withinCase<open>},
    {nullptr, nullptr},
};

}  // namespace

void bindPrinter(lua_State* lua) {
  luaL_newlib(lua, words);
  lua_setglobal(lua, "printer");
}

}  // namespace pantrigo
