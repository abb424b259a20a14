#include "detail/navigation.h"

#include "core/colours.h"
#include "core/messages.h"
#include "detail/change_tracking.h"
#include "detail/clear_detail.h"
#include "detail/detail_window.h"

namespace pantrigo {

namespace {

void showRow(Run& run, int row) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.setRow(row);
  titles.setListIndex(row);
  run.GLOBAL.gSelectedTitle = titles.List(titles.Row());
  frmDetail_Activate(run);
}

/// Runs a routine of the form under its hourglass.
template <class Routine>
void withPointer(Run& run, Routine routine) {
  run.frmDetail.setMousePointer(pointerHourglass);
  routine();
  run.frmDetail.setMousePointer(pointerDefault);
}

/// A navigation routine: the question about changes first, the focus on the title at the end.
template <class Move>
void navigate(Run& run, Move move) {
  withPointer(run, [&] {
    if (funKeepChanges(run)) return;
    move(run.frmBrowse.lstTitles);
    run.windows.SetFocus(run.frmDetail.txtTitle);
  });
}

void find(Run& run) {
  Global& global = run.GLOBAL;
  TextBox& title = run.frmDetail.txtTitle;
  if (funNoTitle(run)) return;
  if (funKeepChanges(run)) {
    title.setText(global.gTitleBeforeEdit);
    return;
  }
  global.gSelectedTitle = title.Text();
  global.gRecipe.Index("RecipeIdxTitle");
  global.gRecipe.Seek(">=", title.Text());
  if (global.gRecipe.NoMatch()) {
    subClearDetail(run);
    title.setText(global.gSelectedTitle);
    subNoSuchRecipe(run);
  } else {
    global.gSelectedTitle = global.gRecipe.Field("Title").text();
    frmDetail_Activate(run);
  }
  run.windows.SetFocus(title);
}

void paintListRow(Run& run, bool meal) {
  ListBox& titles = run.frmBrowse.lstTitles;
  for (int row = 0; row < titles.ListCount(); ++row) {
    if (titles.List(row) != run.frmDetail.txtTitle.Text()) continue;
    titles.setRow(row);
    titles.setColours(row, titleRowColours(meal));
    return;
  }
}

void toggleMeal(Run& run) {
  Recordset& recipes = run.GLOBAL.gRecipe;
  if (funNoTitle(run)) return;
  recipes.Index("RecipeIdxTitle");
  recipes.Seek("=", run.frmDetail.txtTitle.Text());
  if (recipes.NoMatch()) {
    subNoSuchRecipe(run);
    return;
  }
  const bool meal = !recipes.Field("Meal").truth();
  recipes.Edit();
  recipes.Set("Meal", meal);
  recipes.Update();
  run.frmDetail.txtTitle.setForeColor(titleColour(meal));
  paintListRow(run, meal);
}

}  // namespace

void subFirstRecipe(Run& run) {
  navigate(run, [&](const ListBox& titles) {
    if (titles.ListCount() > 0) showRow(run, 0);
  });
}

void subLastRecipe(Run& run) {
  navigate(run, [&](const ListBox& titles) {
    if (titles.ListCount() > 0) showRow(run, titles.ListCount() - 1);
  });
}

void subPreviousRecipe(Run& run) {
  navigate(run, [&](const ListBox& titles) {
    run.GLOBAL.gListIndex = titles.ListIndex() < 1 ? 1 : titles.ListIndex();
    if (titles.ListCount() > 0) showRow(run, static_cast<int>(run.GLOBAL.gListIndex) - 1);
  });
}

void subNextRecipe(Run& run) {
  navigate(run, [&](const ListBox& titles) {
    const int count = titles.ListCount();
    const int index = titles.ListIndex() == count - 1 ? count - 2 : titles.ListIndex();
    run.GLOBAL.gListIndex = index;
    if (count > 0 && index < count - 1) showRow(run, index + 1);
  });
}

void subFindRecipe(Run& run) {
  withPointer(run, [&] { find(run); });
}

void subToggleMeal(Run& run) {
  withPointer(run, [&] { toggleMeal(run); });
}

}  // namespace pantrigo
