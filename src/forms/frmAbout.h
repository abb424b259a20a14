#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The about box, which start-up also shows as its splash screen.
struct FrmAbout : Form {
  FrmAbout();

  Image picAbout{*this, "picAbout", {240, 240, 960, 960}};
  Label lblTitle{*this, "lblTitle", "Pantrigo", {1440, 240, 3000, 600}};
  Label lblVersion{*this, "lblVersion", "Version 1.9", {1440, 900, 3000, 255}};
  CommandButton cmdOK{*this, "cmdOK", "&OK", {1740, 1500, 1215, 375}};
};

}  // namespace pantrigo
