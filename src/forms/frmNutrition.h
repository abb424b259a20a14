#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The nine nutrition values of the recipe on show.
struct FrmNutrition : Form {
  FrmNutrition();
};

}  // namespace pantrigo
