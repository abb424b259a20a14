#pragma once

#include <string>

#include "core/global.h"

namespace pantrigo {

/// What becomes of a recipe whose title is taken.
enum class DuplicateTitles { CreateUnique, ReportOnly };

/// Outcome of the title check for one recipe.
struct CheckedTitle {
  /// The final title; empty when the recipe is refused.
  std::string title;
  /// The line for the import log; empty without a warning.
  std::string warning;
};

/// Cleans the title and looks it up by the title index. An accepted recipe is given the next id in `gImageRecipeId`; a
/// taken title gets a blank and the first free number behind it, or is refused.
[[nodiscard]] CheckedTitle checkTitle(Global& global, std::string_view title, DuplicateTitles duplicates);

}  // namespace pantrigo
