#include <benchmark/benchmark.h>

#include <map>

#include "large_store.h"
#include "measures/show_ingredients.h"
#include "program/program.h"
#include "support/quiet_toolkit.h"

namespace pantrigo::bench {
namespace {

constexpr int repetitions = 5;
constexpr long rowCount = 1000;

/// One row of `System` held in memory: the yardstick for reading it from the store afresh at every use.
class HeldRow : public Cursor {
 public:
  explicit HeldRow(const Recordset& source) {
    for (const std::string_view key :
         {"Measurement", "PartialFractions", "Fractions", "UseOriginalUOM", "Centilitres", "Centimetres", "Centigrams",
          "Cup", "Tablespoon", "Settings", "SettingsIngredients"}) {
      fields_.emplace(key, source.Field(key));
    }
  }
  void setIndex(std::string_view) override {}
  void seek(std::string_view, const std::vector<Value>&) override {}
  [[nodiscard]] bool noMatch() const override { return false; }
  [[nodiscard]] bool eof() override { return false; }
  void moveNext() override {}
  void moveFirst() override {}
  [[nodiscard]] const Value& field(std::string_view name) override { return fields_.find(name)->second; }
  void setField(std::string_view, const Value&) override {}
  void addNew() override {}
  void edit() override {}
  void update() override {}
  void remove() override {}
  [[nodiscard]] long recordCount() override { return 1; }

 private:
  std::map<std::string_view, Value> fields_;
};

void fillRows(Global& global) {
  global.gIngredientRows.assign(static_cast<std::size_t>(rowCount), IngredientRow());
  global.gIngredientLast = rowCount - 1;
  const std::pair<const char*, const char*> amounts[] = {
      {"1 1/2", "cup"}, {"250", "g"}, {"3", "lb"}, {"2", "tbsp"}, {"1/4", "L"}};
  for (std::size_t row = 0; row < global.gIngredientRows.size(); ++row) {
    IngredientRow& target = global.gIngredientRows[row];
    const auto& [quantity, unit] = amounts[row % std::size(amounts)];
    target[1] = target[5] = quantity;
    target[2] = target[6] = unit;
    target[3] = "flour";
    target[4] = "sifted";
  }
}

enum class SystemRow { Stored, Held };

void showRows(benchmark::State& state, SystemRow systemRow) {
  QuietToolkit toolkit;
  Program program(toolkit, emptyStoreFolder());
  program.start();
  Run& run = program.run();
  const Recordset stored = run.GLOBAL.gSystem;
  if (systemRow == SystemRow::Held) run.GLOBAL.gSystem = Recordset(std::make_shared<HeldRow>(stored));
  fillRows(run.GLOBAL);
  for (auto round : state) subShowIngredients(run, "s", false);
  run.GLOBAL.gSystem = stored;
  run.loop.dispatch([&] { run.loop.End(); });
}

void IngredientsStored(benchmark::State& state) {
  showRows(state, SystemRow::Stored);
}
BENCHMARK(IngredientsStored)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond);

void IngredientsHeld(benchmark::State& state) {
  showRows(state, SystemRow::Held);
}
BENCHMARK(IngredientsHeld)->Repetitions(repetitions)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace pantrigo::bench
