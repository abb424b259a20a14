#include "core/messages.h"
#include "detail/settings.h"
#include "platform/controls/input.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmSettings(Run& run) {
  FrmSettings& form = run.frmSettings;
  form.Load = [&run] { frmSettings_Load(run); };
  form.Activate = [&run] { run.windows.SetFocus(run.frmSettings.txtSettings); };
  form.KeyPress = [&run](int key) {
    if (key == keyEscape) cancelSettings(run);
  };
  form.cmdOK.Click = [&run] { storeSettings(run); };
  form.cmdCancel.Click = [&run] { cancelSettings(run); };
  form.cmdClear.Click = [&run] { run.frmSettings.txtSettings.setText(""); };
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpSettings); };
}

}  // namespace pantrigo
