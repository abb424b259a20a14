#include "core/layout.h"
#include "platform/controls/input.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmAbout(Run& run) {
  run.frmAbout.Load = [&run] { centreForm(run, run.frmAbout); };
  run.frmAbout.cmdOK.Click = [&run] { run.windows.Unload(run.frmAbout); };
  run.frmAbout.KeyPress = [&run](int key) {
    if (key == keyEscape) run.windows.Unload(run.frmAbout);
  };
}

}  // namespace pantrigo
