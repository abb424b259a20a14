#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// Shows a text file, such as the log of the last import.
struct FrmView : Form {
  FrmView();
};

}  // namespace pantrigo
