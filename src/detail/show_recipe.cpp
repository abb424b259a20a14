#include "detail/show_recipe.h"

#include "core/category_kinds.h"
#include "core/colours.h"
#include "core/recipes.h"
#include "detail/clear_detail.h"
#include "detail/detail_layout.h"
#include "detail/option_labels.h"
#include "measures/ingredient_rows.h"
#include "measures/quantity.h"
#include "measures/show_ingredients.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

void showTitle(Run& run) {
  const Recordset& recipe = run.GLOBAL.gRecipe;
  run.frmDetail.txtTitle.setForeColor(titleColour(recipe.Field("Meal").truth()));
  run.frmDetail.txtTitle.setText(recipe.Field("Title").text());
}

void showPicture(Run& run) {
  FrmDetail& form = run.frmDetail;
  const std::string recipeId = run.GLOBAL.gRecipe.Field("RecipeId").text();
  const std::string fileName = recipeId + ".BMP";
  if (run.files.Dir(fileName).empty()) {
    form.fmePicture.setCaption("");
    offerPicture(run);
    return;
  }
  form.lblPicture.setVisible(false);
  form.imgPhoto.setPicture(run.toolkit.LoadPicture(run.files, fileName));
  form.imgPhoto.setVisible(true);
  const bool hasFurther = !run.files.Dir(recipeId + "a.BMP").empty();
  form.fmePicture.setCaption(fileName + (hasFurther ? "~" : ""));
  layoutWithPicture(run);
}

void showSingleCategory(Run& run, const CategoryKind& kind) {
  const Value id = run.GLOBAL.gRecipe.Field(kind.name);
  (run.frmDetail.*kind.detailCombo).setText(categoryDescription(run.GLOBAL, kind, id));
}

/// Selects the row of a category the recipe is linked to, and marks the label.
void selectLinkedCategory(Run& run, const CategoryKind& kind, const Value& id) {
  Recordset& categories = run.GLOBAL.*kind.cursor;
  categories.Index(kind.idIndex);
  categories.Seek("=", id);
  if (categories.NoMatch()) return;
  const std::string description = categories.Field("Description").text();
  ListBox& list = run.frmDetail.*kind.detailList;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) != description) continue;
    list.setSelected(row, true);
    markDetailLabel(run, kind);
    return;
  }
}

void showLinkedCategories(Run& run, const CategoryKind& kind) {
  ListBox& list = run.frmDetail.*kind.detailList;
  (run.frmDetail.*kind.detailLabel).setCaption(kind.labelCaption);
  list.clearSelection();
  Recordset& links = run.GLOBAL.*kind.linkCursor;
  links = run.GLOBAL.gDatabase.OpenRecordset(kind.linkTable);
  links.Index(kind.linkRecipeIndex);
  const Value recipeId = run.GLOBAL.gRecipe.Field("RecipeId");
  links.Seek("=", recipeId);
  if (!links.NoMatch()) {
    for (; !links.Eof() && links.Field("RecipeId") == recipeId; links.MoveNext()) {
      selectLinkedCategory(run, kind, links.Field(kind.idField));
    }
  }
  if (list.ListCount() > 0) list.setTopIndex(0);
}

void showCategories(Run& run) {
  for (const CategoryKind& kind : categoryKinds()) {
    if (kind.isLinked()) {
      showLinkedCategories(run, kind);
    } else {
      showSingleCategory(run, kind);
    }
  }
}

/// A time in minutes; 0 and Null show as an empty box.
std::string timeText(const Value& minutes) {
  return minutes.aboveEmpty() ? Format(minutes.number(), "#####") : std::string();
}

void showGeneral(Run& run) {
  FrmDetail& form = run.frmDetail;
  const Recordset& recipe = run.GLOBAL.gRecipe;
  form.txtServes.setText(recipe.Field("Serves").text());
  form.lblServes.setCaption(recipe.Field("Makes").truth() ? "Makes" : "Serves");
  form.txtPrepareTime.setText(timeText(recipe.Field("PrepareTime")));
  form.txtCookTime.setText(timeText(recipe.Field("CookTime")));
  form.txtComments.setText(recipe.Field("Comment").text());
  showMeasurement(run);
  run.GLOBAL.gConvertCupSpoon = recipe.Field("ConvertCupSpoon").truth() ? "1" : "0";
  showSettings(run);
  showMovedGroups(run);
}

void showIngredients(Run& run) {
  const Recordset& recipe = run.GLOBAL.gRecipe;
  readIngredientRows(run, recipe.Field("Ingredients").text());
  subShowIngredients(run, "s", Value(recipe.Field("Makes")));
  if (run.frmDetail.lstIngredient.ListCount() > 0) run.frmDetail.lstIngredient.setTopIndex(0);
}

void takeNutrition(Run& run) {
  bool given = false;
  for (const NutritionValue& nutrition : nutritionValues) {
    const Value& stored = run.GLOBAL.gRecipe.Field(nutrition.field);
    const float value = stored.aboveEmpty() ? toSingle(stored.number()) : 0;
    run.GLOBAL.*nutrition.value = value;
    given = given || value > 0;
  }
  run.frmDetail.mnuNutrition.setCaption(given ? "Nu&trition~" : "Nu&trition");
}

/// An empty source can be clicked; one that is given stands in the frame's caption and can't be altered.
void showSource(Run& run) {
  FrmDetail& form = run.frmDetail;
  const std::string source = run.GLOBAL.gRecipe.Field("Source").text();
  const bool given = !Trim(source).empty();
  form.fmeTitle.setCaption(given ? "Source: " + source : "");
  run.GLOBAL.gSource = given ? source : "";
  form.mnuSource.setEnabled(!given);
  form.fmeTitle.setMousePointer(given ? pointerDefault : pointerCustom);
}

}  // namespace

void subShowRecipe(Run& run) {
  Global& global = run.GLOBAL;
  FrmDetail& form = run.frmDetail;
  global.gExportSuffix.clear();
  if (global.gSelectedTitle.empty()) {
    subLayoutNoPicture(run);
    subClearDetail(run);
    return;
  }
  form.lstHealth.clearSelection();
  form.lstOther.clearSelection();
  // The two list flags stay: a discarded list change is still flagged for the next recipe, whose update then writes its
  // links anew.
  global.gIngredientsChanged = false;
  global.gMethodChanged = false;
  global.gCommentsChanged = false;
  global.gTitleBeforeEdit = form.txtTitle.Text();
  if (!seekTitle(global, global.gSelectedTitle)) return;
  showTitle(run);
  showPicture(run);
  showCategories(run);
  showGeneral(run);
  showIngredients(run);
  form.txtMethod.setText(global.gRecipe.Field("Method").text());
  takeNutrition(run);
  showSource(run);
  global.gDetailChanged = false;
}

}  // namespace pantrigo
