#include "unit/store/child_process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace pantrigo {

void ReportPipe::report(int number) {
  if (write(descriptor_, &number, sizeof number) != static_cast<ssize_t>(sizeof number)) _exit(EXIT_FAILURE);
}

void ReportPipe::waitForEver() {
  for (;;) pause();
}

ChildProcess::ChildProcess(const std::function<void(ReportPipe&)>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  process_ = fork();
  if (process_ < 0) throw std::runtime_error("no process");
  if (process_ == 0) {
    close(ends[0]);
    ReportPipe reports(ends[1]);
    work(reports);
    _exit(EXIT_SUCCESS);
  }
  close(ends[1]);
  descriptor_ = ends[0];
}

ChildProcess::~ChildProcess() {
  kill();
  close(descriptor_);
}

bool ChildProcess::waitForReport() {
  int number = 0;
  if (read(descriptor_, &number, sizeof number) != static_cast<ssize_t>(sizeof number)) return false;
  lastReport_ = number;
  return true;
}

void ChildProcess::kill() {
  if (process_ < 0) return;
  ::kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
  process_ = -1;
  while (waitForReport()) {
  }
}

}  // namespace pantrigo
