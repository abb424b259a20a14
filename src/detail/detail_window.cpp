#include "detail/detail_window.h"

#include "core/category_kinds.h"
#include "core/colours.h"
#include "core/layout.h"
#include "detail/change_tracking.h"
#include "detail/clear_detail.h"
#include "detail/detail_layout.h"
#include "detail/navigation.h"
#include "detail/show_recipe.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// The General and Comments groups are placed by the two layouts; everything else is enlarged once.
void scaleControls(Run& run) {
  FrmDetail& form = run.frmDetail;
  for (Control* control : form.controls()) {
    const bool placedByLayout = control->container() == &form.fmeGeneral || control->container() == &form.fmeComments;
    if (control->kind() != ControlKind::MenuEntry && !placedByLayout) control->scale(run.GLOBAL.gScale);
  }
}

void copyCategoryLists(Run& run) {
  for (const CategoryKind& kind : categoryKinds()) {
    for (const std::string& description : browseRows(run, kind)) addToDetail(run, kind, description);
  }
}

}  // namespace

void frmDetail_Load(Run& run) {
  Global& global = run.GLOBAL;
  FrmDetail& form = run.frmDetail;
  placeForm(run, form, global.gScale);
  sizeToolBar(run, form.tbDetail, form.ilDetail, form.ilDetail1);
  scaleControls(run);
  form.txtTitle.setText(global.gSelectedTitle);
  copyCategoryLists(run);
  global.gDetailChanged = false;
  global.gIngredientsChanged = false;
  global.gMethodChanged = false;
  global.gCommentsChanged = false;
  global.gKeepDetailOnActivate = true;
  subShowRecipe(run);
  guarded([&] { run.windows.Hide(form); });
}

void frmDetail_Activate(Run& run) {
  if (run.GLOBAL.gKeepDetailOnActivate) {
    run.GLOBAL.gKeepDetailOnActivate = false;
    return;
  }
  subShowRecipe(run);
}

void frmDetail_KeyDown(Run& run, int key) {
  if (key == keyPageUp) subPreviousRecipe(run);
  if (key == keyPageDown) subNextRecipe(run);
}

void frmDetail_KeyPress(Run& run, int key) {
  if (key == keyEscape) leaveDetail(run);
}

void leaveDetail(Run& run) {
  if (!funKeepChanges(run)) run.windows.Hide(run.frmDetail);
}

void clearRecipe(Run& run) {
  if (funKeepChanges(run)) return;
  run.frmDetail.txtTitle.setForeColor(black);
  subLayoutNoPicture(run);
  subClearDetail(run);
  run.GLOBAL.gSelectedTitle.clear();
  run.windows.SetFocus(run.frmDetail.txtTitle);
}

}  // namespace pantrigo
