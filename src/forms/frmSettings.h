#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// How many people the recipes are to be shown for.
struct FrmSettings : Form {
  FrmSettings();
};

}  // namespace pantrigo
