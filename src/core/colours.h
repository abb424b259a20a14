#pragma once

#include "platform/controls/list_box.h"

namespace pantrigo {

/// Numbers of the sixteen-entry colour table, as far as the cookbook uses them.
enum Colour : int { black = 0, darkBlue = 1, darkYellow = 6, white = 15 };

/// Colours of a row of the title list, by whether the recipe is in the meal.
[[nodiscard]] constexpr RowColours titleRowColours(bool meal) {
  return meal ? RowColours{darkYellow, darkYellow, darkBlue} : RowColours{darkBlue, white, darkBlue};
}

/// Colour of the title in the detail window.
[[nodiscard]] constexpr int titleColour(bool meal) {
  return meal ? darkYellow : black;
}

}  // namespace pantrigo
