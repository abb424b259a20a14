#include "detail/ingredient_text.h"

#include <algorithm>

#include "measures/ingredient_rows.h"
#include "measures/quantity.h"

namespace pantrigo {

namespace {

constexpr std::string_view modeStore = " ";
constexpr std::string_view converted = "1";

/// Goes from the entry, so that scaled or converted display values are thrown away.
void takeBaseAmount(Run& run, IngredientRow& row) {
  row[1] = funFractionToDecimal(row[5]);
  row[2] = row[6];
  if (run.GLOBAL.gConvertCupSpoon == converted) applyBracketedWeight(run, row);
  convertRowToBase(run, row, modeStore);
}

}  // namespace

std::string storedIngredients(Run& run) {
  std::vector<IngredientRow>& rows = run.GLOBAL.gIngredientRows;
  const auto lines = static_cast<std::size_t>(run.frmDetail.lstIngredient.ListCount());
  std::string text;
  for (std::size_t place = 0; place < std::min(lines, rows.size()); ++place) {
    IngredientRow& row = rows[place];
    takeBaseAmount(run, row);
    for (int column = 1; column <= IngredientRow::columnCount; ++column) text += row[column] + '~';
  }
  return text;
}

}  // namespace pantrigo
