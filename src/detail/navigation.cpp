#include "detail/navigation.h"

#include "core/pointer.h"
#include "detail/change_tracking.h"
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

/// What every step shares: the question about changes first, the focus on the title at the end.
template <class Step>
void navigate(Run& run, Step step) {
  withHourglass(run.frmDetail, [&] {
    if (funKeepChanges(run)) return;
    step(run.frmBrowse.lstTitles);
    run.windows.SetFocus(run.frmDetail.txtTitle);
  });
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

}  // namespace pantrigo
