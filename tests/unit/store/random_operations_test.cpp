#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>

#include "platform/store/store_state.h"
#include "platform/text/collation.h"
#include "unit/store/model_store.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

constexpr int operations = 20000;
constexpr int operationsBetweenFullChecks = 250;
constexpr unsigned highestId = 200;
constexpr unsigned seeds[] = {1, 20010305};

/// A table with one of its cursors, once in the store and once in the model.
struct Pair {
  ModelTable* table;
  Recordset real;
  ModelCursor model;
};

/// Plays the same random operations on several cursors of two tables of a store, and on a model in memory, and
/// compares all that can be seen.
class RandomOperationsTest : public StoreTest, public testing::WithParamInterface<unsigned> {
 protected:
  RandomOperationsTest() : random_(GetParam()) {
    database.setDurability(Database::Durability::AtCheckpoint);
    for (int count = 0; count < 3; ++count) addPair(recipes_);
    for (int count = 0; count < 2; ++count) addPair(links_);
  }

  void addPair(ModelTable& table) {
    pairs_.push_back(
        std::make_unique<Pair>(Pair{&table, database.OpenRecordset(table.description().name), ModelCursor(table)}));
  }

  unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  Value randomValue(FieldType type) {
    static const std::array<Value, 14> texts{Value(),        Value(""),        Value(" "),   Value("Apple"),
                                             Value("apple"), Value("APPLE "),  Value("Pie"), Value("Cr\xC3\xA8me"),
                                             Value("Creme"), Value("creme a"), Value("10"),  Value("9"),
                                             Value("-a"),    Value("Zest")};
    if (type == FieldType::Text) return texts[below(texts.size())];
    if (type == FieldType::YesNo) return below(2) == 0;
    return below(25) == 0 ? Value() : Value(static_cast<int>(1 + below(highestId)));
  }

  const FieldDescription& randomField(const ModelTable& table) {
    // Of a recipe's many fields those that an index holds, and one that none does.
    static const std::array<std::string_view, 5> recipeFields{"RecipeId", "Title", "Meal", "Nationality", "Source"};
    const auto fields = table.description().fields;
    if (table.description().name != "Recipe") return fields[below(static_cast<unsigned>(fields.size()))];
    return fields[table.place(recipeFields[below(recipeFields.size())])];
  }

  const IndexDescription& randomIndex(const ModelTable& table) {
    const auto indexes = table.description().indexes;
    return indexes[below(static_cast<unsigned>(indexes.size()))];
  }

  void expectSame(const char* operation, int real, int model) {
    ASSERT_EQ(real, model) << operation << " at step " << step_;
  }

  void seek(Pair& pair) {
    // Mostly with the index at hand, since choosing one leaves no position.
    const IndexDescription& index = randomIndex(*pair.table);
    pair.real.Index(index.name);
    pair.model.setIndex(index.name);
    static const std::array<std::string_view, 3> comparisons{"=", ">", ">="};
    const std::string_view comparison = comparisons[below(3)];
    std::vector<Value> key;
    for (const std::string_view field : index.keyFields) {
      if (!field.empty()) key.push_back(randomValue(pair.table->description().fields[pair.table->place(field)].type));
    }
    const int error = errorOf([&] {
      if (key.size() == 1) {
        pair.real.Seek(comparison, key[0]);
      } else {
        pair.real.Seek(comparison, {key[0], key[1]});
      }
    });
    expectSame("Seek", error, pair.model.seek(comparison, key));
  }

  void write(Pair& pair, const FieldDescription& field) {
    const Value value = randomValue(field.type);
    expectSame("Set", errorOf([&] { pair.real.Set(field.name, value); }), pair.model.set(field.name, value));
  }

  void writeSome(Pair& pair) {
    for (unsigned count = below(4); count > 0; --count) write(pair, randomField(*pair.table));
  }

  void add(Pair& pair) {
    expectSame("AddNew", errorOf([&] { pair.real.AddNew(); }), pair.model.addNew());
    write(pair, pair.table->description().fields[0]);
    writeSome(pair);
    // Some stay pending, to be dropped by what comes next.
    if (below(4) != 0) expectSame("Update", errorOf([&] { pair.real.Update(); }), pair.model.update());
  }

  void removeByText(Pair& pair) {
    const std::string table(pair.table->description().name);
    const int id = static_cast<int>(1 + below(highestId));
    database.Execute(" Delete FROM " + table + " WHERE " + table + "!RecipeId = " + std::to_string(id));
    pair.table->removeWhere("RecipeId", id);
  }

