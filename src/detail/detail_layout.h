#pragma once

#include "core/run.h"

namespace pantrigo {

/// Arranges the form for a recipe with a picture: the picture takes the right column.
void layoutWithPicture(Run& run);

/// Arranges the form for a recipe without one: the General box stands in the right column and the comments run across
/// the full width. Hides the picture and its hint.
void subLayoutNoPicture(Run& run);

/// The same, with the hint how to give the recipe a picture.
void offerPicture(Run& run);

/// Shows the General and Comments groups with all their controls.
void showMovedGroups(Run& run);

}  // namespace pantrigo
