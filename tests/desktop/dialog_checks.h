#pragma once

#include <string>
#include <vector>

#include "desktop/form_view.h"

namespace pantrigo {

/// The names of the controls that the tab key goes through, once round, from the one that has the focus.
[[nodiscard]] std::vector<std::string> tabRound(FormView& view);

/// Expects each stop right of the one before on its line, or on a line below.
void expectReadingOrder(const FormView& view, const std::vector<std::string>& names);

/// Expects every widget of a dialog inside what holds it, clear of its neighbours, with its whole text in the dialog's
/// size.
void expectNothingCut(const FormView& view);

}  // namespace pantrigo
