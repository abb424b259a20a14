#pragma once

#include "core/run.h"

namespace pantrigo {

/// Fills the unit box of the ingredient dialog: the words for all systems, then those of the chosen one.
void fillUnits(Run& run);

/// Gives the typed unit word its usual form, where it is another spelling of a known one, and runs the rule of the box
/// about cups and spoons.
void normaliseUnit(Run& run);

/// The box about cups and spoons can be used while the unit holds the letters of one of them. It keeps its tick.
void enableCupSpoon(Run& run);

}  // namespace pantrigo
