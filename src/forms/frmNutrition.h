#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The nine nutrition values of the recipe on show, in two columns that are read row by row.
struct FrmNutrition : Form {
  FrmNutrition();

  Frame fmeNutrition{*this, "fmeNutrition", "Enter values applicable per serve.", {120, 120, 5700, 2460}};
  Label lblEnergy{fmeNutrition, "lblEnergy", "", {150, 390, 1740, 225}};
  TextBox txtEnergy{fmeNutrition, "txtEnergy", {1980, 360, 840, 285}, 6, Lines::One, Alignment::Right};
  /// The energy in the other unit.
  Label lblKilojoulesCalories{fmeNutrition, "lblKilojoulesCalories", "", {3000, 390, 2580, 225}};
  Label lblProtein{fmeNutrition, "lblProtein", "Protein (g)", {150, 795, 1740, 225}};
  TextBox txtProtein{fmeNutrition, "txtProtein", {1980, 765, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblCholesterol{fmeNutrition, "lblCholesterol", "Cholesterol (mg)", {3000, 795, 1590, 225}};
  TextBox txtCholesterol{fmeNutrition, "txtCholesterol", {4680, 765, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblCarbohydrates{fmeNutrition, "lblCarbohydrates", "Carbohydrates (g)", {150, 1200, 1740, 225}};
  TextBox txtCarbohydrates{fmeNutrition, "txtCarbohydrates", {1980, 1170, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblSodium{fmeNutrition, "lblSodium", "Sodium (mg)", {3000, 1200, 1590, 225}};
  TextBox txtSodium{fmeNutrition, "txtSodium", {4680, 1170, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblFibre{fmeNutrition, "lblFibre", "Fibre (g)", {150, 1605, 1740, 225}};
  TextBox txtFibre{fmeNutrition, "txtFibre", {1980, 1575, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblCalcium{fmeNutrition, "lblCalcium", "Calcium (mg)", {3000, 1605, 1590, 225}};
  TextBox txtCalcium{fmeNutrition, "txtCalcium", {4680, 1575, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblFat{fmeNutrition, "lblFat", "Fat (g)", {150, 2010, 1740, 225}};
  TextBox txtFat{fmeNutrition, "txtFat", {1980, 1980, 840, 285}, 6, Lines::One, Alignment::Right};
  Label lblIron{fmeNutrition, "lblIron", "Iron (mg)", {3000, 2010, 1590, 225}};
  TextBox txtIron{fmeNutrition, "txtIron", {4680, 1980, 840, 285}, 6, Lines::One, Alignment::Right};

  CommandButton cmdOK{*this, "cmdOK", "&OK", {120, 2700, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {1605, 2700, 1215, 375}};
  CommandButton cmdClear{*this, "cmdClear", "C&lear", {3090, 2700, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {4605, 2700, 1215, 375}};
};

}  // namespace pantrigo
