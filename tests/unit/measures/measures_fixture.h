#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/run.h"
#include "support/quiet_toolkit.h"

namespace pantrigo {

/// One row held in memory, that stands in for a row of the store. Reading a field that it doesn't hold is error 3265.
class HeldRow : public Cursor {
 public:
  void setIndex(std::string_view) override {}
  void seek(std::string_view, const std::vector<Value>&) override {}
  [[nodiscard]] bool noMatch() const override { return false; }
  [[nodiscard]] bool eof() override { return false; }
  void moveNext() override {}
  void moveFirst() override {}
  [[nodiscard]] const Value& field(std::string_view name) override;
  void setField(std::string_view name, const Value& value) override { fields[std::string(name)] = value; }
  void addNew() override {}
  void edit() override {}
  void update() override {}
  void remove() override {}
  [[nodiscard]] long recordCount() override { return 1; }

  std::map<std::string, Value, std::less<>> fields;
};

/// Options to be set before a row of a test's table.
using Options = std::map<std::string, Value, std::less<>>;

/// Runs over a held row of options: metric, a cup of 250 ml, three teaspoons to a tablespoon, decimals in tenths, all
/// centi levels shown, nothing scaled and no unit kept.
class MeasuresTest : public testing::Test {
 protected:
  MeasuresTest();

  /// The options above, with some of them changed.
  void setOptions(const Options& changed);
  /// Makes the ingredient rows of the texts, six columns each.
  void setRows(const std::vector<IngredientRow>& rows);
  /// A row whose base columns are a copy of what was entered.
  static IngredientRow entered(std::string_view quantity, std::string_view unit, std::string_view description = "",
                               std::string_view preparation = "");
  /// The lines of the detail window's ingredient list.
  [[nodiscard]] std::vector<std::string> listed() const;
  /// The lines after a call in mode "s".
  std::vector<std::string> shown(const Value& makes = false);

  QuietToolkit toolkit;
  pantrigo::Run run{toolkit, "."};
  std::shared_ptr<HeldRow> system = std::make_shared<HeldRow>();
  std::shared_ptr<HeldRow> recipe = std::make_shared<HeldRow>();
};

/// The number of the run-time error that a statement raises; 0 when it runs to its end.
template <class Statement>
int errorOf(Statement&& statement) {
  try {
    statement();
    return 0;
  } catch (const RuntimeError& error) {
    return error.number();
  }
}

}  // namespace pantrigo
