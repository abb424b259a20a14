#include "core/recipes.h"

namespace pantrigo {

bool seekTitle(Global& global, std::string_view title) {
  global.gRecipe.Index("RecipeIdxTitle");
  global.gRecipe.Seek("=", title);
  return !global.gRecipe.NoMatch();
}

bool flipMeal(Global& global) {
  const bool meal = !global.gRecipe.Field("Meal").truth();
  global.gRecipe.Edit();
  global.gRecipe.Set("Meal", meal);
  global.gRecipe.Update();
  return meal;
}

long giveId(Global& global, std::string_view counter) {
  Recordset& system = global.gSystem;
  const long id = static_cast<long>(system.Field(counter).whole()) + 1;
  system.Edit();
  system.Set(counter, id);
  system.Update();
  return id;
}

void deleteRowsOfRecipe(Global& global, std::string_view table, std::string_view recipeId) {
  global.gSqlText = " Delete FROM ";
  global.gSqlText.append(table).append(" WHERE ").append(table).append("!RecipeId = ").append(recipeId);
  global.gDatabase.Execute(global.gSqlText);
}

void deleteRecipe(Global& global, std::string_view recipeId) {
  for (const std::string_view table : {"RecipeHealth", "RecipeOther", "Recipe"}) {
    deleteRowsOfRecipe(global, table, recipeId);
  }
}

std::string nextPictureSuffix(std::string_view suffix) {
  return suffix.empty() ? "a" : std::string(1, static_cast<char>(suffix.front() + 1));
}

}  // namespace pantrigo
