#include "detail/ingredient_units.h"

#include <algorithm>
#include <iterator>

namespace pantrigo {

namespace {

constexpr std::string_view typeOfAll = "a";
constexpr std::string_view unitedStates = "u";

/// A spelling that is typed, and what it becomes: with US imperial measures, and with all others. A word that names its
/// own system goes by the chosen one too.
struct Spelling {
  std::string_view typed;
  std::string_view inUnitedStates;
  std::string_view elsewhere;
};

constexpr Spelling spellings[] = {
    {"l", "L", "L"},
    {"cl", "cL", "cL"},
    {"ml", "mL", "mL"},
    {"cups", "cup", "cup"},
    {"tsps", "tsp", "tsp"},
    {"tbsps", "tbsp", "tbsp"},
    {"gal", "US gal", "UK gal"},
    {"gallon", "US gal", "UK gal"},
    {"Gallon", "US gal", "UK gal"},
    {"us gal", "US gal", "UK gal"},
    {"uk gal", "US gal", "UK gal"},
    {"qrt", "US qrt", "UK qrt"},
    {"quart", "US qrt", "UK qrt"},
    {"Quart", "US qrt", "UK qrt"},
    {"us qrt", "US qrt", "UK qrt"},
    {"uk qrt", "US qrt", "UK qrt"},
    {"pint", "US pint", "UK pint"},
    {"Pint", "US pint", "UK pint"},
    {"us pint", "US pint", "UK pint"},
    {"uk pint", "US pint", "UK pint"},
    {"fl oz", "US fl oz", "UK fl oz"},
    {"fluid ounce", "US fl oz", "UK fl oz"},
    {"Fluid ounce", "US fl oz", "UK fl oz"},
    {"us fl oz", "US fl oz", "UK fl oz"},
    {"uk fl oz", "US fl oz", "UK fl oz"},
};

/// The letters that make a unit one of cups and spoons, wherever they stand in it.
constexpr std::string_view cupSpoonLetters[] = {"cup", "tsp", "dsp", "tbsp"};

/// The type of the chosen system's words; any system but metric and UK imperial has those of the United States.
std::string chosenType(const Run& run) {
  const std::string measurement = run.GLOBAL.gSystem.Field("Measurement").text();
  return measurement == "m" || measurement == "i" ? measurement : std::string(unitedStates);
}

}  // namespace

void fillUnits(Run& run) {
  const std::string chosen = chosenType(run);
  Recordset& units = run.GLOBAL.gUnit;
  units = run.GLOBAL.gDatabase.OpenRecordset("Unit");
  units.Index("UnitIdxType");
  units.Seek(">", "");
  if (units.NoMatch()) return;
  for (; !units.Eof(); units.MoveNext()) {
    const std::string type = units.Field("Type").text();
    if (type == typeOfAll || type == chosen) run.frmIngredient.cmbUnit.AddItem(units.Field("Description").text());
  }
}

void normaliseUnit(Run& run) {
  ComboBox& unit = run.frmIngredient.cmbUnit;
  const auto* spelling = std::find_if(std::begin(spellings), std::end(spellings),
                                      [&](const Spelling& known) { return known.typed == unit.Text(); });
  if (spelling != std::end(spellings)) {
    const bool american = run.GLOBAL.gSystem.Field("Measurement").text() == unitedStates;
    unit.setText(american ? spelling->inUnitedStates : spelling->elsewhere);
  }
  enableCupSpoon(run);
}

void enableCupSpoon(Run& run) {
  const std::string& unit = run.frmIngredient.cmbUnit.Text();
  const bool convertible =
      std::any_of(std::begin(cupSpoonLetters), std::end(cupSpoonLetters),
                  [&](std::string_view letters) { return unit.find(letters) != std::string::npos; });
  run.frmIngredient.chkConvertCupSpoon.setEnabled(convertible);
}

}  // namespace pantrigo
