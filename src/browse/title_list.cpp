#include "browse/title_list.h"

#include "browse/recipe_commands.h"
#include "core/colours.h"
#include "core/pointer.h"
#include "core/recipes.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

void goToRow(Run& run, int row) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.setRow(row);
  titles.setListIndex(row);
  run.windows.SetFocus(titles);
}

template <class Move>
void moveWithPointer(Run& run, Move move) {
  withHourglass(run.frmBrowse, [&] { move(run.frmBrowse.lstTitles); });
}

}  // namespace

void lstTitles_DblClick(Run& run) {
  withHourglass(run.frmBrowse, [&] { openSelectedRow(run); });
}

void lstTitles_KeyDown(Run& run, int key) {
  if (key == keyReturn && run.frmBrowse.lstTitles.ListIndex() >= 0) openSelectedRow(run);
  if (key == keyDelete) subDeleteSelected(run);
}

void lstTitles_SelChange(Run& run) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.setRow(titles.ListIndex());
  if (titles.ListIndex() < 0) return;
  // The recipe may have gone since the list was built; its row then keeps the colours it has.
  if (!seekTitle(run.GLOBAL, titles.List(titles.Row()))) return;
  titles.setColours(titles.Row(), titleRowColours(run.GLOBAL.gRecipe.Field("Meal").truth()));
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
