#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// Where the recipe on show comes from, given once.
struct FrmSource : Form {
  FrmSource();

  Frame fmeSource{*this, "fmeSource", "Enter recipe source:", {120, 120, 5700, 780}};
  TextBox txtSource{fmeSource, "txtSource", {150, 330, 5400, 285}, 50};

  CommandButton cmdOK{*this, "cmdOK", "&OK", {1605, 1020, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {3090, 1020, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {4605, 1020, 1215, 375}};
};

}  // namespace pantrigo
