#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmView(Run& run) {
  run.frmView.Load = [&run] { centreForm(run, run.frmView); };
}

}  // namespace pantrigo
