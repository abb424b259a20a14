#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace pantrigo {

// Controls that belong to a form and that nobody sees on it. They have no place, take no focus and can't be clicked.

/// What a common dialog can show, by the platform's numbers.
enum class DialogAction : int { Printer = 5, Help = 6 };

/// Commands of the help, by the platform's numbers: the page of a context, the search by the beginning of a word.
enum HelpCommand : int { helpOfContext = 1, helpPartialKey = 261 };

/// Gives a form the dialogs of the system: the values say what is to be shown, the action shows it and waits where the
/// system's dialog does.
class CommonDialog : public Control {
 public:
  CommonDialog(Holder holder, std::string_view name);

  /// The platform's flags for the dialog of the printer's set-up.
  [[nodiscard]] int Flags() const { return values_.flags; }
  void setFlags(int flags) { values_.flags = flags; }
  [[nodiscard]] const std::string& HelpFile() const { return values_.helpFile; }
  void setHelpFile(std::string_view file) { values_.helpFile = file; }
  [[nodiscard]] int HelpCommand() const { return values_.helpCommand; }
  void setHelpCommand(int command) { values_.helpCommand = command; }
  [[nodiscard]] int HelpContext() const { return values_.helpContext; }
  void setHelpContext(int context) { values_.helpContext = context; }

  /// The number of the action that was started last, 0 for none.
  [[nodiscard]] int Action() const { return values_.action; }
  /// Shows the dialog. Nothing is shown while the form was never loaded.
  void setAction(DialogAction action);

  void reset() override;

 private:
  struct Values {
    int flags = 0;
    std::string helpFile;
    int helpCommand = 0;
    int helpContext = 0;
    int action = 0;
  };

  Values values_;
};

/// The pictures of a tool bar in one size, found by their numbers.
class ImageList : public Control {
 public:
  /// `side` is the width and height of each picture in pixels of a plain screen; `pictures` are their names.
  ImageList(Holder holder, std::string_view name, int side, std::vector<std::string> pictures);

  [[nodiscard]] int side() const { return side_; }
  [[nodiscard]] int count() const { return static_cast<int>(pictures_.size()); }
  /// The name of a picture, counted from 1; empty out of range.
  [[nodiscard]] const std::string& picture(int number) const;

 private:
  int side_;
  std::vector<std::string> pictures_;
};

}  // namespace pantrigo
