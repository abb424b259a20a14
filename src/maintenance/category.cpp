#include "maintenance/category.h"

#include "core/category_kinds.h"
#include "core/dialogs.h"
#include "core/layout.h"
#include "core/messages.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

const CategoryKind& presentKind(Run& run) {
  return categoryKind(run.GLOBAL.gCategoryTable);
}

std::string firstSelected(const ListBox& list) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.Selected(row)) return list.List(row);
  }
  return {};
}

std::string presentChoice(Run& run, const CategoryKind& kind) {
  const bool fromBrowse = run.GLOBAL.gCategoryCaller == run.frmBrowse.Name();
  if (kind.isLinked()) {
    return firstSelected(fromBrowse ? run.frmBrowse.*kind.browseList : run.frmDetail.*kind.detailList);
  }
  return (fromBrowse ? run.frmBrowse.*kind.browseCombo : run.frmDetail.*kind.detailCombo).Text();
}

/// Removes the row that reads exactly so: a name that was typed in another case stays until the next start.
template <class List>
void removeRow(List& list, std::string_view description) {
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) != description) continue;
    list.RemoveItem(row);
    return;
  }
}

void removeFromBrowse(Run& run, const CategoryKind& kind, std::string_view description) {
  if (kind.isLinked()) {
    removeRow(run.frmBrowse.*kind.browseList, description);
  } else {
    removeRow(run.frmBrowse.*kind.browseCombo, description);
  }
}

void removeFromDetail(Run& run, const CategoryKind& kind, std::string_view description) {
  if (kind.isLinked()) {
    removeRow(run.frmDetail.*kind.detailList, description);
  } else {
    removeRow(run.frmDetail.*kind.detailCombo, description);
  }
}

void subAlreadyExists(Run& run) {
  run.loop.MsgBox("A category with this title already exists.", boxStop, captionError);
}

void subDoesNotExist(Run& run) {
  run.loop.MsgBox("Cannot update/delete as that category does not exist.", boxExclamation, captionSorry);
}

/// Whether a stored recipe has the category that the kind's cursor stands on.
bool inUse(Global& global, const CategoryKind& kind) {
  const Value id = (global.*kind.cursor).Field(kind.idField);
  if (kind.isLinked()) global.*kind.linkCursor = global.gDatabase.OpenRecordset(kind.linkTable);
  Recordset& uses = kind.isLinked() ? global.*kind.linkCursor : global.gRecipe;
  uses.Index(kind.useIndex);
  uses.Seek("=", id);
  return !uses.NoMatch();
}

/// Tells what speaks against a delete, else asks; gives whether to go on.
bool mayDelete(Run& run, const CategoryKind& kind, std::string_view description) {
  if (!seekCategory(run.GLOBAL, kind, description)) {
    subDoesNotExist(run);
    return false;
  }
  if (inUse(run.GLOBAL, kind)) {
    run.loop.MsgBox(
        "That category is being used by at least one recipe.  Please update all recipes to another category, then you "
        "can proceed with delete.",
        boxExclamation, captionSorry);
    return false;
  }
  return run.loop.MsgBox("Are you sure you want to delete this category?", boxQuestion, captionConfirmation) ==
         BoxAnswer::Yes;
}

// The texts are copies, as the box is emptied on the way.

void tryAdd(Run& run, const CategoryKind& kind, std::string description) {
  if (description.empty()) return;
  if (seekCategory(run.GLOBAL, kind, description)) {
    subAlreadyExists(run);
    return;
  }
  addCategory(run.GLOBAL, kind, description);
  addToDetail(run, kind, description);
  addToBrowse(run, kind, description);
  run.frmCategory.txtCategory.setText("");
}

void tryRename(Run& run, const CategoryKind& kind, std::string before, std::string after) {
  if (after.empty() || before.empty() || after == before) return;
  if (seekCategory(run.GLOBAL, kind, after)) {
    subAlreadyExists(run);
    return;
  }
  if (!seekCategory(run.GLOBAL, kind, before)) {
    subDoesNotExist(run);
    return;
  }
  Recordset& categories = run.GLOBAL.*kind.cursor;
  categories.Edit();
  categories.Set("Description", after);
  categories.Update();
  addToBrowse(run, kind, after);
  addToDetail(run, kind, after);
  removeFromBrowse(run, kind, before);
  removeFromDetail(run, kind, before);
}

void tryDelete(Run& run, const CategoryKind& kind, std::string description) {
  if (description.empty() || !mayDelete(run, kind, description)) return;
  if (seekCategory(run.GLOBAL, kind, description)) (run.GLOBAL.*kind.cursor).Delete();
  removeFromDetail(run, kind, description);
  markDetailLabel(run, kind);
  removeFromBrowse(run, kind, description);
  markBrowseLabel(run, kind);
  run.frmCategory.txtCategory.setText("");
}

}  // namespace

void frmCategory_Load(Run& run) {
  FrmCategory& form = run.frmCategory;
  centreForm(run, form);
  form.setCaption("Categories - " + run.GLOBAL.gCategoryTable);
  form.txtCategory.setText(Left(presentChoice(run, presentKind(run)), static_cast<long>(form.txtCategory.MaxLength())));
  form.oldCategory = form.txtCategory.Text();
}

void addTypedCategory(Run& run) {
  tryAdd(run, presentKind(run), run.frmCategory.txtCategory.Text());
  leaveCategory(run);
}

void renameCategory(Run& run) {
  tryRename(run, presentKind(run), run.frmCategory.oldCategory, run.frmCategory.txtCategory.Text());
  leaveCategory(run);
}

void deleteCategory(Run& run) {
  tryDelete(run, presentKind(run), run.frmCategory.txtCategory.Text());
  leaveCategory(run);
}

void clearCategory(Run& run) {
  run.frmCategory.txtCategory.setText("");
  run.windows.SetFocus(run.frmCategory.txtCategory);
}

void leaveCategory(Run& run) {
  leaveKeepingDetail(run, run.frmCategory);
}

}  // namespace pantrigo
