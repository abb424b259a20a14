#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/store/connection.h"
#include "platform/store/row_set.h"
#include "platform/store/schema.h"

namespace pantrigo {

/// Most key fields of an index.
inline constexpr int mostKeys = 2;
/// Most fields that are read along with a row's place.
inline constexpr int mostSlots = mostKeys + 2;

using Key = std::array<Value, mostKeys>;

/// A row as a walk sees it: its number, and the fields that come along, the key fields first.
struct Entry {
  std::int64_t rowNumber = 0;
  std::array<Value, mostSlots> values;
};

/// One way through a table: its physical order or one of its indexes. Rows are read a few at a time by statements that
/// are done when the call returns. Null keys come before all others, equal keys in physical order.
class WalkOrder {
 public:
  /// Physical order when `index` is null.
  WalkOrder(Connection& connection, const TableDescription& table, const IndexDescription* index);

  [[nodiscard]] const IndexDescription* index() const { return index_; }
  [[nodiscard]] int keyCount() const { return keyCount_; }
  /// Type of a key field, counted from 0.
  [[nodiscard]] FieldType keyType(int key) const;
  /// Where a field of the table stands in an entry's values; -1 when it does not come along.
  [[nodiscard]] int slotOf(int field) const { return slots_[static_cast<std::size_t>(field)]; }

  // Each appends at most `limit` rows, in this order. With a set of rows, all others are passed over.

  /// The first rows of the table.
  void readFirst(std::size_t limit, std::vector<Entry>& entries, const RowSet* among = nullptr);
  /// Rows with that key.
  void readEqual(const Key& key, std::size_t limit, std::vector<Entry>& entries);
  /// Rows with a key above that one.
  void readAbove(const Key& key, std::size_t limit, std::vector<Entry>& entries, const RowSet* among = nullptr);
  /// Rows behind the one that has, or had, this place.
  void readAfter(const Entry& entry, std::size_t limit, std::vector<Entry>& entries);

  /// Reads a row's values as they are now; false when the row is gone.
  [[nodiscard]] bool readRow(std::int64_t rowNumber, Entry& entry);

 private:
  [[nodiscard]] std::string fieldsText() const;
  [[nodiscard]] std::string selectText() const;
  [[nodiscard]] std::string orderText(int fixedKeys) const;
  [[nodiscard]] std::string keyName(int key) const;
  [[nodiscard]] Statement& sameKeyStatement();
  [[nodiscard]] Statement& aboveStatement(int key, bool orEqual);
  void readValues(const Statement& statement, Entry& entry) const;
  void collect(Running& statement, std::vector<Entry>& entries) const;
  void collectAmong(Running& statement, std::size_t full, std::vector<Entry>& entries, const RowSet& among) const;
  void readSameKey(const Value* key, std::int64_t afterRow, std::size_t limit, std::vector<Entry>& entries);
  void readAbove(const Value* key, std::size_t limit, std::vector<Entry>& entries, const RowSet* among);

  Connection& connection_;
  const TableDescription& table_;
  const IndexDescription* index_;
  int keyCount_ = 0;
  /// The fields in the slots of an entry.
  std::vector<int> fields_;
  /// The slot of each field.
  std::vector<int> slots_;

  Statement* first_ = nullptr;
  Statement* sameKey_ = nullptr;
  Statement* row_ = nullptr;
  std::array<std::array<Statement*, 2>, mostKeys> above_{};
};

}  // namespace pantrigo
