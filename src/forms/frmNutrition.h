#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The nine nutrition values of the recipe on show, in two columns that are read row by row.
struct FrmNutrition : Form {
  FrmNutrition();

  Frame fmeNutrition{*this, "fmeNutrition", "Enter values applicable per serve.", {120, 120, 5700, 2460}};
  Label lblEnergy{fmeNutrition, "lblEnergy", "", captionBox(left, 360)};
  TextBox txtEnergy{fmeNutrition, "txtEnergy", numberBox(left, 360), 6, Lines::One, Alignment::Right};
  /// The energy in the other unit.
  Label lblKilojoulesCalories{fmeNutrition, "lblKilojoulesCalories", "", {3000, 390, 2580, 225}};
  Label lblProtein{fmeNutrition, "lblProtein", "Protein (g)", captionBox(left, 765)};
  TextBox txtProtein{fmeNutrition, "txtProtein", numberBox(left, 765), 6, Lines::One, Alignment::Right};
  Label lblCholesterol{fmeNutrition, "lblCholesterol", "Cholesterol (mg)", captionBox(right, 765)};
  TextBox txtCholesterol{fmeNutrition, "txtCholesterol", numberBox(right, 765), 6, Lines::One, Alignment::Right};
  Label lblCarbohydrates{fmeNutrition, "lblCarbohydrates", "Carbohydrates (g)", captionBox(left, 1170)};
  TextBox txtCarbohydrates{fmeNutrition, "txtCarbohydrates", numberBox(left, 1170), 6, Lines::One, Alignment::Right};
  Label lblSodium{fmeNutrition, "lblSodium", "Sodium (mg)", captionBox(right, 1170)};
  TextBox txtSodium{fmeNutrition, "txtSodium", numberBox(right, 1170), 6, Lines::One, Alignment::Right};
  Label lblFibre{fmeNutrition, "lblFibre", "Fibre (g)", captionBox(left, 1575)};
  TextBox txtFibre{fmeNutrition, "txtFibre", numberBox(left, 1575), 6, Lines::One, Alignment::Right};
  Label lblCalcium{fmeNutrition, "lblCalcium", "Calcium (mg)", captionBox(right, 1575)};
  TextBox txtCalcium{fmeNutrition, "txtCalcium", numberBox(right, 1575), 6, Lines::One, Alignment::Right};
  Label lblFat{fmeNutrition, "lblFat", "Fat (g)", captionBox(left, 1980)};
  TextBox txtFat{fmeNutrition, "txtFat", numberBox(left, 1980), 6, Lines::One, Alignment::Right};
  Label lblIron{fmeNutrition, "lblIron", "Iron (mg)", captionBox(right, 1980)};
  TextBox txtIron{fmeNutrition, "txtIron", numberBox(right, 1980), 6, Lines::One, Alignment::Right};

  CommandButton cmdOK{*this, "cmdOK", "&OK", {120, 2700, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {1605, 2700, 1215, 375}};
  CommandButton cmdClear{*this, "cmdClear", "C&lear", {3090, 2700, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {4605, 2700, 1215, 375}};

 private:
  /// A column of captions with boxes behind them, in twips.
  struct Column {
    double captionLeft;
    double captionWidth;
    double boxLeft;
  };
  static constexpr Column left{150, 1740, 1980};
  static constexpr Column right{3000, 1590, 4680};
  static constexpr Box captionBox(const Column& column, double top) {
    return {column.captionLeft, top + 30, column.captionWidth, 225};
  }
  static constexpr Box numberBox(const Column& column, double top) { return {column.boxLeft, top, 840, 285}; }
};

}  // namespace pantrigo
