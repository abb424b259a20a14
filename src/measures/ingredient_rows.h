#pragma once

#include <string>
#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// Makes the table of the open recipe one row of six empty fields; `last` is the highest index in use (0, or -1 for a
/// recipe whose rows are to be typed).
void resetIngredientRows(Run& run, long last);

/// Reads the stored ingredient text into the table: six fields a row, each ended by one "~". Text behind the last "~"
/// is dropped.
void readIngredientRows(Run& run, std::string_view memo);

/// What the bracketed weight of a unit word does to a row: column 1 becomes the weight of one such unit in milligrams
/// and column 2 "mg". Nothing for a word without one. Uses the bracket fields of the shared state.
void applyBracketedWeight(Run& run, IngredientRow& row);

/// Brings columns 1 and 2 of a row down to the base unit, by the options; by way of `gRowQuantity` and `gRowUnit`. The
/// errors of `subConvertToBase`, which leave the row as it was.
void convertRowToBase(Run& run, IngredientRow& row, std::string_view mode);

}  // namespace pantrigo
