#pragma once

#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// Adds a title to the list of titles, and gives the row of that number (counted from 0) the text colour of a recipe
/// that is in the meal, or isn't. The number is that of the rows given so far; where the list sorts, another row than
/// the new one can stand there.
void subAddListRow(Run& run, std::string_view title, bool meal, long row);

}  // namespace pantrigo
