#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/simple_controls.h"
#include "platform/files/files.h"
#include "platform/printer/printer.h"
#include "platform/text/format.h"

namespace pantrigo {

class Form;

/// Styles of a message box, by the platform's numbers.
enum BoxStyle : int { boxStop = 16, boxQuestion = 36, boxExclamation = 48, boxInformation = 64 };

/// The button that ended a message box, by the platform's numbers.
enum class BoxAnswer { OK = 1, Yes = 6, No = 7 };

struct MessageBox {
  std::string text;
  int style = boxInformation;
  std::string caption;
};

/// The screen that the program sees, in twips: the largest area of shape 4 to 3 in the work area of the real one.
struct ScreenSize {
  double width = 9600;
  double height = 7200;
};

/// A call of the help: a context's page, or the search by a word.
struct HelpCall {
  std::string file;
  int command = 1;
  int context = 0;
};

enum class Modality { Modeless, Modal };

/// Everything that blocks or reaches outside. The desktop implements it over real windows, the scenario runner over
/// nothing. None of its functions raises an event of a form by itself but through the dispatcher of `EventLoop`.
class Toolkit {
 public:
  virtual ~Toolkit() = default;

  /// Puts the form on the screen, behind nothing. The view reads all values of the form and listens to it from now on.
  virtual void showView(Form& form, Modality modality) = 0;
  /// Takes the form off the screen; the view may be kept.
  virtual void hideView(Form& form) = 0;
  /// Lets the view go (later, when no frame of it is running any more).
  virtual void dropView(Form& form) = 0;
  /// Brings the form's window to the front and gives it the keyboard.
  virtual void activateView(Form& form) = 0;

  /// Runs events until `over` gives true.
  virtual void waitModal(Form& form, const std::function<bool()>& over) = 0;
  /// Shows a box and waits for the answer. Esc and the close mark of a Yes/No box are No.
  virtual BoxAnswer showBox(const MessageBox& box) = 0;
  /// Handles the events that wait, and returns.
  virtual void pumpEvents() = 0;

  virtual void Beep() = 0;
  [[nodiscard]] virtual LocalTime Now() const = 0;
  [[nodiscard]] virtual ScreenSize screen() const = 0;
  /// The folders where drives are to be found: the root, and the mounted volumes by name.
  [[nodiscard]] virtual std::vector<std::string> drives() const { return {"/"}; }
  /// The pointer of the whole screen; 0 gives each window its own.
  virtual void setScreenPointer(int pointer) = 0;

  virtual void showHelp(const HelpCall& call) = 0;
  /// The printer set-up dialog, with the platform's flags.
  virtual void setUpPrinter(int flags) = 0;
  [[nodiscard]] virtual Printer& printer() = 0;
  /// Loads a Windows Bitmap. Errors: 53 for a missing file, 481 for one that is no bitmap.
  [[nodiscard]] virtual PictureFile LoadPicture(const Files& files, std::string_view name) = 0;
};

}  // namespace pantrigo
