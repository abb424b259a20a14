#pragma once

#include <string>
#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// Brings an amount down to the base unit of its kind. `quantity` is a number or a text; it becomes a number (double)
/// where a rule applies and stays as handed in otherwise. `cup` is the cup's size in millilitres with the measurement
/// "m", in fluid ounces with "i" and "u"; `tablespoon` counts teaspoons. `mode` is "s", "p", "l" or " ". Errors, with
/// unit and quantity unchanged: 13 for a text that is no number, or empty on a unit with a rule; 94 for a Null cup or
/// tablespoon that a rule needs; 6 for a product that no double holds.
void subConvertToBase(Run& run, std::string& unit, Value& quantity, const Value& cup, const Value& tablespoon,
                      std::string_view measurement, std::string_view mode);

/// Moves an amount at a base unit to the measurement system of the options; any other unit stays. Error 6, with unit
/// and quantity unchanged, for an amount that no single holds.
void subConvertSystem(Run& run, std::string& unit, float& quantity);

/// Climbs to the largest unit of which there is at least one. Errors, with unit and quantity of the step before: 11 or
/// 6 for a cup or tablespoon of 0, 94 for one that is Null, at the step that needs it.
void subClimbLadder(Run& run, std::string& unit, float& quantity, std::string_view measurement);

}  // namespace pantrigo
