#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The options of the program.
struct FrmOptions : Form {
  FrmOptions();
};

}  // namespace pantrigo
