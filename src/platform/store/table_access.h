#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/store/connection.h"
#include "platform/store/schema.h"
#include "platform/store/walk_order.h"

namespace pantrigo {

/// A set of fields of one table, a bit each.
using FieldSet = std::uint64_t;

[[nodiscard]] constexpr FieldSet fieldBit(int field) {
  return FieldSet{1} << field;
}

/// What all cursors of one table share: its orders, its statements, and a number that moves with every change of its
/// rows.
class TableAccess {
 public:
  TableAccess(Connection& connection, const TableDescription& table);

  [[nodiscard]] const TableDescription& table() const { return table_; }
  [[nodiscard]] WalkOrder& physicalOrder() { return *orders_.front(); }
  /// The order of a named index. Error 3015 for an unknown name.
  [[nodiscard]] WalkOrder& order(std::string_view indexName);

  /// The first row of physical order; empty when the table is. Kept until the table changes, since every new cursor
  /// begins there.
  [[nodiscard]] const std::vector<Entry>& firstRow();

  [[nodiscard]] std::uint64_t changeNumber() const { return changeNumber_; }
  /// To be called around every change of the table's rows that is not made by this object.
  void beforeRemoval() { static_cast<void>(highestRowNumber()); }
  void noteChange() { ++changeNumber_; }

  /// Reads a field into its place among `values`, and its neighbours with it: all fields but the memos come together,
  /// each memo alone. Gives the fields read; none when the row is gone.
  [[nodiscard]] FieldSet read(std::int64_t rowNumber, int field, std::vector<Value>& values);

  /// Adds a row behind all others; `values` holds every field. Error 3022, 3026, 3027.
  void insert(const std::vector<Value>& values);
  /// Writes the given fields of a row; false when the row is gone. Errors of `insert`.
  [[nodiscard]] bool write(std::int64_t rowNumber, FieldSet fields, const std::vector<Value>& values);
  /// False when the row is gone already. Error 3027.
  [[nodiscard]] bool remove(std::int64_t rowNumber);
  [[nodiscard]] long countRows();
  /// The highest row number that was ever in use while the store is open; 0 when none was.
  [[nodiscard]] std::int64_t highestRowNumber();

 private:
  [[nodiscard]] Statement& readStatement(int field);
  [[nodiscard]] Statement& writeStatement(FieldSet fields);

  Connection& connection_;
  const TableDescription& table_;
  /// Physical order, then the indexes.
  std::vector<std::unique_ptr<WalkOrder>> orders_;
  std::uint64_t changeNumber_ = 1;
  /// What `highestRowNumber` gives, once known. A number is not given twice, or a cursor on a removed row would find
  /// itself on a new one.
  std::optional<std::int64_t> lastRowNumber_;

  std::vector<Entry> firstRow_;
  /// The change number at which it was read.
  std::uint64_t firstRowStamp_ = 0;

  /// All fields but the memos.
  std::vector<int> shortFields_;
  Statement* readShort_ = nullptr;
  std::vector<Statement*> readMemo_;
  Statement* insert_ = nullptr;
  Statement* remove_ = nullptr;
  std::unordered_map<FieldSet, Statement*> write_;
};

}  // namespace pantrigo
