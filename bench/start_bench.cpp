#include <benchmark/benchmark.h>

#include "large_store.h"
#include "plain_sqlite.h"
#include "program/program.h"
#include "support/quiet_toolkit.h"

namespace pantrigo::bench {
namespace {

constexpr int repetitions = 5;

/// Start-up with all recipes listed, until the main window would be on show; the end of the run isn't counted.
void StartLogic(benchmark::State& state) {
  QuietToolkit toolkit;
  const std::filesystem::path folder = largeStoreFolder();
  for (auto round : state) {
    Program program(toolkit, folder);
    program.start();
    benchmark::DoNotOptimize(program.run().frmBrowse.lstTitles.ListCount());
    state.PauseTiming();
    program.run().loop.dispatch([&] { program.run().loop.End(); });
    state.ResumeTiming();
  }
}
BENCHMARK(StartLogic)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

void StartPlain(benchmark::State& state) {
  PlainSqlite plain(largeStoreFolder());
  for (auto round : state) benchmark::DoNotOptimize(plain.walkTitles());
}
BENCHMARK(StartPlain)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pantrigo::bench
