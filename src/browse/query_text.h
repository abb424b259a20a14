#pragma once

#include <string>

#include "core/run.h"

namespace pantrigo {

/// What the filters come to: the text of the query, and what decides how the list is built.
struct ListQuery {
  /// Numbers of the category conditions: 1 to 6 are the category kinds in their order.
  static constexpr int healthKind = 5;
  static constexpr int otherKind = 6;
  static constexpr int mealKind = 7;

  std::string text;
  /// Whether the text holds its WHERE: the next condition is joined with AND.
  bool whereUsed = false;
  /// How many category conditions are set, the tick for the meal included, and the one counted last; 0 for none.
  int categoryCount = 0;
  int categoryKind = 0;
  /// The last selected row of Health or Other, escaped.
  std::string escapedSelection;

  /// Whether an index leads to the recipes: one category is set. It then stands alone, whatever else is set.
  [[nodiscard]] bool walk() const { return categoryCount == 1; }
};

/// Builds the query from the filters as they stand. Error 6 for energy in calories that is no single in kilojoules.
[[nodiscard]] ListQuery buildListQuery(Run& run);

}  // namespace pantrigo
