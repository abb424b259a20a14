#pragma once

#include "core/run.h"

namespace pantrigo {

/// Height of a tool bar in twips at design size: what the list and the frames below it gain when the tool bars are off.
inline constexpr double toolBarHeight = 640;

/// Whether the options show the tool bars; Null counts as no.
[[nodiscard]] bool toolBarsShown(Run& run);

/// Shows or hides both tool bars, and gives the main window's list and filters the room that is left.
void applyToolBarLayout(Run& run);

/// Sizes a tool bar's buttons for the screen, gives them their pictures in order, and shows its first two spacers on
/// any screen but one of the design's width, which has the small pictures.
void sizeToolBar(Run& run, ToolBar& toolBar, const ImageList& small, const ImageList& large);

/// Enlarges a form for the screen and places it: centred across, a third of the free height above.
void placeForm(Run& run, Form& form, double scale);

/// Left and top for a form that is not scaled, by the same rule.
inline void centreForm(Run& run, Form& form) {
  placeForm(run, form, 1);
}

}  // namespace pantrigo
