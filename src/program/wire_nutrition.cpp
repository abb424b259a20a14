#include "core/layout.h"
#include "program/wiring.h"

namespace pantrigo {

void wireFrmNutrition(Run& run) {
  run.frmNutrition.Load = [&run] { centreForm(run, run.frmNutrition); };
}

}  // namespace pantrigo
