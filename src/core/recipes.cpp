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

}  // namespace pantrigo
