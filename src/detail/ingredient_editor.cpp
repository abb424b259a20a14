#include "detail/ingredient_editor.h"

#include <algorithm>

#include "core/layout.h"
#include "core/messages.h"
#include "detail/ingredient_list.h"
#include "detail/ingredient_units.h"
#include "measures/quantity.h"
#include "platform/controls/input.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

/// Most characters of a unit, with any weight in brackets.
constexpr std::size_t longestUnit = 15;

bool anythingTyped(const FrmIngredient& form) {
  return !form.txtQuantity.Text().empty() || !form.cmbUnit.Text().empty() || !form.txtDescription.Text().empty() ||
         !form.txtPreparation.Text().empty();
}

void fillBoxes(FrmIngredient& form, const IngredientRow& row) {
  form.txtQuantity.setText(row[5]);
  form.cmbUnit.setText(row[6]);
  form.txtDescription.setText(row[3]);
  form.txtPreparation.setText(row[4]);
}

/// The row of a line; an empty one when no line is current, and for a line behind the end of the table, as a list has
/// it whose rows were replaced since it was made.
IngredientRow rowOfLine(const Run& run, int line) {
  const std::vector<IngredientRow>& rows = run.GLOBAL.gIngredientRows;
  return line >= 0 && static_cast<std::size_t>(line) < rows.size() ? rows[static_cast<std::size_t>(line)]
                                                                   : IngredientRow();
}

void showLine(Run& run, int line) {
  fillBoxes(run.frmIngredient, rowOfLine(run, line));
  run.frmDetail.lstIngredient.setListIndex(line);
}

/// Writes the boxes into the row of a line: the base amount is what was typed until the recipe is saved.
void storeRow(Run& run, int line) {
  const FrmIngredient& form = run.frmIngredient;
  run.GLOBAL.gConvertCupSpoon = form.chkConvertCupSpoon.Value() ? "1" : "0";
  std::vector<IngredientRow>& rows = run.GLOBAL.gIngredientRows;
  const auto place = static_cast<std::size_t>(line);
  if (rows.size() <= place) rows.resize(place + 1);
  IngredientRow& row = rows[place];
  row[1] = row[5] = form.txtQuantity.Text();
  row[2] = row[6] = form.cmbUnit.Text();
  row[3] = form.txtDescription.Text();
  row[4] = form.txtPreparation.Text();
}

/// Moves the rows behind that of a line up to the row of the last line, which becomes empty and stays in the table.
void removeRow(Run& run, int line) {
  std::vector<IngredientRow>& rows = run.GLOBAL.gIngredientRows;
  const std::size_t end = std::min(static_cast<std::size_t>(run.frmDetail.lstIngredient.ListCount()), rows.size());
  const auto place = static_cast<std::size_t>(line);
  if (place >= end) return;
  for (std::size_t row = place + 1; row < end; ++row) rows[row - 1] = rows[row];
  rows[end - 1] = IngredientRow();
}

void markChanged(Run& run) {
  run.GLOBAL.gDetailChanged = true;
  run.GLOBAL.gIngredientsChanged = true;
}

}  // namespace

void frmIngredient_Load(Run& run) {
  FrmIngredient& form = run.frmIngredient;
  centreForm(run, form);
  fillUnits(run);
  const ListBox& list = run.frmDetail.lstIngredient;
  fillBoxes(form, rowOfLine(run, list.ListIndex()));
  form.chkConvertCupSpoon.setValue(list.ListCount() > 0 && run.GLOBAL.gConvertCupSpoon == "1");
  enableCupSpoon(run);
}

void frmIngredient_Activate(Run& run) {
  run.windows.SetFocus(run.frmIngredient.txtQuantity);
}

void frmIngredient_KeyPress(Run& run, int key) {
  if (key == keyEscape) leaveIngredient(run);
}

void leaveIngredient(Run& run) {
  run.windows.Unload(run.frmIngredient);
}

void txtQuantity_GotFocus(Run& run) {
  const FrmDetail& detail = run.frmDetail;
  const bool serves = detail.lblServes.Caption() == "Serves";
  run.frmIngredient.lblMessage.setCaption(
      serves ? "Remember that the quantity/unit entered should relate to what is entered in the 'Serves' field; "
               "currently set at " +
                   detail.txtServes.Text() + "."
             : "");
}

void cmbUnit_GotFocus(Run& run) {
  run.frmIngredient.lblMessage.setCaption(
      "Ingredient changes are not permanent; you need to update (or add, for new recipes) before exiting the 'Recipe "
      "Detail' screen.");
}

bool funValidIngredient(Run& run) {
  FrmIngredient& form = run.frmIngredient;
  if (Len(form.cmbUnit.Text()) > longestUnit) {
    run.loop.MsgBox("Unit of measure must not be greater than 15 characters.", boxStop, captionError);
    run.windows.SetFocus(form.cmbUnit);
    return false;
  }
  const std::string quantity = funFractionToDecimal(form.txtQuantity.Text());
  if (!quantity.empty() && !IsNumeric(quantity)) {
    run.loop.MsgBox("Quantity must be numeric and only selected fractions are allowed.", boxStop, captionError);
    run.windows.SetFocus(form.txtQuantity);
    return false;
  }
  return true;
}

void subClearIngredient(Run& run) {
  fillBoxes(run.frmIngredient, IngredientRow());
  run.windows.SetFocus(run.frmIngredient.txtQuantity);
}

void addIngredient(Run& run) {
  if (!funValidIngredient(run) || !anythingTyped(run.frmIngredient)) return;
  storeRow(run, run.frmDetail.lstIngredient.ListCount());
  ++run.GLOBAL.gIngredientLast;
  markChanged(run);
  rebuildLines(run);
  subClearIngredient(run);
}

void updateIngredient(Run& run) {
  if (!funValidIngredient(run) || !anythingTyped(run.frmIngredient)) return;
  const int line = run.frmDetail.lstIngredient.ListIndex();
  if (line < 0) return;
  storeRow(run, line);
  run.GLOBAL.gListIndex = line;
  markChanged(run);
  rebuildLines(run);
  showLine(run, line);
}

void deleteIngredient(Run& run) {
  ListBox& list = run.frmDetail.lstIngredient;
  Global& global = run.GLOBAL;
  const int line = list.ListIndex();
  if (line < 0 || !anythingTyped(run.frmIngredient)) return;
  removeRow(run, line);
  --global.gIngredientLast;
  global.gListIndex = line;
  list.RemoveItem(line);
  markChanged(run);
  rebuildLines(run);
  subClearIngredient(run);
  if (list.ListCount() == 0) return;
  global.gListIndex = std::min<long>(global.gListIndex, list.ListCount() - 1);
  showLine(run, static_cast<int>(global.gListIndex));
}

void previousIngredient(Run& run) {
  const int line = run.frmDetail.lstIngredient.ListIndex();
  if (line >= 1) showLine(run, line - 1);
  enableCupSpoon(run);
}

void nextIngredient(Run& run) {
  const ListBox& list = run.frmDetail.lstIngredient;
  if (list.ListIndex() < list.ListCount() - 1) showLine(run, list.ListIndex() + 1);
  enableCupSpoon(run);
}

}  // namespace pantrigo
