#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/store/query_cursors.h"
#include "platform/store/row_set.h"
#include "platform/store/walk_order.h"

namespace pantrigo {

/// A distinct result in the order of an index that holds all its fields: the key field, then the carried one. Of rows
/// that are equal in these, the first one stored stands for all.
///
/// Which rows are in the result is settled at the opening, and kept in about a bit for each row of the table, or eight
/// bytes for each row of the result where those are few. Their fields are read a page at a time when the walk gets
/// there: so a row that was removed by then is left out, and one that was changed shows what it holds now, but is left
/// out when its new place lies behind the walk.
class DistinctCursor final : public QueryCursor {
 public:
  /// `rowNumbers` are those of the rows that the query finds, each once, in any order.
  DistinctCursor(std::shared_ptr<Database::State> state, const TableDescription& table, const IndexDescription& index,
                 std::vector<FieldDescription> fields, std::vector<std::int64_t> rowNumbers);

 private:
  [[nodiscard]] bool isAtEnd() override { return at_ >= page_.size(); }
  void step() override;
  void restart() override;
  [[nodiscard]] const Value& read(std::size_t field) override;

  [[nodiscard]] WalkOrder& order() const;
  void keep(std::vector<std::int64_t> rowNumbers);
  void putInOrder(const std::vector<std::int64_t>& rowNumbers);
  void readPage();
  void walkPage();
  void lookPageUp();
  void dropEqualRows();

  const TableDescription& table_;
  const IndexDescription& index_;
  /// Where each field of the result stands in an entry.
  std::vector<std::size_t> slots_;

  /// Many rows are found by a walk through the index that passes over all others.
  std::unique_ptr<RowSet> rowSet_;
  /// Few rows are looked up; they are in order.
  std::vector<std::int64_t> rowNumbers_;
  /// How many of these have been read.
  std::size_t lookedUp_ = 0;

  /// The current row and those read ahead.
  std::vector<Entry> page_;
  std::size_t at_ = 0;
  /// Where the walk has got to, for the next page.
  Key walked_;
  enum class Walk { AtStart, Within, Done };
  Walk walk_ = Walk::AtStart;
};

}  // namespace pantrigo
