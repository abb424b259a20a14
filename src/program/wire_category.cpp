#include "core/messages.h"
#include "maintenance/category.h"
#include "platform/controls/input.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmCategory(Run& run) {
  FrmCategory& form = run.frmCategory;
  form.Load = [&run] { frmCategory_Load(run); };
  form.KeyPress = [&run](int key) {
    if (key == keyEscape) leaveCategory(run);
  };
  form.CloseMark = [&run] { leaveCategory(run); };
  form.cmdAdd.Click = [&run] { addTypedCategory(run); };
  form.cmdUpdate.Click = [&run] { renameCategory(run); };
  form.cmdDelete.Click = [&run] { deleteCategory(run); };
  form.cmdClear.Click = [&run] { clearCategory(run); };
  form.cmdCancel.Click = [&run] { leaveCategory(run); };
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpCategory); };
}

}  // namespace pantrigo
