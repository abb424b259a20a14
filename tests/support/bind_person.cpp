#include "support/bindings.h"
#include "support/script.h"

namespace pantrigo {

namespace {

struct AnswerName {
  const char* name;
  BoxAnswer answer;
};

constexpr AnswerName answerNames[] = {{"Yes", BoxAnswer::Yes}, {"No", BoxAnswer::No}, {"OK", BoxAnswer::OK}};

BoxAnswer answerOf(const std::string& name) {
  for (const AnswerName& known : answerNames) {
    if (name == known.name) return known.answer;
  }
  throw ScriptError("Yes, No or OK expected, got " + name);
}

const char* nameOf(BoxAnswer answer) {
  for (const AnswerName& known : answerNames) {
    if (answer == known.answer) return known.name;
  }
  return "";
}

int modal(lua_State* lua, ScenarioCase& scenario) {
  scenario.onModal(toText(lua, 1), LuaFunction(lua, 2));
  return 0;
}

int answer(lua_State* lua, ScenarioCase& scenario) {
  for (int place = 1; place <= lua_gettop(lua); ++place) scenario.addAnswer(answerOf(toText(lua, place)));
  return 0;
}

int boxes(lua_State* lua, ScenarioCase& scenario) {
  lua_newtable(lua);
  lua_Integer place = 0;
  for (const ShownBox& shownBox : scenario.toolkit().takeBoxes()) {
    lua_createtable(lua, 0, 4);
    setField(lua, "text", shownBox.box.text);
    setField(lua, "caption", shownBox.box.caption);
    setField(lua, "style", shownBox.box.style);
    setField(lua, "answer", nameOf(shownBox.answer));
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

int yields(lua_State* lua, ScenarioCase& scenario) {
  scenario.onTurn(lua_isnoneornil(lua, 1) ? LuaFunction() : LuaFunction(lua, 1));
  return 0;
}

int beeps(lua_State* lua, ScenarioCase& scenario) {
  lua_pushinteger(lua, scenario.toolkit().takeBeeps());
  return 1;
}

int pointer(lua_State* lua, ScenarioCase& scenario) {
  lua_pushinteger(lua, scenario.toolkit().pointer());
  return 1;
}

int setUps(lua_State* lua, ScenarioCase& scenario) {
  lua_pushinteger(lua, scenario.toolkit().takeSetUps());
  return 1;
}

int helps(lua_State* lua, ScenarioCase& scenario) {
  lua_newtable(lua);
  lua_Integer place = 0;
  for (const int context : scenario.toolkit().takeHelps()) {
    lua_pushinteger(lua, context);
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

}  // namespace

void bindPerson(lua_State* lua) {
  lua_register(lua, "modal", withinCase<modal>);
  lua_register(lua, "answer", withinCase<answer>);
  lua_register(lua, "boxes", withinCase<boxes>);
  lua_register(lua, "yields", withinCase<yields>);
  lua_register(lua, "beeps", withinCase<beeps>);
  lua_register(lua, "pointer", withinCase<pointer>);
  lua_register(lua, "setups", withinCase<setUps>);
  lua_register(lua, "helps", withinCase<helps>);
}

}  // namespace pantrigo
