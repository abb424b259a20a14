#include "core/dialogs.h"
#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmOven(Run& run) {
  run.frmOven.Load = [&run] { centreForm(run, run.frmOven); };
  run.frmOven.cmdCancel.Click = [&run] { leaveKeepingDetail(run, run.frmOven); };
}

}  // namespace pantrigo
