#pragma once

#include "platform/controls/form.h"

namespace pantrigo {

/// Runs a routine under the hourglass of a window, and gives the window its own pointer back.
template <class Routine>
void withHourglass(Form& form, Routine routine) {
  form.setMousePointer(pointerHourglass);
  routine();
  form.setMousePointer(pointerDefault);
}

}  // namespace pantrigo
