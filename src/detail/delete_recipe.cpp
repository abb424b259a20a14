#include "detail/delete_recipe.h"

#include "core/messages.h"
#include "core/pointer.h"
#include "core/recipes.h"
#include "detail/change_tracking.h"
#include "detail/clear_detail.h"
#include "detail/detail_window.h"
#include "detail/title_rows.h"

namespace pantrigo {

namespace {

/// The names of a recipe's pictures go on without a gap; what lies behind one is not found.
void deletePictures(Run& run, const std::string& recipeId) {
  Global& global = run.GLOBAL;
  global.gExportSuffix.clear();
  while (true) {
    const std::string file = Files::join(global.gStartDir, recipeId + global.gExportSuffix + ".bmp");
    if (run.files.Dir(file).empty()) return;
    run.files.Kill(file);
    global.gExportSuffix = nextPictureSuffix(global.gExportSuffix);
  }
}

/// Takes the title off the list, and selects the row to be shown next.
void goToNextRow(Run& run) {
  Global& global = run.GLOBAL;
  ListBox& titles = run.frmBrowse.lstTitles;
  global.gListIndex = titles.ListIndex();
  removeTitle(titles, run.frmDetail.txtTitle.Text());
  global.gSelectedTitle.clear();
  const int count = titles.ListCount();
  if (count == 0) return;
  titles.setListIndex(global.gListIndex == count ? 0 : static_cast<int>(global.gListIndex));
  global.gSelectedTitle = titles.List(titles.ListIndex());
}

void subDeleteRecipe(Run& run) {
  Global& global = run.GLOBAL;
  FrmDetail& form = run.frmDetail;
  if (!seekTitle(global, form.txtTitle.Text())) {
    subNoSuchRecipe(run);
    run.windows.SetFocus(form.txtTitle);
    return;
  }
  const std::string recipeId = global.gRecipe.Field("RecipeId").text();
  if (funConfirmDelete(run) != BoxAnswer::Yes) return;
  deletePictures(run, recipeId);
  deleteRecipe(global, recipeId);
  goToNextRow(run);
  subClearDetail(run);
  run.windows.SetFocus(form.txtTitle);
  frmDetail_Activate(run);
}

}  // namespace

void subDeleteRequest(Run& run) {
  withHourglass(run.frmDetail, [&] {
    if (!funNoTitle(run)) subDeleteRecipe(run);
  });
}

}  // namespace pantrigo
