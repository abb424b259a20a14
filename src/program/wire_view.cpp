#include "core/messages.h"
#include "exchange/view_file.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmView(Run& run) {
  FrmView& form = run.frmView;
  form.Load = [&run] { frmView_Load(run); };
  form.cmdPrint.Click = [&run] { printImportLog(run); };
  form.cmdCancel.Click = [&run] { run.windows.Unload(run.frmView); };
  form.cmdHelp.Click = [&run] { subShowHelp(run, helpView); };
}

}  // namespace pantrigo
