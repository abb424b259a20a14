#include "core/messages.h"
#include "maintenance/options.h"
#include "platform/controls/input.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmOptions(Run& run) {
  FrmOptions& form = run.frmOptions;
  const auto cancel = [&run] { run.windows.Unload(run.frmOptions); };
  form.Load = [&run] { frmOptions_Load(run); };
  form.KeyPress = [cancel](int key) {
    if (key == keyEscape) cancel();
  };
  for (const MeasurementStandard& standard : measurementStandards()) {
    (form.*standard.button).Click = [&run, &standard] { takeStandard(run, standard); };
  }
  form.cmdOK.Click = [&run] { storeOptions(run); };
  form.cmdCancel.Click = cancel;
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpOptions); };
}

}  // namespace pantrigo
