#include "detail/save_recipe.h"

#include "core/colours.h"
#include "core/messages.h"
#include "core/pointer.h"
#include "core/recipes.h"
#include "detail/detail_layout.h"
#include "detail/matches_filters.h"
#include "detail/option_labels.h"
#include "detail/recipe_checks.h"
#include "detail/store_fields.h"
#include "detail/title_rows.h"

namespace pantrigo {

namespace {

void takeServesFromOptions(Run& run) {
  const Value settings = run.GLOBAL.gSystem.Field("Settings");
  run.frmDetail.txtServes.setText(settings.isNull() ? "1" : settings.text());
}

/// What is marked is written; a new recipe has everything written.
void markEverything(Global& global, bool changed) {
  global.gIngredientsChanged = changed;
  global.gMethodChanged = changed;
  global.gCommentsChanged = changed;
  global.gHealthChanged = changed;
  global.gOtherChanged = changed;
}

void storeNew(Run& run) {
  Global& global = run.GLOBAL;
  global.gSelectedTitle = run.frmDetail.txtTitle.Text();
  const long id = giveId(global, "RecipeId");
  global.gRecipe.AddNew();
  global.gRecipe.Set("RecipeId", id);
  global.gImageRecipeId = id;
  markEverything(global, true);
  subStoreRecipeFields(run);
  global.gRecipe.Update();
  global.gDetailChanged = false;
  markEverything(global, false);
}

void addNew(Run& run) {
  storeNew(run);
  offerPicture(run);
  showSettings(run);
  run.frmDetail.txtTitle.setForeColor(black);
  if (funMatchesFilters(run) != FilterVerdict::Differs) {
    run.frmBrowse.lstTitles.AddItem(run.frmDetail.txtTitle.Text());
  }
}

void add(Run& run) {
  FrmDetail& form = run.frmDetail;
  if (!canBeNamed(run)) return;
  takeServesFromOptions(run);
  if (!hasValidTimes(run)) return;
  if (seekTitle(run.GLOBAL, form.txtTitle.Text())) {
    run.loop.MsgBox("A recipe with this title already exists.", boxStop, captionError);
  } else {
    addNew(run);
  }
  run.windows.SetFocus(form.txtTitle);
  form.fmePicture.setCaption("");
}

void storeFound(Run& run) {
  const std::string& title = run.frmDetail.txtTitle.Text();
  run.GLOBAL.gRecipe.Edit();
  subStoreRecipeFields(run);
  run.GLOBAL.gRecipe.Update();
  ListBox& titles = run.frmBrowse.lstTitles;
  const int row = lastRowOf(titles, title);
  const bool listed = row >= 0;
  const bool wanted = funMatchesFilters(run) != FilterVerdict::Differs;
  if (listed && !wanted) titles.RemoveItem(row);
  if (!listed && wanted) titles.AddItem(title);
  run.GLOBAL.gDetailChanged = false;
}

/// Picture files go by the recipe's number and need no new name.
void rename(Run& run) {
  Global& global = run.GLOBAL;
  const std::string& title = run.frmDetail.txtTitle.Text();
  global.gRecipe.Edit();
  global.gRecipe.Set("Title", title);
  global.gRecipe.Update();
  ListBox& titles = run.frmBrowse.lstTitles;
  removeTitle(titles, global.gSelectedTitle);
  if (funMatchesFilters(run) != FilterVerdict::Differs) titles.AddItem(title);
  global.gDetailChanged = false;
  global.gSelectedTitle = title;
}

/// A title is typed without being marked as a change, so that it alone is a new name.
bool isTitleAloneChanged(const Run& run) {
  return run.frmDetail.txtTitle.Text() != run.GLOBAL.gSelectedTitle && !run.GLOBAL.gDetailChanged;
}

void update(Run& run) {
  Global& global = run.GLOBAL;
  TextBox& title = run.frmDetail.txtTitle;
  if (!canBeNamed(run) || !hasValidTimes(run)) return;
  if (seekTitle(global, title.Text())) {
    storeFound(run);
  } else if (isTitleAloneChanged(run) && seekTitle(global, global.gSelectedTitle)) {
    rename(run);
  } else {
    title.setText(global.gSelectedTitle);
    subNoSuchRecipe(run);
  }
}

}  // namespace

void subAddRecipe(Run& run) {
  withHourglass(run.frmDetail, [&] { add(run); });
}

void subUpdateRecipe(Run& run) {
  withHourglass(run.frmDetail, [&] { update(run); });
}

}  // namespace pantrigo
