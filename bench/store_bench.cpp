#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "core/start_up.h"
#include "large_store.h"
#include "plain_sqlite.h"

namespace pantrigo::bench {
namespace {

constexpr int repetitions = 5;

void WalkCursor(benchmark::State& state) {
  Database database = Database::OpenDatabase(largeStoreFolder() / storeName);
  Recordset recipes = database.OpenRecordset("Recipe");
  recipes.Index("RecipeIdxTitle");
  for (auto round : state) {
    long sum = 0;
    for (recipes.Seek(">", ""); !recipes.Eof(); recipes.MoveNext()) {
      sum += static_cast<long>(recipes.Field("Title").text().size()) + (recipes.Field("Meal").truth() ? -1 : 0);
    }
    benchmark::DoNotOptimize(sum);
  }
  database.Close();
}
BENCHMARK(WalkCursor)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

void WalkPlain(benchmark::State& state) {
  PlainSqlite plain(largeStoreFolder());
  for (auto round : state) benchmark::DoNotOptimize(plain.walkTitles());
}
BENCHMARK(WalkPlain)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

/// A thousand titles of the made store, in no order.
std::vector<std::string> someTitles() {
  Database database = Database::OpenDatabase(largeStoreFolder() / storeName);
  Recordset recipes = database.OpenRecordset("Recipe");
  recipes.Index("RecipeIdxRecipeId");
  std::mt19937 random(7);
  std::vector<std::string> titles;
  for (int count = 0; count < 1000; ++count) {
    recipes.Seek("=", static_cast<long>(1 + random() % recipeCount));
    titles.push_back(recipes.Field("Title").text());
  }
  database.Close();
  return titles;
}

void SeekCursor(benchmark::State& state) {
  const std::vector<std::string> titles = someTitles();
  Database database = Database::OpenDatabase(largeStoreFolder() / storeName);
  Recordset recipes = database.OpenRecordset("Recipe");
  recipes.Index("RecipeIdxTitle");
  std::size_t place = 0;
  for (auto round : state) {
    recipes.Seek("=", titles[place++ % titles.size()]);
    benchmark::DoNotOptimize(recipes.Field("RecipeId").number());
  }
  database.Close();
}
BENCHMARK(SeekCursor)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond);

void SeekPlain(benchmark::State& state) {
  const std::vector<std::string> titles = someTitles();
  PlainSqlite plain(largeStoreFolder());
  std::size_t place = 0;
  for (auto round : state) benchmark::DoNotOptimize(plain.findTitle(titles[place++ % titles.size()]));
}
BENCHMARK(SeekPlain)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace pantrigo::bench
