#include "build_window.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <functional>
#include <iostream>
#include <vector>

#include "desktop/desktop.h"
#include "large_store.h"
#include "support/quiet_toolkit.h"

namespace pantrigo::bench {

namespace {

constexpr int repetitions = 5;
/// Most that the window may add, in milliseconds.
constexpr double bound = 150;

/// The median of several runs, in milliseconds.
double median(const std::function<void()>& work) {
  std::vector<double> times;
  for (int round = 0; round < repetitions; ++round) {
    const auto start = std::chrono::steady_clock::now();
    work();
    times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  }
  std::ranges::sort(times);
  return times[times.size() / 2];
}

void build(Program& program) {
  program.run().loop.dispatch([&] { program.run().frmBrowse.mnuFilter.Click(); });
}

double logicAlone() {
  QuietToolkit toolkit;
  Program program(toolkit, largeStoreFolder());
  program.start();
  const double time = median([&] { build(program); });
  program.run().loop.dispatch([&] { program.run().loop.End(); });
  return time;
}

double withWindow() {
  Desktop desktop(largeStoreFolder());
  desktop.start();
  QCoreApplication::processEvents();
  const double time = median([&] {
    build(desktop.program());
    QCoreApplication::processEvents();
  });
  desktop.close();
  return time;
}

}  // namespace

bool windowKeepsUpWithTheBuild() {
  const double logic = logicAlone();
  const double window = withWindow();
  const bool kept = window - logic <= bound;
  std::cout << (kept ? "kept    " : "MISSED  ") << "build of all titles, added by the window: " << window - logic
            << " ms of at most " << bound << " (logic alone " << logic << " ms)\n";
  return kept;
}

}  // namespace pantrigo::bench
