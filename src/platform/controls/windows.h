#pragma once

#include <vector>

#include "platform/controls/event_loop.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// Keeps which forms are loaded and on show, which is active, and where the focus is. `Form_Activate` runs when the
/// active form changes: by `Show`, by the hiding or unload of the active one, by a person's action on another modeless
/// form. Message boxes, common dialogs and other programs change nothing.
class Windows {
 public:
  explicit Windows(EventLoop& loop) : loop_(loop) {}

  /// Loads the form, hidden, unless it is loaded: its values become those of the design and `Form_Load` runs.
  void Load(Form& form);
  /// Shows and activates the form without waiting.
  void Show(Form& form);
  /// Shows the form and waits until it is hidden or unloaded. Error 400 when it is on show already.
  void ShowModal(Form& form);
  /// Takes the form off the screen; its values stay.
  void Hide(Form& form);
  /// Runs `Form_Unload`, takes the form off the screen and lets its view go. Nothing for a form that isn't loaded.
  void Unload(Form& form);

  /// Gives the focus to a control by code. Error 5 when it can't be reached or its form is not on show.
  void SetFocus(Control& control);

  [[nodiscard]] Form* active() const { return active_; }
  /// Whether a modal form stands over this one.
  [[nodiscard]] bool blocked(const Form& form) const;
  [[nodiscard]] EventLoop& loop() const { return loop_; }

  // A person's doings that change the active form or the focus.

  /// The user clicks on the window of a form that is on show and not blocked.
  void userActivates(Form& form);
  /// The user moves the focus to a reachable control: its form is activated, `LostFocus` and `GotFocus` run.
  void userFocuses(Control& control);
  /// The user clicks the close mark.
  void userCloses(Form& form);
  /// The user minimises or restores the window.
  void userMinimises(Form& form, bool minimised);

 private:
  friend class Control;
  void activate(Form& form);
  void activateBelow();
  void moveFocus(Control& control);
  /// A control of the form was hidden or disabled: the focus goes on when it can't stay.
  void focusLost(Form& form);
  void takeOff(Form& form);

  EventLoop& loop_;
  Form* active_ = nullptr;
  Form* activating_ = nullptr;
  std::vector<Form*> order_;
  std::vector<Form*> modal_;
};

}  // namespace pantrigo
