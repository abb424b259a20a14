#pragma once

#include <cstdint>
#include <vector>

#include "platform/store/table_access.h"

namespace pantrigo {

/// Reads the fields of one row at first use and keeps them for as long as the table does not change.
class RowReader {
 public:
  /// Chooses the row; nothing is read yet.
  void place(std::int64_t rowNumber) {
    rowNumber_ = rowNumber;
    known_ = 0;
  }

  /// Error 3167 when the row is gone.
  [[nodiscard]] const Value& field(TableAccess& access, int field);

 private:
  std::int64_t rowNumber_ = 0;
  FieldSet known_ = 0;
  /// The table's change number when the known fields were read.
  std::uint64_t stamp_ = 0;
  /// One a field of the table, once a field was read: many cursors never get here, since their order brings what they
  /// are asked for.
  std::vector<Value> values_;
};

}  // namespace pantrigo
