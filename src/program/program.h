#pragma once

#include <filesystem>

#include "core/run.h"

namespace pantrigo {

/// The composition root: one object is one run of the program, its events wired to its routines.
class Program {
 public:
  /// Nothing is opened or shown before `start`. The toolkit must outlive the program.
  Program(Toolkit& toolkit, std::filesystem::path folder);

  /// Start-up, until the main window is on show; goes through the dispatcher. After a failure `ended` is true.
  void start();

  /// Whether the run has ended, and how: 0 after a quiet end, 1 after a run-time error.
  [[nodiscard]] bool ended() const { return run_.loop.ended(); }
  [[nodiscard]] int exitStatus() const { return run_.loop.error().has_value() ? 1 : 0; }

  [[nodiscard]] Run& run() { return run_; }

 private:
  Run run_;
};

}  // namespace pantrigo
