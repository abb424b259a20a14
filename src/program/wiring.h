#pragma once

#include "core/run.h"

namespace pantrigo {

// One function a form: ties the form's events to its routines.
void wireFrmBrowse(Run& run);
void wireFrmDetail(Run& run);
void wireSmallDialogs(Run& run);

/// Greys the menu entries and tool bar buttons of a form that nothing is wired to; to be called after the wiring.
void disableUnwired(Form& form);

}  // namespace pantrigo
