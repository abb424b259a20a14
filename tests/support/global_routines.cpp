#include "support/global_routines.h"

#include "core/messages.h"
#include "detail/matches_filters.h"
#include "exchange/clean_title.h"
#include "measures/quantity.h"
#include "measures/show_ingredients.h"
#include "measures/unit_ladder.h"
#include "platform/text/format.h"
#include "platform/text/numbers.h"
#include "support/script.h"

namespace pantrigo {

namespace {

/// A routine of the program that needs no run of it.
template <int (*routine)(lua_State*)>
int withoutRun(lua_State* lua) {
  return guardedCall(lua, [&] { return routine(lua); });
}

/// An amount, which is a single in the program: a number, or a quantity text.
float toAmount(lua_State* lua, int place) {
  if (lua_type(lua, place) == LUA_TSTRING) return static_cast<float>(quantityAmount(toText(lua, place)));
  return static_cast<float>(toNumber(lua, place));
}

// Routines that need no run.

int escapeQuote(lua_State* lua) {
  pushText(lua, funEscapeQuote(toText(lua, 1)));
  return 1;
}

int fractionToDecimal(lua_State* lua) {
  pushText(lua, funFractionToDecimal(toText(lua, 1)));
  return 1;
}

int cleanTitle(lua_State* lua) {
  const CleanTitle clean = subCleanTitle(toText(lua, 1));
  pushText(lua, clean.caseResult);
  pushText(lua, clean.plainResult);
  return 2;
}

int val(lua_State* lua) {
  pushNumber(lua, Val(toText(lua, 1)));
  return 1;
}

int isNumeric(lua_State* lua) {
  lua_pushboolean(lua, IsNumeric(toText(lua, 1)) ? 1 : 0);
  return 1;
}

int format(lua_State* lua) {
  const std::string pattern = toText(lua, 2);
  const bool isNumber = lua_type(lua, 1) == LUA_TNUMBER;
  pushText(lua, isNumber ? Format(lua_tonumber(lua, 1), pattern) : Format(toText(lua, 1), pattern));
  return 1;
}

int str(lua_State* lua) {
  pushText(lua, Str(toNumber(lua, 1)));
  return 1;
}

// Routines that work on the options and the state of a run. Their errors are those of the program.

int partFraction(lua_State* lua, ScenarioCase& scenario) {
  const float amount = toAmount(lua, 1);
  Run& run = scenario.run();
  std::string result;
  scenario.act(lua, [&] { result = funPartFraction(run, amount); });
  pushText(lua, result);
  return 1;
}

int partDecimal(lua_State* lua, ScenarioCase& scenario) {
  const float amount = toAmount(lua, 1);
  Run& run = scenario.run();
  std::string result;
  scenario.act(lua, [&] { result = funPartDecimal(run, amount); });
  pushText(lua, result);
  return 1;
}

int formatQuantity(lua_State* lua, ScenarioCase& scenario) {
  const float amount = toAmount(lua, 1);
  Run& run = scenario.run();
  scenario.act(lua, [&] {
    run.GLOBAL.gWorkQuantity = amount;
    subFormatQuantity(run);
  });
  pushText(lua, run.GLOBAL.gQuantityText);
  return 1;
}

int convertToBase(lua_State* lua, ScenarioCase& scenario) {
  std::string unit = toText(lua, 1);
  Value quantity = toValue(lua, 2);
  const Value cup = toValue(lua, 3);
  const Value tablespoon = toValue(lua, 4);
  const std::string measurement = toText(lua, 5);
  const std::string mode = toText(lua, 6);
  Run& run = scenario.run();
  scenario.act(lua, [&] { subConvertToBase(run, unit, quantity, cup, tablespoon, measurement, mode); });
  pushText(lua, unit);
  pushValue(lua, quantity);
  return 2;
}

int convertSystem(lua_State* lua, ScenarioCase& scenario) {
  std::string unit = toText(lua, 1);
  float quantity = toAmount(lua, 2);
  Run& run = scenario.run();
  scenario.act(lua, [&] { subConvertSystem(run, unit, quantity); });
  pushText(lua, unit);
  pushNumber(lua, shortest(quantity));
  return 2;
}

int climbLadder(lua_State* lua, ScenarioCase& scenario) {
  std::string unit = toText(lua, 1);
  float quantity = toAmount(lua, 2);
  const std::string measurement = toText(lua, 3);
  Run& run = scenario.run();
  scenario.act(lua, [&] { subClimbLadder(run, unit, quantity, measurement); });
  pushText(lua, unit);
  pushNumber(lua, shortest(quantity));
  return 2;
}

int showIngredients(lua_State* lua, ScenarioCase& scenario) {
  const std::string mode = toText(lua, 1);
  const Value makes = toValue(lua, 2);
  Run& run = scenario.run();
  scenario.act(lua, [&] { subShowIngredients(run, mode, makes); });
  return 0;
}

int matchesFilters(lua_State* lua, ScenarioCase& scenario) {
  Run& run = scenario.run();
  FilterVerdict verdict = FilterVerdict::NoFilter;
  scenario.act(lua, [&] { verdict = funMatchesFilters(run); });
  lua_pushinteger(lua, static_cast<int>(verdict));
  return 1;
}

constexpr luaL_Reg routines[] = {
    {"funEscapeQuote", withoutRun<escapeQuote>},
    {"funFractionToDecimal", withoutRun<fractionToDecimal>},
    {"subCleanTitle", withoutRun<cleanTitle>},
    {"Val", withoutRun<val>},
    {"IsNumeric", withoutRun<isNumeric>},
    {"Format", withoutRun<format>},
    {"Str", withoutRun<str>},
    {"funPartFraction", withinCase<partFraction>},
    {"funPartDecimal", withinCase<partDecimal>},
    {"subFormatQuantity", withinCase<formatQuantity>},
    {"subConvertToBase", withinCase<convertToBase>},
    {"subConvertSystem", withinCase<convertSystem>},
    {"subClimbLadder", withinCase<climbLadder>},
    {"subShowIngredients", withinCase<showIngredients>},
    {"funMatchesFilters", withinCase<matchesFilters>},
    {nullptr, nullptr},
};

}  // namespace

const luaL_Reg* globalRoutines() {
  return routines;
}

}  // namespace pantrigo
