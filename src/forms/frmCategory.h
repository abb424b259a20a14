#pragma once

#include <string>

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The upkeep of one of the six kinds of categories.
struct FrmCategory : Form {
  FrmCategory();

  Frame fmeCategory{*this, "fmeCategory", "Enter item to be added, updated or deleted:", {120, 120, 7890, 780}};
  TextBox txtCategory{fmeCategory, "txtCategory", {150, 330, 7590, 285}, 30};

  CommandButton cmdAdd{*this, "cmdAdd", "&Add", {120, 1020, 1215, 375}};
  CommandButton cmdUpdate{*this, "cmdUpdate", "&Update", {1455, 1020, 1215, 375}};
  CommandButton cmdDelete{*this, "cmdDelete", "&Delete", {2790, 1020, 1215, 375}};
  CommandButton cmdClear{*this, "cmdClear", "C&lear", {4125, 1020, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {5460, 1020, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {6795, 1020, 1215, 375}};

  /// What stood in the box when the dialog was loaded: the entry that Update renames.
  std::string oldCategory;
};

}  // namespace pantrigo
