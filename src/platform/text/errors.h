#pragma once

#include <exception>
#include <string>

namespace pantrigo {

/// A run-time error of the platform: a number and a text. Statement guards catch this type and no other.
class RuntimeError : public std::exception {
 public:
  /// Takes the number; the text is that of `errorText`, or the given detail where one is given.
  explicit RuntimeError(int number);
  RuntimeError(int number, std::string text);

  [[nodiscard]] int number() const noexcept { return number_; }
  [[nodiscard]] const std::string& text() const noexcept { return text_; }
  [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

 private:
  int number_;
  std::string text_;
};

/// Thrown from our own frames once the run is marked as ended, so that no routine goes on over a closed
/// store. Only the outermost boundary of an event catches it.
class RunEnded : public std::exception {
 public:
  [[nodiscard]] const char* what() const noexcept override { return "the run has ended"; }
};

/// The text that belongs to a run-time error number; a general text for a number that is not in the table.
[[nodiscard]] std::string errorText(int number);

/// Runs one statement of a routine that ignores errors: a run-time error in it is dropped and the next
/// statement runs. Gives whether the statement ran to its end.
template <class Statement>
bool guarded(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace pantrigo
