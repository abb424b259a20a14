#include "exchange/title_check.h"

#include "exchange/clean_title.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// The highest number that the counter behind a title can take; it is held in 16 bits.
constexpr long highestNumber = 32767;

}  // namespace

CheckedTitle checkTitle(Global& global, std::string_view title, DuplicateTitles duplicates) {
  const std::string cleaned = subCleanTitle(title).caseResult;
  Recordset& recipes = global.gRecipe;
  recipes.Index("RecipeIdxTitle");
  recipes.Seek("=", cleaned);
  if (recipes.NoMatch()) {
    ++global.gImageRecipeId;
    return {cleaned, {}};
  }
  if (duplicates == DuplicateTitles::ReportOnly) return {{}, cleaned + " - not added, already exists"};
  long number = 0;
  std::string numbered;
  while (!recipes.NoMatch()) {
    if (number == highestNumber) throw RuntimeError(6);
    numbered = cleaned + " " + plainText(++number);
    recipes.Seek("=", numbered);
  }
  ++global.gImageRecipeId;
  return {numbered, cleaned + " - added ok, made unique by adding " + plainText(number) + " to end"};
}

}  // namespace pantrigo
