#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmCategory(Run& run) {
  run.frmCategory.Load = [&run] { centreForm(run, run.frmCategory); };
}

}  // namespace pantrigo
