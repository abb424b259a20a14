#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmSource(Run& run) {
  run.frmSource.Load = [&run] { centreForm(run, run.frmSource); };
}

}  // namespace pantrigo
