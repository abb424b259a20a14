#include "browse/title_list.h"

#include "browse/recipe_commands.h"
#include "core/colours.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

void openCurrentRow(Run& run) {
  ListBox& titles = run.frmBrowse.lstTitles;
  run.GLOBAL.gKeepDetailOnActivate = false;
  titles.setRow(titles.ListIndex());
  run.GLOBAL.gSelectedTitle = titles.List(titles.Row());
  run.windows.Show(run.frmDetail);
}

void goToRow(Run& run, int row) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.setRow(row);
  titles.setListIndex(row);
  run.windows.SetFocus(titles);
}

/// Runs a move under the window's hourglass.
template <class Move>
void moveWithPointer(Run& run, Move move) {
  run.frmBrowse.setMousePointer(pointerHourglass);
  move(run.frmBrowse.lstTitles);
  run.frmBrowse.setMousePointer(pointerDefault);
}

}  // namespace

void lstTitles_DblClick(Run& run) {
  run.frmBrowse.setMousePointer(pointerHourglass);
  openCurrentRow(run);
  run.frmBrowse.setMousePointer(pointerDefault);
}

void lstTitles_KeyDown(Run& run, int key) {
  if (key == keyReturn && run.frmBrowse.lstTitles.ListIndex() >= 0) openCurrentRow(run);
  if (key == keyDelete) subDeleteSelected(run);
}

void lstTitles_SelChange(Run& run) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.setRow(titles.ListIndex());
  if (titles.ListIndex() < 0) return;
  Recordset& recipes = run.GLOBAL.gRecipe;
  recipes.Index("RecipeIdxTitle");
  recipes.Seek("=", titles.List(titles.Row()));
  // The recipe may have gone since the list was built; its row then keeps the colours it has.
  if (recipes.NoMatch()) return;
  titles.setColours(titles.Row(), titleRowColours(recipes.Field("Meal").truth()));
}

void subListFirst(Run& run) {
  moveWithPointer(run, [&](const ListBox& titles) {
    if (titles.ListCount() > 0) goToRow(run, 0);
  });
}

void subListLast(Run& run) {
  moveWithPointer(run, [&](const ListBox& titles) {
    if (titles.ListCount() > 0) goToRow(run, titles.ListCount() - 1);
  });
}

void subListNext(Run& run) {
  moveWithPointer(run, [&](const ListBox& titles) {
    run.GLOBAL.gListIndex = titles.ListIndex();
    if (titles.ListIndex() < titles.ListCount() - 1) goToRow(run, titles.ListIndex() + 1);
  });
}

void subListPrevious(Run& run) {
  moveWithPointer(run, [&](const ListBox& titles) {
    run.GLOBAL.gListIndex = titles.ListIndex();
    if (titles.ListIndex() >= 1) {
      goToRow(run, titles.ListIndex() - 1);
    } else if (titles.ListCount() > 0) {
      goToRow(run, 0);
    }
  });
}

}  // namespace pantrigo
