#include "detail/toggle_meal.h"

#include "core/colours.h"
#include "core/messages.h"
#include "core/pointer.h"
#include "core/recipes.h"
#include "detail/change_tracking.h"

namespace pantrigo {

namespace {

/// The list may hold the title in another spelling, or not at all; its rows then stay as they are.
void paintListRow(Run& run, bool meal) {
  ListBox& titles = run.frmBrowse.lstTitles;
  for (int row = 0; row < titles.ListCount(); ++row) {
    if (titles.List(row) != run.frmDetail.txtTitle.Text()) continue;
    titles.setRow(row);
    titles.setColours(row, titleRowColours(meal));
    return;
  }
}

void toggle(Run& run) {
  if (funNoTitle(run)) return;
  if (!seekTitle(run.GLOBAL, run.frmDetail.txtTitle.Text())) {
    subNoSuchRecipe(run);
    return;
  }
  const bool meal = flipMeal(run.GLOBAL);
  run.frmDetail.txtTitle.setForeColor(titleColour(meal));
  paintListRow(run, meal);
}

}  // namespace

void subToggleMeal(Run& run) {
  withHourglass(run.frmDetail, [&] { toggle(run); });
}

}  // namespace pantrigo
