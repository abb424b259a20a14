#include "detail/find_recipe.h"

#include "core/messages.h"
#include "core/pointer.h"
#include "detail/change_tracking.h"
#include "detail/clear_detail.h"
#include "detail/detail_window.h"

namespace pantrigo {

namespace {

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

}  // namespace

void subFindRecipe(Run& run) {
  withHourglass(run.frmDetail, [&] { find(run); });
}

}  // namespace pantrigo
