#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// Where the recipe on show comes from.
struct FrmSource : Form {
  FrmSource();
};

}  // namespace pantrigo
