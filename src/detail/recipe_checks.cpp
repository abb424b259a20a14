#include "detail/recipe_checks.h"

#include "core/category_kinds.h"
#include "core/messages.h"
#include "detail/change_tracking.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// Whether the box of a single-valued kind holds a text that is no category of it. An empty box is no text.
bool funNoSuchCategory(Run& run, const CategoryKind& kind) {
  const std::string& description = (run.frmDetail.*kind.detailCombo).Text();
  if (description.empty() || seekCategory(run.GLOBAL, kind, description)) return false;
  run.loop.MsgBox(std::string(kind.name) +
                      " category does not exist.  Please select from existing list or add new category, then try "
                      "again.",
                  boxStop, captionError);
  return true;
}

bool haveKnownCategories(Run& run) {
  for (const CategoryKind& kind : categoryKinds()) {
    if (!kind.isLinked() && funNoSuchCategory(run, kind)) return false;
  }
  return true;
}

/// The filters of the main window read both characters as wildcards, so a title that held one could not be looked for.
bool hasValidTitle(Run& run) {
  if (run.frmDetail.txtTitle.Text().find_first_of("*?") == std::string::npos) return true;
  run.loop.MsgBox("Invalid characters in recipe title.", boxStop, captionError);
  run.windows.SetFocus(run.frmDetail.txtTitle);
  return false;
}

bool isNumberOrEmpty(Run& run, TextBox& box) {
  if (box.Text().empty() || IsNumeric(box.Text())) return true;
  subNotNumeric(run);
  run.windows.SetFocus(box);
  return false;
}

}  // namespace

bool canBeNamed(Run& run) {
  return !funNoTitle(run) && haveKnownCategories(run) && hasValidTitle(run) &&
         isNumberOrEmpty(run, run.frmDetail.txtServes);
}

bool hasValidTimes(Run& run) {
  return isNumberOrEmpty(run, run.frmDetail.txtPrepareTime) && isNumberOrEmpty(run, run.frmDetail.txtCookTime);
}

}  // namespace pantrigo
