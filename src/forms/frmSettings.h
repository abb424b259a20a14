#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// How many people the recipes are to be shown for.
struct FrmSettings : Form {
  FrmSettings();

  Frame fmeServings{*this, "fmeServings", "Enter number of people to cater for:", {120, 120, 5700, 780}};
  Label lblSettings{fmeServings, "lblSettings", "Settings", {150, 360, 900, 225}};
  TextBox txtSettings{fmeServings, "txtSettings", {1110, 330, 600, 285}, 3};

  CommandButton cmdOK{*this, "cmdOK", "&OK", {120, 1020, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {1605, 1020, 1215, 375}};
  CommandButton cmdClear{*this, "cmdClear", "C&lear", {3090, 1020, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {4605, 1020, 1215, 375}};
};

}  // namespace pantrigo
