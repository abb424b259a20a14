#include "build_bench.h"

#include <string>

#include "large_store.h"
#include "list_bench.h"
#include "plain_sqlite.h"
#include "program/program.h"
#include "support/quiet_toolkit.h"

namespace pantrigo::bench {

namespace {

constexpr int repetitions = 5;

/// A filter that a person sets before the list is built.
using Filter = void (*)(FrmBrowse& form);

void filterByCourse(FrmBrowse& form) {
  form.cmbCourse.setText(mainCourse);
}

void filterByHealth(FrmBrowse& form) {
  for (int row = 0; row < form.lstHealth.ListCount(); ++row) {
    if (form.lstHealth.List(row) == commonHealth) form.lstHealth.setSelected(row, true);
  }
}

struct Build {
  const char* name;
  Filter filter;
  const char* yardstick;
  double bound;
};

/// One category alone is a walk down its index into the list, which sorts.
constexpr Build builds[] = {
    {"build of a course", filterByCourse, courseYardstick, 4.0},
    {"build of a health category", filterByHealth, healthYardstick, 4.0},
};

void runBuild(benchmark::State& state, Filter filter) {
  QuietToolkit toolkit;
  Program program(toolkit, largeStoreFolder());
  program.start();
  FrmBrowse& form = program.run().frmBrowse;
  filter(form);
  for (auto round : state) {
    program.run().loop.dispatch([&] { form.mnuFilter.Click(); });
    benchmark::DoNotOptimize(form.lstTitles.List(0).size());
  }
  program.run().loop.dispatch([&] { program.run().loop.End(); });
}

void runYardstick(benchmark::State& state, const char* sql) {
  PlainSqlite plain(largeStoreFolder());
  for (auto round : state) benchmark::DoNotOptimize(plain.readAll(sql));
}

}  // namespace

std::vector<Ratio> registerBuildBenchmarks() {
  std::vector<Ratio> ratios;
  for (const Build& build : builds) {
    const std::string name = build.name;
    const auto add = [](const std::string& title, auto function, auto argument) {
      benchmark::RegisterBenchmark(title.c_str(), function, argument)
          ->Repetitions(repetitions)
          ->ReportAggregatesOnly(true)
          ->Unit(benchmark::kMillisecond);
    };
    add(name, runBuild, build.filter);
    add(name + ", plain", runYardstick, build.yardstick);
    ratios.push_back({name, name, name + ", plain", build.bound});
  }
  return ratios;
}

}  // namespace pantrigo::bench
