#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmOptions(Run& run) {
  run.frmOptions.Load = [&run] { centreForm(run, run.frmOptions); };
}

}  // namespace pantrigo
