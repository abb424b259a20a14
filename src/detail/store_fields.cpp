#include "detail/store_fields.h"

#include <utility>

#include "core/category_kinds.h"
#include "core/recipes.h"
#include "detail/ingredient_text.h"
#include "measures/show_ingredients.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// Kilojoules in one of the calories that a person types.
constexpr double kilojoulesPerCalorie = 4.1868;

/// The id of a category by its description, which was checked before the save. Error 3021 for one that has gone.
Value categoryId(Global& global, const CategoryKind& kind, const std::string& description) {
  static_cast<void>(seekCategory(global, kind, description));
  return (global.*kind.cursor).Field(kind.idField);
}

void storeCategory(Run& run, const CategoryKind& kind) {
  const std::string& description = (run.frmDetail.*kind.detailCombo).Text();
  run.GLOBAL.gRecipe.Set(kind.name, description.empty() ? Value() : categoryId(run.GLOBAL, kind, description));
}

/// A recipe that comes to serve another number is scaled anew, so that the lines on show follow.
void storeServes(Run& run) {
  Recordset& recipe = run.GLOBAL.gRecipe;
  const std::string& serves = run.frmDetail.txtServes.Text();
  const bool isMakes = run.frmDetail.lblServes.Caption() == "Makes";
  if (serves != recipe.Field("Serves").text() || isMakes != recipe.Field("Makes").truth()) {
    recipe.Set("Serves", serves);
    subShowIngredients(run, "s", isMakes);
  }
  recipe.Set("Makes", isMakes);
  recipe.Set("Serves", serves);
}

/// Whether something was changed since it was last written; it no longer counts as changed.
bool takeChanged(bool& changed) {
  return std::exchange(changed, false);
}

void storeLinks(Run& run, const CategoryKind& kind) {
  Global& global = run.GLOBAL;
  const Value recipeId = global.gRecipe.Field("RecipeId");
  deleteRowsOfRecipe(global, kind.linkTable, recipeId.text());
  Recordset& links = global.*kind.linkCursor;
  links = global.gDatabase.OpenRecordset(kind.linkTable);
  const ListBox& list = run.frmDetail.*kind.detailList;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (!list.Selected(row)) continue;
    const Value id = categoryId(global, kind, list.List(row));
    links.AddNew();
    links.Set("RecipeId", recipeId);
    links.Set(kind.idField, id);
    links.Update();
  }
}

/// The load takes stored energy as it is, so in calories each save multiplies what the last one stored.
void storeNutrition(Run& run) {
  Global& global = run.GLOBAL;
  for (const NutritionValue& nutrition : nutritionValues) {
    global.gRecipe.Set(nutrition.field, global.*nutrition.value);
  }
  if (global.gSystem.Field("Kilojoules").truth()) return;
  global.gRecipe.Set("Energy", shortest(global.gEnergy) * kilojoulesPerCalorie);
}

}  // namespace

void subStoreRecipeFields(Run& run) {
  Global& global = run.GLOBAL;
  FrmDetail& form = run.frmDetail;
  Recordset& recipe = global.gRecipe;
  recipe.Set("Title", form.txtTitle.Text());
  for (const CategoryKind& kind : categoryKinds()) {
    if (!kind.isLinked()) storeCategory(run, kind);
  }
  storeServes(run);
  recipe.Set("PrepareTime", Val(form.txtPrepareTime.Text()));
  recipe.Set("CookTime", Val(form.txtCookTime.Text()));
  if (takeChanged(global.gCommentsChanged)) recipe.Set("Comment", form.txtComments.Text());
  recipe.Set("ConvertCupSpoon", global.gConvertCupSpoon != "0");
  if (takeChanged(global.gIngredientsChanged)) recipe.Set("Ingredients", storedIngredients(run));
  if (takeChanged(global.gMethodChanged)) recipe.Set("Method", form.txtMethod.Text());
  if (takeChanged(global.gHealthChanged)) storeLinks(run, categoryKind("Health"));
  if (takeChanged(global.gOtherChanged)) storeLinks(run, categoryKind("Other"));
  storeNutrition(run);
  recipe.Set("Source", global.gSource);
  run.windows.SetFocus(form.txtTitle);
}

}  // namespace pantrigo
