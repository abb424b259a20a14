#include <algorithm>
#include <variant>

#include "support/bindings.h"
#include "support/global_routines.h"
#include "support/script.h"

namespace pantrigo {

namespace {

/// A variable of the shared state, by the type of its value.
using Variable = std::variant<std::string Global::*, bool Global::*, long Global::*, float Global::*>;

struct NamedVariable {
  std::string_view name;
  Variable variable;
};

const NamedVariable variables[] = {
    {"gStartDir", &Global::gStartDir},
    {"gScale", &Global::gScale},
    {"gSqlText", &Global::gSqlText},
    {"gSelectedTitle", &Global::gSelectedTitle},
    {"gTitleBeforeEdit", &Global::gTitleBeforeEdit},
    {"gListIndex", &Global::gListIndex},
    {"gKeepDetailOnActivate", &Global::gKeepDetailOnActivate},
    {"gDetailChanged", &Global::gDetailChanged},
    {"gIngredientsChanged", &Global::gIngredientsChanged},
    {"gMethodChanged", &Global::gMethodChanged},
    {"gCommentsChanged", &Global::gCommentsChanged},
    {"gHealthChanged", &Global::gHealthChanged},
    {"gOtherChanged", &Global::gOtherChanged},
    {"gIngredientLast", &Global::gIngredientLast},
    {"gConvertCupSpoon", &Global::gConvertCupSpoon},
    {"gWorkQuantity", &Global::gWorkQuantity},
    {"gWorkUnit", &Global::gWorkUnit},
    {"gSavedUnit", &Global::gSavedUnit},
    {"gRowQuantity", &Global::gRowQuantity},
    {"gRowUnit", &Global::gRowUnit},
    {"gQuantityText", &Global::gQuantityText},
    {"gPartFraction", &Global::gPartFraction},
    {"gBracketOpen", &Global::gBracketOpen},
    {"gBracketClose", &Global::gBracketClose},
    {"gBracketAmount", &Global::gBracketAmount},
    {"gBracketUnit", &Global::gBracketUnit},
    {"gEnergy", &Global::gEnergy},
    {"gProtein", &Global::gProtein},
    {"gCholesterol", &Global::gCholesterol},
    {"gCarbohydrates", &Global::gCarbohydrates},
    {"gSodium", &Global::gSodium},
    {"gFibre", &Global::gFibre},
    {"gCalcium", &Global::gCalcium},
    {"gFat", &Global::gFat},
    {"gIron", &Global::gIron},
    {"gSource", &Global::gSource},
    {"gSourceEntered", &Global::gSourceEntered},
    {"gCategoryTable", &Global::gCategoryTable},
    {"gCategoryCaller", &Global::gCategoryCaller},
    {"gImageRecipeId", &Global::gImageRecipeId},
    {"gExportFile", &Global::gExportFile},
    {"gExportDir", &Global::gExportDir},
    {"gExportSuffix", &Global::gExportSuffix},
    {"gImportFile", &Global::gImportFile},
    {"gImportIngredients", &Global::gImportIngredients},
};

const Variable& variableNamed(const std::string& name) {
  const auto* found =
      std::find_if(std::begin(variables), std::end(variables), [&](const NamedVariable& v) { return v.name == name; });
  if (found == std::end(variables)) throw ScriptError("GLOBAL has nothing named " + name);
  return found->variable;
}

int readVariable(lua_State* lua, ScenarioCase& scenario) {
  const Variable& variable = variableNamed(toText(lua, 2));
  const Global& global = scenario.run().GLOBAL;
  pushValue(lua, std::visit([&](auto member) { return Value(global.*member); }, variable));
  return 1;
}

void write(lua_State* lua, std::string& variable) {
  variable = toText(lua, 3);
}
void write(lua_State* lua, bool& variable) {
  variable = toTruth(lua, 3);
}
void write(lua_State* lua, long& variable) {
  variable = toWhole(lua, 3);
}
void write(lua_State* lua, float& variable) {
  variable = static_cast<float>(toNumber(lua, 3));
}

int writeVariable(lua_State* lua, ScenarioCase& scenario) {
  const Variable& variable = variableNamed(toText(lua, 2));
  Global& global = scenario.run().GLOBAL;
  std::visit([&](auto member) { write(lua, global.*member); }, variable);
  return 0;
}

void pushIngredientRows(lua_State* lua, const std::vector<IngredientRow>& rows) {
  lua_createtable(lua, static_cast<int>(rows.size()), 0);
  lua_Integer place = 0;
  for (const IngredientRow& row : rows) {
    lua_createtable(lua, IngredientRow::columnCount, 0);
    for (int column = 1; column <= IngredientRow::columnCount; ++column) {
      pushText(lua, row[column]);
      lua_rawseti(lua, -2, column);
    }
    lua_rawseti(lua, -2, ++place);
  }
}

/// A row from the list of six texts on top of the stack.
IngredientRow toIngredientRow(lua_State* lua) {
  const bool sixTexts = lua_istable(lua, -1) && lua_rawlen(lua, -1) == IngredientRow::columnCount;
  if (!sixTexts) throw ScriptError("a list of six texts expected, got " + shown(lua, -1));
  IngredientRow row;
  for (int column = 1; column <= IngredientRow::columnCount; ++column) {
    lua_rawgeti(lua, -1, column);
    row[column] = toText(lua, -1);
    lua_pop(lua, 1);
  }
  return row;
}

/// Reads the ingredient rows of the open recipe, or sets them with the highest index in use.
int rows(lua_State* lua, ScenarioCase& scenario) {
  Global& global = scenario.run().GLOBAL;
  if (lua_isnoneornil(lua, 1)) {
    pushIngredientRows(lua, global.gIngredientRows);
    return 1;
  }
  if (!lua_istable(lua, 1)) throw ScriptError("a list of rows expected, got " + shown(lua, 1));
  std::vector<IngredientRow> given;
  for (lua_Integer place = 1; place <= static_cast<lua_Integer>(lua_rawlen(lua, 1)); ++place) {
    lua_rawgeti(lua, 1, place);
    given.push_back(toIngredientRow(lua));
    lua_pop(lua, 1);
  }
  global.gIngredientLast = static_cast<long>(given.size()) - 1;
  global.gIngredientRows = std::move(given);
  return 0;
}

}  // namespace

void bindGlobal(lua_State* lua) {
  lua_newtable(lua);
  luaL_setfuncs(lua, globalRoutines(), 0);
  lua_pushcfunction(lua, withinCase<rows>);
  lua_setfield(lua, -2, "rows");
  lua_createtable(lua, 0, 2);
  lua_pushcfunction(lua, withinCase<readVariable>);
  lua_setfield(lua, -2, "__index");
  lua_pushcfunction(lua, withinCase<writeVariable>);
  lua_setfield(lua, -2, "__newindex");
  lua_setmetatable(lua, -2);
  lua_setglobal(lua, "GLOBAL");
}

}  // namespace pantrigo
