#include "maintenance/option_table.h"

namespace pantrigo {

namespace {

constexpr OptionChoice measurements[] = {
    {&FrmOptions::optMetric, "m"}, {&FrmOptions::optUKImperial, "i"}, {&FrmOptions::optUSImperial, "u"}};
constexpr std::size_t ukImperial = 1;

constexpr OptionChoice steps[] = {{&FrmOptions::optTenth, "1"},
                                  {&FrmOptions::optHalf, "2"},
                                  {&FrmOptions::optThird, "3"},
                                  {&FrmOptions::optQuarter, "4"}};
constexpr std::size_t halves = 1;

// A Yes/No value reads as one of two words.
constexpr OptionChoice quantityForms[] = {{&FrmOptions::optDecimals, "False"}, {&FrmOptions::optFractions, "True"}};
constexpr OptionChoice energyUnits[] = {{&FrmOptions::optKilojoules, "True"}, {&FrmOptions::optCalories, "False"}};

constexpr OptionRow rows[] = {
    {"ShowRecipes", &FrmOptions::chkShowRecipes, {}, 0},
    {"ShowToolBars", &FrmOptions::chkShowToolbars, {}, 0},
    {"Centilitres", &FrmOptions::chkCentilitres, {}, 0},
    {"Centimetres", &FrmOptions::chkCentimetres, {}, 0},
    {"Centigrams", &FrmOptions::chkCentigrams, {}, 0},
    {"Measurement", nullptr, measurements, ukImperial},
    {"PartialFractions", nullptr, steps, halves},
    {"Fractions", nullptr, quantityForms, 0},
    {"UseOriginalUOM", &FrmOptions::chkUseOriginalUOM, {}, 0},
    {"SettingsIngredients", &FrmOptions::chkSettingsIngredients, {}, 0},
    {"Kilojoules", nullptr, energyUnits, 0},
};

constexpr OptionSize sizes[] = {
    {"Cup", &FrmOptions::txtCup, "Invalid cup details."},
    {"Tablespoon", &FrmOptions::txtTablespoon, "Invalid tablespoon details."},
};

constexpr MeasurementStandard standards[] = {
    {&FrmOptions::optMetric, "250", "4", "millilitres (mL)"},
    {&FrmOptions::optUKImperial, "8", "3", "UK fluid ounces (UK fl oz)"},
    {&FrmOptions::optUSImperial, "8", "3", "US fluid ounces (US fl oz)"},
};

}  // namespace

std::span<const OptionRow> optionRows() {
  return rows;
}

std::span<const OptionSize> optionSizes() {
  return sizes;
}

std::span<const MeasurementStandard> measurementStandards() {
  return standards;
}

}  // namespace pantrigo
