#pragma once

#include <optional>

#include "platform/controls/controls.h"
#include "platform/controls/form.h"
#include "platform/files/text_file.h"

namespace pantrigo {

/// Shows the lines of a text file: the log of the last import, or a file that may be imported.
struct FrmView : Form {
  FrmView();

  Frame fmeView{*this, "fmeView", "", {120, 60, 8160, 4740}};
  ListBox lstView{fmeView, "lstView", {120, 300, 7920, 4320}};

  CommandButton cmdPrint{*this, "cmdPrint", "&Print", {120, 4920, 1215, 375}};
  CommandButton cmdCancel{*this, "cmdCancel", "&Cancel", {1605, 4920, 1215, 375}};
  CommandButton cmdHelp{*this, "cmdHelp", "&Help", {7065, 4920, 1215, 375}};

  /// The log, which whoever shows the window to read it has opened already.
  std::optional<TextReader> log;
};

}  // namespace pantrigo
