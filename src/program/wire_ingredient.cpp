#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmIngredient(Run& run) {
  run.frmIngredient.Load = [&run] { centreForm(run, run.frmIngredient); };
}

}  // namespace pantrigo
