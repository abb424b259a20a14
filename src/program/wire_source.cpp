#include "core/messages.h"
#include "detail/source.h"
#include "platform/controls/input.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmSource(Run& run) {
  FrmSource& form = run.frmSource;
  form.Load = [&run] { frmSource_Load(run); };
  form.KeyPress = [&run](int key) {
    if (key == keyEscape) cancelSource(run);
  };
  form.cmdOK.Click = [&run] { takeSource(run); };
  form.cmdCancel.Click = [&run] { cancelSource(run); };
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpSource); };
}

}  // namespace pantrigo
