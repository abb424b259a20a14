#include "core/messages.h"
#include "detail/ingredient_editor.h"
#include "detail/ingredient_units.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmIngredient(Run& run) {
  FrmIngredient& form = run.frmIngredient;
  form.Load = [&run] { frmIngredient_Load(run); };
  form.Activate = [&run] { frmIngredient_Activate(run); };
  form.KeyPress = [&run](int key) { frmIngredient_KeyPress(run, key); };
  form.txtQuantity.GotFocus = [&run] { txtQuantity_GotFocus(run); };
  form.cmbUnit.GotFocus = [&run] { cmbUnit_GotFocus(run); };
  form.cmbUnit.LostFocus = [&run] { normaliseUnit(run); };
  form.cmdPrevious.Click = [&run] { previousIngredient(run); };
  form.cmdNext.Click = [&run] { nextIngredient(run); };
  form.cmdAdd.Click = [&run] { addIngredient(run); };
  form.cmdUpdate.Click = [&run] { updateIngredient(run); };
  form.cmdDelete.Click = [&run] { deleteIngredient(run); };
  form.cmdClear.Click = [&run] { subClearIngredient(run); };
  form.cmdCancel.Click = [&run] { leaveIngredient(run); };
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpIngredient); };
}

}  // namespace pantrigo
