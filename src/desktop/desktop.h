#pragma once

#include <filesystem>

#include "desktop/qt_toolkit.h"
#include "program/program.h"

namespace pantrigo {

/// One run of the program in real windows. Needs a QApplication that stands.
class Desktop {
 public:
  /// The store lies in the folder.
  explicit Desktop(std::filesystem::path folder);
  ~Desktop() { toolkit_.dropAllViews(); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Start-up, until the main window is on show or the run has ended.
  void start() { program_.start(); }
  /// Runs until the end of the program; gives its exit status.
  int run();
  /// Ends the program as the close mark of the main window does; at once while there is no such window yet.
  void close();

  [[nodiscard]] Program& program() { return program_; }
  [[nodiscard]] QtToolkit& toolkit() { return toolkit_; }

 private:
  QtToolkit toolkit_;
  Program program_;
};

}  // namespace pantrigo
