#include "browse/recipe_commands.h"

#include "core/colours.h"
#include "core/messages.h"
#include "core/pointer.h"
#include "core/recipes.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

bool hasSelection(Run& run) {
  return run.frmBrowse.lstTitles.ListIndex() >= 0;
}

std::string selectedTitle(Run& run) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.setRow(titles.ListIndex());
  return titles.List(titles.Row());
}

void removeSelectedRow(Run& run) {
  ListBox& titles = run.frmBrowse.lstTitles;
  run.GLOBAL.gListIndex = titles.ListIndex();
  titles.RemoveItem(titles.ListIndex());
  const int remaining = titles.ListCount();
  run.frmBrowse.fmeList.setCaption(plainText(static_cast<long>(remaining)) + " recipe(s) displayed");
  if (remaining == 0) return;
  const int index = static_cast<int>(run.GLOBAL.gListIndex);
  titles.setListIndex(index == remaining ? 0 : index);
  run.windows.SetFocus(titles);
}

}  // namespace

void subOpenBlankDetail(Run& run) {
  run.GLOBAL.gSelectedTitle.clear();
  run.GLOBAL.gKeepDetailOnActivate = false;
  run.windows.Show(run.frmDetail);
}

void openSelectedRow(Run& run) {
  run.GLOBAL.gKeepDetailOnActivate = false;
  run.GLOBAL.gSelectedTitle = selectedTitle(run);
  run.windows.Show(run.frmDetail);
}

void subOpenSelected(Run& run) {
  if (!hasSelection(run)) {
    subSelectRecipe(run);
    return;
  }
  openSelectedRow(run);
}

void subDeleteSelected(Run& run) {
  withHourglass(run.frmBrowse, [&] {
    if (!hasSelection(run)) {
      subSelectRecipe(run);
      return;
    }
    run.GLOBAL.gSelectedTitle = selectedTitle(run);
    subDeleteTitle(run);
  });
}

void subDeleteTitle(Run& run) {
  if (funConfirmDelete(run) != BoxAnswer::Yes) return;
  // A title that is gone leaves no current row, which reading its id reports.
  static_cast<void>(seekTitle(run.GLOBAL, run.GLOBAL.gSelectedTitle));
  const std::string recipeId = run.GLOBAL.gRecipe.Field("RecipeId").text();
  guarded([&] { run.files.Kill(recipeId + ".BMP"); });
  deleteRecipe(run.GLOBAL, recipeId);
  removeSelectedRow(run);
}

void subListToggleMeal(Run& run) {
  withHourglass(run.frmBrowse, [&] {
    if (!hasSelection(run)) {
      subSelectRecipe(run);
      return;
    }
    static_cast<void>(seekTitle(run.GLOBAL, selectedTitle(run)));
    const bool meal = flipMeal(run.GLOBAL);
    run.frmBrowse.lstTitles.setColours(run.frmBrowse.lstTitles.Row(), titleRowColours(meal));
  });
}

}  // namespace pantrigo
