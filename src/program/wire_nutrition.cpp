#include "core/messages.h"
#include "detail/nutrition.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmNutrition(Run& run) {
  FrmNutrition& form = run.frmNutrition;
  form.Load = [&run] { frmNutrition_Load(run); };
  form.Activate = [&run] { run.windows.SetFocus(run.frmNutrition.txtEnergy); };
  form.cmdOK.Click = [&run] { takeNutritionValues(run); };
  form.cmdCancel.Click = [&run] { cancelNutrition(run); };
  form.cmdClear.Click = [&run] { clearNutrition(run); };
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpNutrition); };
}

}  // namespace pantrigo
