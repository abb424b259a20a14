#include <algorithm>

#include "core/layout.h"
#include "platform/controls/input.h"
#include "program/wiring.h"

namespace pantrigo {

namespace {

bool hasEntries(const Form& form, const Control& menu) {
  return std::any_of(form.controls().begin(), form.controls().end(),
                     [&](const Control* control) { return control->container() == &menu; });
}

}  // namespace

void wireSmallDialogs(Run& run) {
  run.frmAbout.Load = [&run] { centreForm(run, run.frmAbout); };
  run.frmAbout.cmdOK.Click = [&run] { run.windows.Unload(run.frmAbout); };
  run.frmAbout.KeyPress = [&run](int key) {
    if (key == keyEscape) run.windows.Unload(run.frmAbout);
  };

  run.frmOven.Load = [&run] { centreForm(run, run.frmOven); };
  run.frmOven.cmdCancel.Click = [&run] {
    run.GLOBAL.gKeepDetailOnActivate = true;
    run.windows.Unload(run.frmOven);
  };
}

void disableUnwired(Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::MenuEntry && !static_cast<MenuEntry*>(control)->isSeparator() &&
        !hasEntries(form, *control) && !control->Click.isWired()) {
      control->setEnabled(false);
    }
    control->sealDesign();
  }
}

}  // namespace pantrigo
