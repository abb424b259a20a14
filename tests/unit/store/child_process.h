#pragma once

#include <sys/types.h>

#include <functional>

namespace pantrigo {

/// The child's end of the way on which it tells its parent how far it got.
class ReportPipe {
 public:
  explicit ReportPipe(int descriptor) : descriptor_(descriptor) {}
  void report(int number);
  /// Until the parent ends this process.
  [[noreturn]] static void waitForEver();

 private:
  int descriptor_;
};

/// A process of its own that works on a store. It is killed, as by a power cut of the program, when the object goes.
class ChildProcess {
 public:
  explicit ChildProcess(const std::function<void(ReportPipe&)>& work);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  /// Waits for the next report; false when the child has ended instead.
  [[nodiscard]] bool waitForReport();
  /// The number of the last report read.
  [[nodiscard]] int lastReport() const { return lastReport_; }
  /// Ends the child at once (SIGKILL) and reads the reports that it still made.
  void kill();

 private:
  pid_t process_ = -1;
  int descriptor_ = -1;
  int lastReport_ = 0;
};

}  // namespace pantrigo
