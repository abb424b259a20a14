#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The upkeep of one of the six kinds of categories.
struct FrmCategory : Form {
  FrmCategory();
};

}  // namespace pantrigo
