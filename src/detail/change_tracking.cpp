#include "detail/change_tracking.h"

#include "core/category_kinds.h"
#include "core/messages.h"

namespace pantrigo {

namespace {

void listClicked(Run& run, const CategoryKind& kind, bool Global::*changed) {
  markDetailLabel(run, kind);
  run.GLOBAL.gDetailChanged = true;
  run.GLOBAL.*changed = true;
}

}  // namespace

bool funKeepChanges(Run& run) {
  if (!run.GLOBAL.gDetailChanged) return false;
  const BoxAnswer answer =
      run.loop.MsgBox("Any changes made will be lost. Proceed with request?", boxQuestion, captionConfirmation);
  if (answer == BoxAnswer::No) return true;
  run.GLOBAL.gDetailChanged = false;
  return false;
}

bool funNoTitle(Run& run) {
  if (!run.frmDetail.txtTitle.Text().empty()) return false;
  subSelectRecipe(run);
  return true;
}

void detailChanged(Run& run) {
  run.GLOBAL.gDetailChanged = true;
}

void txtComments_Change(Run& run) {
  run.GLOBAL.gDetailChanged = true;
  run.GLOBAL.gCommentsChanged = true;
}

void txtMethod_Change(Run& run) {
  run.GLOBAL.gDetailChanged = true;
  run.GLOBAL.gMethodChanged = true;
}

void lstHealth_Click(Run& run) {
  listClicked(run, categoryKind("Health"), &Global::gHealthChanged);
}

void lstOther_Click(Run& run) {
  listClicked(run, categoryKind("Other"), &Global::gOtherChanged);
}

void lblServes_Click(Run& run) {
  run.GLOBAL.gDetailChanged = true;
  Label& serves = run.frmDetail.lblServes;
  serves.setCaption(serves.Caption() == "Serves" ? "Makes" : "Serves");
}

}  // namespace pantrigo
