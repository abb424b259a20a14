#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The options of the program.
struct FrmOptions : Form {
  FrmOptions();

  Frame fmeShowRecipes{*this, "fmeShowRecipes", "Show all recipes at startup:", leftBox(120)};
  CheckBox chkShowRecipes{fmeShowRecipes, "chkShowRecipes", "Yes, show all recipes", lineBox};

  Frame fmeShowToolbars{*this, "fmeShowToolbars", "Show toolbars:", rightBox(120)};
  CheckBox chkShowToolbars{fmeShowToolbars, "chkShowToolbars", "Yes, show all toolbars", lineBox};

  Frame fmeCenti{*this, "fmeCenti",
                 "Skip metric 'centi' levels when converting unit measurements up:", wideBox(870, 630)};
  CheckBox chkCentilitres{fmeCenti, "chkCentilitres", "Skip centilitres", {150, 285, 2580, 255}};
  CheckBox chkCentimetres{fmeCenti, "chkCentimetres", "Skip centimetres", {2880, 285, 2580, 255}};
  CheckBox chkCentigrams{fmeCenti, "chkCentigrams", "Skip centigrams", {5610, 285, 2580, 255}};

  Frame fmeMetric{*this, "fmeMetric", "Show ingredient units in:", leftBox(1620)};
  OptionButton optMetric{fmeMetric, "optMetric", "Metric", {150, 285, 990, 255}};
  OptionButton optUKImperial{fmeMetric, "optUKImperial", "UK Imperial", {1230, 285, 1350, 255}};
  OptionButton optUSImperial{fmeMetric, "optUSImperial", "US Imperial", {2640, 285, 1350, 255}};

  Frame fmeRoundFractions{*this, "fmeRoundFractions", "Round part quantities to next:", rightBox(1620)};
  OptionButton optTenth{fmeRoundFractions, "optTenth", "1/10", {150, 285, 900, 255}};
  OptionButton optHalf{fmeRoundFractions, "optHalf", "1/2", {1110, 285, 900, 255}};
  OptionButton optThird{fmeRoundFractions, "optThird", "1/3", {2070, 285, 900, 255}};
  OptionButton optQuarter{fmeRoundFractions, "optQuarter", "1/4", {3030, 285, 900, 255}};

  Frame fmeFractions{*this, "fmeFractions", "Part ingredient quantities shown in:", leftBox(2370)};
  OptionButton optDecimals{fmeFractions, "optDecimals", "Decimals", {150, 285, 1800, 255}};
  OptionButton optFractions{fmeFractions, "optFractions", "Fractions", {2070, 285, 1800, 255}};

  Frame fmeShowOriginalUOM{*this, "fmeShowOriginalUOM", "Use original units of measure:", rightBox(2370)};
  CheckBox chkUseOriginalUOM{fmeShowOriginalUOM, "chkUseOriginalUOM", "Yes, use original units of measure", lineBox};

  Frame fmeSettingsIngredients{*this, "fmeSettingsIngredients",
                               "Display ingredients based on 'Settings':", leftBox(3120)};
  CheckBox chkSettingsIngredients{fmeSettingsIngredients, "chkSettingsIngredients",
                                  "Yes, display ingredients based on 'Settings'", lineBox};

  Frame fmeKilojoulesCalories{*this, "fmeKilojoulesCalories", "Show energy units in:", rightBox(3120)};
  OptionButton optKilojoules{fmeKilojoulesCalories, "optKilojoules", "Kilojoules", {150, 285, 1800, 255}};
  OptionButton optCalories{fmeKilojoulesCalories, "optCalories", "Calories", {2070, 285, 1800, 255}};

  Frame fmeLiquid{*this, "fmeLiquid", "Cup / Spoon details:", wideBox(3870, 1005)};
  Label lblCup{fmeLiquid, "lblCup", "1 cup =", {150, 285, 2160, 285}};
  TextBox txtCup{fmeLiquid, "txtCup", {2400, 285, 900, 285}, 6};
  Label lblCupUnit{fmeLiquid, "lblCupUnit", "", {3390, 285, 4200, 285}};
  Label lblTablespoon{fmeLiquid, "lblTablespoon", "1 tablespoon (tbsp) =", {150, 630, 2160, 285}};
  TextBox txtTablespoon{fmeLiquid, "txtTablespoon", {2400, 630, 900, 285}, 1};
  Label lblTeaspoon{fmeLiquid, "lblTeaspoon", "teaspoons (tsp)", {3390, 630, 4200, 285}};

  CommandButton cmdOK{*this, "cmdOK", "&OK", {4665, 4995, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {6000, 4995, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {7335, 4995, 1215, 375}};

 private:
  static constexpr Box leftBox(double top) { return {120, top, 4155, 630}; }
  static constexpr Box rightBox(double top) { return {4395, top, 4155, 630}; }
  static constexpr Box wideBox(double top, double height) { return {120, top, 8430, height}; }
  static constexpr Box lineBox{150, 285, 3900, 255};
};

}  // namespace pantrigo
