#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/controls/toolkit.h"
#include "platform/text/errors.h"

namespace pantrigo {

/// The way of events into the program and of its waits out of it. A run is marked as ended by an error, by `End`, or by
/// the closing of the main window; from then on every wait throws `RunEnded` from our own frame, so that no routine
/// goes on over a closed store.
class EventLoop {
 public:
  explicit EventLoop(Toolkit& toolkit) : toolkit_(toolkit) {}

  /// The one entry for events raised by a person or by the toolkit. Nothing that is thrown inside leaves it: a run-time
  /// error shows its box and marks the run as ended. When the outermost call returns and the run has ended, `closing`
  /// has run.
  void dispatch(const std::function<void()>& event);

  /// What is done once, after the unwinding, when the run has ended: closing the store in order.
  std::function<void()> closing;

  /// Ends the run: marks it and unwinds.
  [[noreturn]] void End();

  [[nodiscard]] bool ended() const { return ended_; }
  /// Whether events are being handled now.
  [[nodiscard]] bool busy() const { return depth_ > 0; }
  /// The error that ended the run; nothing after a quiet end.
  [[nodiscard]] const std::optional<RuntimeError>& error() const { return error_; }

  /// Message box, event pump and modal wait for the routines.
  BoxAnswer MsgBox(std::string_view text, int style, std::string_view caption);
  void DoEvents();
  void waitModal(Form& form, const std::function<bool()>& over);

  [[nodiscard]] Toolkit& toolkit() const { return toolkit_; }

 private:
  void throwIfEnded() const;
  void fail(const RuntimeError& error);

  Toolkit& toolkit_;
  int depth_ = 0;
  bool ended_ = false;
  bool closed_ = false;
  std::optional<RuntimeError> error_;
};

/// Caption of the run-time error box.
inline constexpr std::string_view programCaption = "Pantrigo";

}  // namespace pantrigo
