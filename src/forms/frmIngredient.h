#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The editor of the ingredient rows, one at a time.
struct FrmIngredient : Form {
  FrmIngredient();
};

}  // namespace pantrigo
