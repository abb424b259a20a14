#pragma once

#include "core/run.h"

namespace pantrigo {

// One function a form: ties the form's events to its routines.
void wireFrmBrowse(Run& run);
void wireFrmDetail(Run& run);
void wireFrmAbout(Run& run);
void wireFrmOven(Run& run);
void wireFrmIngredient(Run& run);
void wireFrmNutrition(Run& run);
void wireFrmSettings(Run& run);
void wireFrmSource(Run& run);
void wireFrmCategory(Run& run);
void wireFrmOptions(Run& run);
void wireFrmView(Run& run);

/// Greys the menu entries of a form that nothing is wired to, and makes what the wiring left the form's design. To be
/// called after the wiring, before the form is loaded.
void finishWiring(Form& form);

}  // namespace pantrigo
