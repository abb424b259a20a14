#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The editor of the ingredient rows, one at a time: the row's four boxes below one line of column headings.
struct FrmIngredient : Form {
  FrmIngredient();

  Frame fmeIngredient{*this, "fmeIngredient", "", {120, 60, 9060, 1740}};
  Label lblIngredient{fmeIngredient,
                      "lblIngredient",
                      "Quantity   Unit                          Description                                Preparation",
                      {120, 180, 8820, 225}};
  TextBox txtQuantity{fmeIngredient, "txtQuantity", {120, 420, 900, 300}, 8};
  ComboBox cmbUnit{fmeIngredient, "cmbUnit", {1110, 420, 1950, 300}};
  TextBox txtDescription{fmeIngredient, "txtDescription", {3150, 420, 3300, 300}};
  TextBox txtPreparation{fmeIngredient, "txtPreparation", {6540, 420, 2400, 300}};
  CheckBox chkConvertCupSpoon{fmeIngredient,
                              "chkConvertCupSpoon",
                              "Convert cups/spoons to measurable quantities (for shopping list)",
                              {120, 810, 8820, 255}};
  Label lblMessage{fmeIngredient, "lblMessage", "", {120, 1155, 8820, 480}};

  CommandButton cmdPrevious{*this, "cmdPrevious", "<", {120, 1920, 495, 375}};
  CommandButton cmdNext{*this, "cmdNext", ">", {675, 1920, 495, 375}};
  CommandButton cmdAdd{*this, "cmdAdd", "&Add", {1500, 1920, 1215, 375}};
  CommandButton cmdUpdate{*this, "cmdUpdate", "&Update", {2775, 1920, 1215, 375}};
  CommandButton cmdDelete{*this, "cmdDelete", "&Delete", {4050, 1920, 1215, 375}};
  CommandButton cmdClear{*this, "cmdClear", "C&lear", {5325, 1920, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {6690, 1920, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {7965, 1920, 1215, 375}};
};

}  // namespace pantrigo
