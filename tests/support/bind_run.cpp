#include "support/bindings.h"
#include "support/script.h"

namespace pantrigo {

namespace {

int setScreen(lua_State* lua, ScenarioCase& scenario) {
  const double width = toNumber(lua, 1);
  const double height = toNumber(lua, 2);
  if (width <= 0 || height <= 0) throw ScriptError("a screen has a width and a height");
  scenario.toolkit().setNextScreen(width, height);
  return 0;
}

int setClock(lua_State* lua, ScenarioCase& scenario) {
  scenario.toolkit().setClock({toWhole(lua, 1), toWhole(lua, 2), toWhole(lua, 3), toWhole(lua, 4), toWhole(lua, 5)});
  return 0;
}

int start(lua_State* lua, ScenarioCase& scenario) {
  scenario.start(lua);
  return 0;
}

int stop(lua_State* lua, ScenarioCase& scenario) {
  scenario.stop(lua);
  return 0;
}

int running(lua_State* lua, ScenarioCase& scenario) {
  lua_pushboolean(lua, scenario.running() ? 1 : 0);
  return 1;
}

/// The name of the control that has the focus, with its form's; empty when none has.
int focus(lua_State* lua, ScenarioCase& scenario) {
  const Form* form = scenario.run().windows.active();
  const Control* control = form == nullptr ? nullptr : form->ActiveControl();
  pushText(lua, control == nullptr ? "" : form->Name() + "." + control->Name());
  return 1;
}

}  // namespace

void bindRun(lua_State* lua) {
  lua_register(lua, "screen", withinCase<setScreen>);
  lua_register(lua, "clock", withinCase<setClock>);
  lua_register(lua, "start", withinCase<start>);
  lua_register(lua, "stop", withinCase<stop>);
  lua_register(lua, "running", withinCase<running>);
  lua_register(lua, "focus", withinCase<focus>);
}

}  // namespace pantrigo
