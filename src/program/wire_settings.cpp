#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmSettings(Run& run) {
  run.frmSettings.Load = [&run] { centreForm(run, run.frmSettings); };
}

}  // namespace pantrigo