  void operate(Pair& pair) {
    Recordset& real = pair.real;
    switch (below(16)) {
      case 0:
      case 1:
        return seek(pair);
      case 2:
        return expectSame("MoveFirst", errorOf([&] { real.MoveFirst(); }), pair.model.moveFirst());
      case 3:
      case 4:
        return add(pair);
      case 5:
      case 6:
        expectSame("Edit", errorOf([&] { real.Edit(); }), pair.model.edit());
        return writeSome(pair);
      case 7:
      case 8:
      case 9:
        return expectSame("Update", errorOf([&] { real.Update(); }), pair.model.update());
      case 10:
        if (below(2) != 0) return;
        return expectSame("Delete", errorOf([&] { real.Delete(); }), pair.model.remove());
      case 11:
        if (below(2) == 0) removeByText(pair);
        return;
      default:
        return expectSame("MoveNext", errorOf([&] { real.MoveNext(); }), pair.model.moveNext());
    }
  }

  void compare(Pair& pair) {
    ASSERT_EQ(pair.real.Eof(), pair.model.eof()) << "step " << step_;
    ASSERT_EQ(pair.real.NoMatch(), pair.model.noMatch()) << "step " << step_;
    const FieldDescription& field = randomField(*pair.table);
    Value real;
    Value model;
    const int error = errorOf([&] { real = pair.real.Field(field.name); });
    expectSame("Field", error, pair.model.field(field.name, model));
    ASSERT_EQ(real, model) << field.name << " at step " << step_;
  }

  void compareTable(ModelTable& table) {
    const std::vector<RawRow> real = rawRows(database, table.description().name);
    ASSERT_EQ(real.size(), table.rows().size());
    for (std::size_t row = 0; row < real.size(); ++row) {
      for (const FieldDescription& field : table.description().fields) {
        ASSERT_EQ(real[row].find(field.name)->second, table.rows()[row].values[table.place(field.name)])
            << "step " << step_;
      }
    }
  }

  /// A walk along a whole index, in the middle of all else.
  void compareOrder(ModelTable& table) {
    const IndexDescription& index = randomIndex(table);
    Recordset walk = database.OpenRecordset(table.description().name);
    walk.Index(index.name);
    walk.MoveFirst();
    for (const ModelTable::Row& row : table.ordered(&index)) {
      ASSERT_FALSE(walk.Eof()) << index.name << " at step " << step_;
      for (const FieldDescription& field : table.description().fields) {
        ASSERT_EQ(walk.Field(field.name), row.values[table.place(field.name)]) << index.name << " at step " << step_;
      }
      walk.MoveNext();
    }
    ASSERT_TRUE(walk.Eof());
  }

  /// Titles without their repeats, and in order.
  void compareList() {
    std::vector<ModelTable::RowKey> expected;
    for (const ModelTable::Row& row : recipes_.rows()) {
      expected.push_back({row.values[recipes_.place("Title")], row.values[recipes_.place("Meal")]});
    }
    const auto before = [](const auto& left, const auto& right) { return ModelTable::compare(left, right) < 0; };
    const auto same = [](const auto& left, const auto& right) { return ModelTable::compare(left, right) == 0; };
    std::ranges::sort(expected, before);
    const auto [end, last] = std::ranges::unique(expected, same);
    expected.erase(end, last);
    Recordset list = database.OpenRecordset(" SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe ");
    for (const ModelTable::RowKey& row : expected) {
      ASSERT_FALSE(list.Eof());
      ASSERT_EQ(ModelTable::compare(list.Field("Title"), row[0]), 0) << "step " << step_;
      ASSERT_EQ(list.Field("Meal"), row[1]) << "step " << step_;
      list.MoveNext();
    }
    ASSERT_TRUE(list.Eof());
  }

  void compareAll() {
    for (ModelTable* table : {&recipes_, &links_}) {
      ASSERT_NO_FATAL_FAILURE(compareTable(*table));
      ASSERT_NO_FATAL_FAILURE(compareOrder(*table));
    }
    ASSERT_NO_FATAL_FAILURE(compareList());
    ASSERT_EQ(StoreAccess::state(database).connection().single("PRAGMA integrity_check"), "ok");
  }

  void run() {
    for (step_ = 1; step_ <= operations; ++step_) {
      Pair& pair = *pairs_[below(static_cast<unsigned>(pairs_.size()))];
      ASSERT_NO_FATAL_FAILURE(operate(pair));
      ASSERT_NO_FATAL_FAILURE(compare(pair));
      ASSERT_NO_FATAL_FAILURE(compare(*pairs_[below(static_cast<unsigned>(pairs_.size()))]));
      if (step_ % operationsBetweenFullChecks != 0) continue;
      ASSERT_NO_FATAL_FAILURE(compareAll());
    }
    // Enough rows that walks read ahead, grow their batches, and lose them again.
    EXPECT_GT(recipes_.rows().size(), 64U);
  }

 private:
  std::mt19937 random_;
  ModelTable recipes_{"Recipe"};
  ModelTable links_{"RecipeHealth"};
  std::vector<std::unique_ptr<Pair>> pairs_;
  int step_ = 0;
};

TEST_P(RandomOperationsTest, StoreAndModelAgree) {
  run();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomOperationsTest, testing::ValuesIn(seeds));

}  // namespace
}  // namespace pantrigo
