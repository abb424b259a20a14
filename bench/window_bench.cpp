// The program with its real windows, on a platform without a screen: start-up against the plain loop, and the memory
// that a long list takes.

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "build_window.h"
#include "desktop/desktop.h"
#include "desktop/look.h"
#include "large_store.h"
#include "next_window.h"
#include "plain_sqlite.h"
#include "ratios.h"

namespace pantrigo::bench {
namespace {

constexpr int repetitions = 5;
/// Most private memory in kilobytes that a list of all titles may take above an empty one.
constexpr long memoryBound = 60 * 1024;

void StartWindow(benchmark::State& state) {
  const std::filesystem::path folder = largeStoreFolder();
  for (auto round : state) {
    Desktop desktop(folder);
    desktop.start();
    QCoreApplication::processEvents();
    benchmark::DoNotOptimize(desktop.program().run().frmBrowse.lstTitles.ListCount());
    state.PauseTiming();
    desktop.close();
    state.ResumeTiming();
  }
}
BENCHMARK(StartWindow)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

void StartPlain(benchmark::State& state) {
  PlainSqlite plain(largeStoreFolder());
  for (auto round : state) benchmark::DoNotOptimize(plain.walkTitles());
}
BENCHMARK(StartPlain)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

/// Private memory of this process in kilobytes, as the system accounts for it.
long privateKilobytes() {
  std::ifstream accounts("/proc/self/smaps_rollup");
  long sum = 0;
  for (std::string line; std::getline(accounts, line);) {
    if (!line.starts_with("Private_")) continue;
    const std::size_t digits = line.find_first_of("0123456789");
    long kilobytes = 0;
    std::from_chars(line.data() + digits, line.data() + line.size(), kilobytes);
    sum += kilobytes;
  }
  return sum;
}

/// Runs the program over a store in a process of its own, and gives that process's private memory with the list on
/// show.
long measuredMemory(const std::filesystem::path& folder) {
  int pipeEnds[2];
  if (pipe(pipeEnds) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    int argumentCount = 1;
    char name[] = "pantrigo";
    char* arguments[] = {name, nullptr};
    QApplication application(argumentCount, arguments);
    applyLook(application, 1);
    Desktop desktop(folder);
    desktop.start();
    for (int turn = 0; turn < 10; ++turn) QCoreApplication::processEvents();
    const long kilobytes = privateKilobytes();
    const bool told = write(pipeEnds[1], &kilobytes, sizeof kilobytes) == static_cast<ssize_t>(sizeof kilobytes);
    desktop.close();
    _exit(told ? 0 : 1);
  }
  long kilobytes = 0;
  if (read(pipeEnds[0], &kilobytes, sizeof kilobytes) != static_cast<ssize_t>(sizeof kilobytes)) std::abort();
  waitpid(child, nullptr, 0);
  close(pipeEnds[0]);
  close(pipeEnds[1]);
  return kilobytes;
}

bool memoryKept() {
  const long listed = measuredMemory(largeStoreFolder());
  const long empty = measuredMemory(emptyStoreFolder());
  const bool kept = listed - empty <= memoryBound;
  std::cout << (kept ? "kept    " : "MISSED  ")
            << "private memory of 100,000 titles above an empty list: " << (listed - empty) / 1024 << " MB of at most "
            << memoryBound / 1024 << " (" << listed / 1024 << " MB in all)\n";
  return kept;
}

}  // namespace
}  // namespace pantrigo::bench

int main(int argumentCount, char** argumentValues) {
  using namespace pantrigo::bench;
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  const bool memory = memoryKept();
  QApplication application(argumentCount, argumentValues);
  pantrigo::applyLook(application, 1);
  const bool build = windowKeepsUpWithTheBuild();
  const bool next = windowShowsRecipesQuickly();
  const int ratios =
      runRatios(argumentCount, argumentValues,
                {{"start-up, with the window", "StartWindow", "StartPlain", 5.0},
                 {"opening the ingredient dialog, 500 words and rows", "OpenIngredient", "OpenPlainDialog", 3.0}});
  return memory && build && next && ratios == 0 ? 0 : 1;
}
