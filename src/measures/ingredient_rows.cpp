#include "measures/ingredient_rows.h"

#include <optional>

#include "measures/unit_ladder.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

constexpr char fieldEnd = '~';

/// A weight unit at the end of a bracket.
struct BracketUnit {
  /// The text that the unit word contains.
  std::string_view found;
  std::string_view unit;
  /// How many characters before the closing bracket, and the opening one, are not the amount's.
  long behindAmount;
  /// Milligrams in one; 1 leaves the amount's text as it is.
  double milligrams;
};

/// Tested in this order, and the first that the word contains counts: "g)" stands before "kg)" and is contained in it,
/// so a weight in kilograms yields an amount that is no number, and is ignored.
constexpr BracketUnit bracketUnits[] = {
    {"oz)", "oz", 3, 28349.523125}, {"lb)", "lb", 3, 453592.37}, {"mg)", "mg", 3, 1},
    {"cg)", "cg", 3, 10},           {"g)", "g", 2, 1000},        {"kg)", "kg", 3, 1000000},
};

const BracketUnit* findBracketUnit(Global& global, const std::string& word) {
  if (global.gBracketClose == 0 || global.gBracketOpen == 0 || global.gBracketClose <= global.gBracketOpen)
    return nullptr;
  for (const BracketUnit& weight : bracketUnits) {
    if (word.find(weight.found) == std::string::npos) continue;
    const long length = global.gBracketClose - (global.gBracketOpen + weight.behindAmount);
    global.gBracketAmount = length < 0 ? "" : Trim(Mid(word, global.gBracketOpen + 1, length));
    global.gBracketUnit = IsNumeric(global.gBracketAmount) ? weight.unit : "";
    return global.gBracketUnit.empty() ? nullptr : &weight;
  }
  return nullptr;
}

}  // namespace

void resetIngredientRows(Run& run, long last) {
  run.GLOBAL.gIngredientRows.assign(1, IngredientRow());
  run.GLOBAL.gIngredientLast = last;
}

void readIngredientRows(Run& run, std::string_view memo) {
  resetIngredientRows(run, 0);
  std::vector<IngredientRow>& rows = run.GLOBAL.gIngredientRows;
  int column = 1;
  std::size_t start = 0;
  for (std::size_t end = memo.find(fieldEnd); end != std::string_view::npos; end = memo.find(fieldEnd, start)) {
    rows.back()[column] = memo.substr(start, end - start);
    start = end + 1;
    if (++column <= IngredientRow::columnCount) continue;
    column = 1;
    if (start == memo.size()) return;
    rows.emplace_back();
    ++run.GLOBAL.gIngredientLast;
  }
}

void applyBracketedWeight(Run& run, IngredientRow& row) {
  Global& global = run.GLOBAL;
  global.gBracketAmount.clear();
  global.gBracketUnit.clear();
  global.gBracketOpen = InStr(row[6], "(");
  global.gBracketClose = InStr(row[6], ")");
  const BracketUnit* weight = findBracketUnit(global, row[6]);
  if (weight == nullptr) return;
  row[1] = weight->milligrams == 1 ? global.gBracketAmount
                                   : plainText(*toNumber(global.gBracketAmount) * weight->milligrams);
  row[2] = "mg";
}

void convertRowToBase(Run& run, IngredientRow& row, std::string_view mode) {
  Global& global = run.GLOBAL;
  const Recordset& system = global.gSystem;
  global.gRowUnit = row[2];
  global.gRowQuantity = row[1];
  Value quantity(global.gRowQuantity);
  const Value cup = system.Field("Cup");
  const Value tablespoon = system.Field("Tablespoon");
  const std::string measurement = system.Field("Measurement").text();
  subConvertToBase(run, global.gRowUnit, quantity, cup, tablespoon, measurement, mode);
  global.gRowQuantity = quantity.text();
  row[2] = global.gRowUnit;
  row[1] = global.gRowQuantity;
}

}  // namespace pantrigo
