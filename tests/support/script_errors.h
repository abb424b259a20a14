#pragma once

#include <stdexcept>
#include <string>

namespace pantrigo {

/// A call that a script can't make, or can't make now. The script sees it as an ordinary error of its language.
class ScriptError : public std::runtime_error {
 public:
  explicit ScriptError(const std::string& text) : std::runtime_error(text) {}
};

/// Leaves a function of the script at once: its case has failed, or the run of the program has ended under it. No
/// script can catch it.
struct LeaveFunction {};

/// What made a case fail: `place` is "FILE:LINE".
struct Failure {
  std::string place;
  std::string text;
};

}  // namespace pantrigo
