#include "desktop/end_signals.h"

#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace pantrigo {

EndSignals::EndSignals() {
  sigset_t ends;
  sigemptyset(&ends);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&ends, signal);
  if (pthread_sigmask(SIG_BLOCK, &ends, nullptr) != 0) return;
  descriptor_ = signalfd(-1, &ends, SFD_CLOEXEC | SFD_NONBLOCK);
}

EndSignals::~EndSignals() {
  notifier_.reset();
  if (descriptor_ >= 0) close(descriptor_);
}

void EndSignals::connect(std::function<void()> whenSignalled) {
  if (descriptor_ < 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this, whenSignalled = std::move(whenSignalled)] {
                     signalfd_siginfo signal{};
                     if (read(descriptor_, &signal, sizeof signal) == static_cast<ssize_t>(sizeof signal))
                       whenSignalled();
                   });
}

}  // namespace pantrigo
