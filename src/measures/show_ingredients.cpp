#include "measures/show_ingredients.h"

#include <algorithm>
#include <span>

#include "measures/ingredient_rows.h"
#include "measures/quantity.h"
#include "measures/unit_ladder.h"
#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

constexpr std::string_view modeScreen = "s";
constexpr std::string_view modePrinter = "p";
constexpr std::string_view modeShoppingList = "l";

/// Column and blanks at which a line begins on paper.
constexpr int printColumn = 15;
constexpr int printBlanks = 2;

struct ShortWord {
  std::string_view unit;
  std::string_view shown;
};

/// On screen the window's label says which system is shown, so the unit words are short there.
constexpr ShortWord shortWords[] = {
    {"US fl oz", "fl oz"}, {"UK fl oz", "fl oz"}, {"US pint", "pint"}, {"UK pint", "pint"},
    {"US qrt", "qrt"},     {"UK qrt", "qrt"},     {"US gal", "gal"},   {"UK gal", "gal"},
};

constexpr std::string_view pluralsWithS[] = {"bag",   "bar",  "bottle", "can",     "carton",  "clove",
                                             "cube",  "cup",  "jar",    "UK pint", "US pint", "roll",
                                             "slice", "stem", "stick",  "stone",   "tube",    "pint"};
constexpr std::string_view pluralsWithEs[] = {"box", "bunch", "dash", "pouch"};

struct Plural {
  std::string_view ending;
  std::span<const std::string_view> words;
};

constexpr Plural plurals[] = {{"s", pluralsWithS}, {"es", pluralsWithEs}};

/// An amount above this is plural; it is looked at before it is rounded for writing.
constexpr double pluralAbove = 1.01;

bool contains(std::span<const std::string_view> words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

/// The number of people to cater for over the number that the recipe serves; 1 where nothing is scaled.
float scaleFactor(Run& run, std::string_view mode, const Value& makes) {
  const Recordset& system = run.GLOBAL.gSystem;
  float serves = 0;
  bool scaled = true;
  guarded([&] { scaled = system.Field("SettingsIngredients").truth() && !makes.truth() && mode != modeShoppingList; });
  if (scaled) {
    guarded([&] {
      const Value& stored = run.GLOBAL.gRecipe.Field("Serves");
      if (!stored.isNull()) serves = toSingle(Val(stored.text()));
    });
  }
  if (serves <= 0) return 1;
  float factor = 1;
  guarded([&] {
    const Value& settings = system.Field("Settings");
    if (!settings.isNull()) factor = toSingle(settings.number() / serves);
  });
  return factor;
}

/// From the base amount in columns 1 and 2 to the written quantity and the unit word.
void writeAmount(Run& run, const IngredientRow& row, float factor) {
  Global& global = run.GLOBAL;
  guarded([&] { global.gWorkQuantity = toSingle(quantityAmount(row[1])); });
  guarded([&] { global.gWorkQuantity = toSingle(static_cast<double>(global.gWorkQuantity) * factor); });
  global.gWorkUnit = row[2];
  guarded([&] { subConvertSystem(run, global.gWorkUnit, global.gWorkQuantity); });
  guarded([&] {
    const std::string measurement = global.gSystem.Field("Measurement").text();
    subClimbLadder(run, global.gWorkUnit, global.gWorkQuantity, measurement);
  });
  guarded([&] { subFormatQuantity(run); });
  if (!global.gQuantityText.empty()) global.gQuantityText += " ";
}

void dressUnit(Run& run, std::string_view mode) {
  std::string& unit = run.GLOBAL.gWorkUnit;
  if (mode == modeScreen) {
    for (const ShortWord& word : shortWords) {
      if (word.unit == unit) {
        unit = word.shown;
        break;
      }
    }
  }
  if (Val(plainText(run.GLOBAL.gWorkQuantity)) > pluralAbove) {
    for (const Plural& plural : plurals) {
      if (contains(plural.words, unit)) {
        unit += plural.ending;
        break;
      }
    }
  }
  if (!unit.empty()) unit += " ";
}

/// A heading has no unit, and a description without a small letter.
bool isHeading(const Global& global, const IngredientRow& row) {
  return global.gWorkUnit.empty() && UCase(row[3]) == row[3];
}

void printLine(Run& run, const std::string& line) {
  Printer& printer = run.toolkit.printer();
  guarded([&] {
    printer.tab(printColumn);
    printer.space(printBlanks);
    printer.print(line);
    printer.endLine();
  });
}

void putOut(Run& run, const IngredientRow& row, std::string_view mode) {
  const Global& global = run.GLOBAL;
  const std::string& preparation = row[4];
  const std::string behind = preparation.empty() || row[3].empty() ? preparation : ", " + preparation;
  const std::string item = global.gQuantityText + global.gWorkUnit + row[3];
  if (mode == modeScreen) run.frmDetail.lstIngredient.AddItem(Trim(item + behind));
  if (mode == modePrinter) printLine(run, Trim(item + behind));
  if (mode == modeShoppingList && !Trim(global.gQuantityText).empty() && !isHeading(global, row))
    printLine(run, Trim(item));
}

void showRow(Run& run, IngredientRow& row, std::string_view mode, float factor) {
  if (row[1].empty() && row[2].empty() && row[3].empty() && row[4].empty()) return;
  const std::string savedQuantity = row[1];
  run.GLOBAL.gSavedUnit = row[2];
  if (mode != modeShoppingList) {
    row[1] = row[5];
    row[2] = row[6];
  }
  row[1] = funFractionToDecimal(row[1]);
  if (run.GLOBAL.gConvertCupSpoon == "1") guarded([&] { applyBracketedWeight(run, row); });
  guarded([&] { convertRowToBase(run, row, mode); });
  writeAmount(run, row, factor);
  dressUnit(run, mode);
  putOut(run, row, mode);
  row[1] = savedQuantity;
  row[2] = run.GLOBAL.gSavedUnit;
}

}  // namespace

void subShowIngredients(Run& run, std::string_view mode, const Value& makes) {
  const float factor = scaleFactor(run, mode, makes);
  if (mode == modeScreen) run.frmDetail.lstIngredient.Clear();
  std::vector<IngredientRow>& rows = run.GLOBAL.gIngredientRows;
  for (std::size_t row = 0; static_cast<long>(row) <= run.GLOBAL.gIngredientLast && row < rows.size(); ++row) {
    showRow(run, rows[row], mode, factor);
  }
}

}  // namespace pantrigo
