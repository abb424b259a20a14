#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace pantrigo {

/// Makes the system's signals to end (SIGTERM, SIGINT, SIGHUP) ordinary events. To be made before the application
/// object, so that all its threads leave the signals to it.
class EndSignals {
 public:
  EndSignals();
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  /// From now on each signal calls the function, from the event loop.
  void connect(std::function<void()> whenSignalled);

 private:
  int descriptor_ = -1;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace pantrigo
