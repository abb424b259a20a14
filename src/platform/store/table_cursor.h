#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/store/recordset.h"
#include "platform/store/row_reader.h"
#include "platform/store/store_state.h"
#include "platform/store/table_access.h"
#include "platform/store/walk_order.h"

namespace pantrigo {

/// A cursor over a table. It is a place (key and row number) in an order, with some rows read ahead; those are dropped
/// when the table has changed, and the walk goes on from where its row stands then.
class TableCursor final : public Cursor {
 public:
  /// Stands on the first row of physical order.
  TableCursor(std::shared_ptr<Database::State> state, const TableDescription& table);

  void setIndex(std::string_view name) override;
  void seek(std::string_view comparison, const std::vector<Value>& key) override;
  [[nodiscard]] bool noMatch() const override;
  [[nodiscard]] bool eof() override;
  void moveNext() override;
  void moveFirst() override;
  [[nodiscard]] const Value& field(std::string_view name) override;
  void setField(std::string_view name, const Value& value) override;
  void addNew() override;
  void edit() override;
  void update() override;
  void remove() override;
  [[nodiscard]] long recordCount() override;

 private:
  /// None: no current row, as behind the last one or after a seek without a match. Removed: the row was deleted through
  /// this cursor, which keeps its place.
  enum class Place { None, Row, Removed };

  /// The row being added, or the changes to the current one.
  struct Pending {
    enum class Kind { Add, Edit };
    Kind kind;
    std::vector<Value> values;
    FieldSet written = 0;
  };

  [[nodiscard]] TableAccess& access() const { return state_->access(table_); }
  [[nodiscard]] int fieldPlace(std::string_view name) const;
  [[nodiscard]] const Entry& current() const { return entries_[at_]; }
  [[nodiscard]] const Value& currentField(TableAccess& access, int field);
  [[nodiscard]] Key seekKey(const std::vector<Value>& key) const;
  [[nodiscard]] bool canBeEqual(const std::vector<Value>& key) const;
  void requireRow() const;
  void requirePending() const;
  void standOnFirstEntry(const TableAccess& access);
  void readOn(TableAccess& access);

  std::shared_ptr<Database::State> state_;
  const TableDescription& table_;
  WalkOrder* order_ = nullptr;
  Place place_ = Place::None;
  bool noMatch_ = false;
  /// The current row and those read ahead; the change number at which they were read.
  std::vector<Entry> entries_;
  std::size_t at_ = 0;
  std::uint64_t stamp_ = 0;
  std::size_t batch_ = 1;
  RowReader row_;
  std::optional<Pending> pending_;
};

}  // namespace pantrigo
