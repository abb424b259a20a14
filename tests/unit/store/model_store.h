#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/store/schema.h"
#include "platform/store/value.h"

namespace pantrigo {

/// A table as plain rows in memory, each operation written in the simplest way there is.
class ModelTable {
 public:
  struct Row {
    std::int64_t number;
    /// By the place of the field in the table.
    std::vector<Value> values;
  };
  using RowKey = std::vector<Value>;

  explicit ModelTable(std::string_view name) : description_(*findTable(name)) {}

  [[nodiscard]] const TableDescription& description() const { return description_; }
  [[nodiscard]] std::vector<Row>& rows() { return rows_; }
  [[nodiscard]] const Row* find(std::int64_t number) const;
  [[nodiscard]] std::size_t place(std::string_view field) const;
  [[nodiscard]] std::vector<Value> newValues() const;
  [[nodiscard]] RowKey keyOf(const Row& row, const IndexDescription* index) const;
  /// Rows in the order of an index, or in physical order when there is none.
  [[nodiscard]] std::vector<Row> ordered(const IndexDescription* index) const;
  /// The first row behind a place of that order.
  [[nodiscard]] std::optional<Row> next(const IndexDescription* index, const RowKey& key, std::int64_t number) const;
  /// 0, or the number of the run-time error.
  int insert(std::vector<Value> values);
  int replace(std::int64_t number, std::vector<Value> values);
  bool remove(std::int64_t number);
  void removeWhere(std::string_view field, const Value& value);

  /// Negative, zero or positive as a key sorts; Null comes first.
  [[nodiscard]] static int compare(const Value& left, const Value& right);
  [[nodiscard]] static int compare(const RowKey& left, const RowKey& right);

 private:
  [[nodiscard]] bool wouldRepeat(const std::vector<Value>& values, std::int64_t number) const;

  const TableDescription& description_;
  std::vector<Row> rows_;
  std::int64_t lastNumber_ = 0;
};

/// A cursor over such a table. Each operation gives 0, or the number of the run-time error.
class ModelCursor {
 public:
  explicit ModelCursor(ModelTable& table) : table_(table) { moveFirst(); }

  int setIndex(std::string_view name);
  int seek(std::string_view comparison, const std::vector<Value>& key);
  int moveFirst();
  int moveNext();
  int field(std::string_view name, Value& value) const;
  int set(std::string_view name, const Value& value);
  int addNew();
  int edit();
  int update();
  int remove();
  [[nodiscard]] bool eof() const { return place_ == Place::None; }
  [[nodiscard]] bool noMatch() const { return noMatch_; }

 private:
  enum class Place { None, Row, Removed };

  void standOn(const std::optional<ModelTable::Row>& row);
  [[nodiscard]] int rowError() const;

  ModelTable& table_;
  const IndexDescription* index_ = nullptr;
  Place place_ = Place::None;
  bool noMatch_ = false;
  std::int64_t number_ = 0;
  /// The row's key when the cursor came to it.
  ModelTable::RowKey key_;

  struct Pending {
    bool isNew;
    std::vector<std::optional<Value>> written;
  };
  std::optional<Pending> pending_;
};

}  // namespace pantrigo
