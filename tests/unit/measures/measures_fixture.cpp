#include "unit/measures/measures_fixture.h"

#include "measures/show_ingredients.h"

namespace pantrigo {

namespace {

constexpr int unknownField = 3265;

}  // namespace

const Value& HeldRow::field(std::string_view name) {
  const auto place = fields.find(name);
  if (place == fields.end()) throw RuntimeError(unknownField);
  return place->second;
}

MeasuresTest::MeasuresTest() {
  run.GLOBAL.gSystem = Recordset(system);
  run.GLOBAL.gRecipe = Recordset(recipe);
  run.GLOBAL.gConvertCupSpoon = "0";
  recipe->fields["Serves"] = Value();
  setOptions({});
}

void MeasuresTest::setOptions(const Options& changed) {
  system->fields = {
      {"Measurement", "m"},   {"PartialFractions", "1"}, {"Fractions", false},          {"UseOriginalUOM", false},
      {"Centilitres", false}, {"Centimetres", false},    {"Centigrams", false},         {"Cup", 250},
      {"Tablespoon", 3},      {"Settings", Value()},     {"SettingsIngredients", false}};
  for (const auto& [name, value] : changed) system->fields[name] = value;
}

void MeasuresTest::setRows(const std::vector<IngredientRow>& rows) {
  run.GLOBAL.gIngredientRows = rows;
  run.GLOBAL.gIngredientLast = static_cast<long>(rows.size()) - 1;
}

IngredientRow MeasuresTest::entered(std::string_view quantity, std::string_view unit, std::string_view description,
                                    std::string_view preparation) {
  IngredientRow row;
  row[1] = row[5] = quantity;
  row[2] = row[6] = unit;
  row[3] = description;
  row[4] = preparation;
  return row;
}

std::vector<std::string> MeasuresTest::listed() const {
  const ListBox& list = run.frmDetail.lstIngredient;
  std::vector<std::string> lines;
  for (int row = 0; row < list.ListCount(); ++row) lines.push_back(list.List(row));
  return lines;
}

std::vector<std::string> MeasuresTest::shown(const Value& makes) {
  subShowIngredients(run, "s", makes);
  return listed();
}

}  // namespace pantrigo
