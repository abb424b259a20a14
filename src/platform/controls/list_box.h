#pragma once

#include <cstdint>
#include <string>

#include "platform/controls/control.h"
#include "platform/controls/list_rows.h"

namespace pantrigo {

enum class Selection { Single, Multiple };

/// A list of text rows. With single selection `ListIndex` is the selected row; setting it by code raises `Click` when
/// it differs, and `SelChange` always. With multiple selection each row has its own mark, and marks set by code raise
/// nothing. `Row` is a pointer for reading and colouring; it moves nothing and raises nothing.
class ListBox : public Control {
 public:
  ListBox(Holder holder, std::string_view name, Box box, Selection selection = Selection::Single);

  [[nodiscard]] int ListCount() const { return rows_.count(); }
  /// The text of a row, empty out of range.
  [[nodiscard]] const std::string& List(int row) const;

  /// The selected row, -1 for none.
  [[nodiscard]] int ListIndex() const { return rows_.followed(); }
  /// Selects a row by code; -1 selects none and raises nothing. A row out of range counts as -1.
  void setListIndex(int row);
  [[nodiscard]] int Row() const { return row_; }
  void setRow(int row) { row_ = row; }
  [[nodiscard]] int TopIndex() const { return topIndex_; }
  void setTopIndex(int row);
  /// 1: rows added from now on take their place in the order of the store's texts; 0: they come last.
  [[nodiscard]] int Sorted() const { return sorted_; }
  void setSorted(int sorted);

  [[nodiscard]] bool multiple() const { return selection_ == Selection::Multiple; }
  [[nodiscard]] bool Selected(int row) const;
  /// Marks or unmarks a row of a multiple-selection list, without an event.
  void setSelected(int row, bool selected);
  [[nodiscard]] int SelCount() const;
  void clearSelection();

  /// Adds a row: at its place when sorted, else at the end. The selection stays with its row.
  void AddItem(std::string_view text);
  /// Removes a row. `ListIndex` keeps its number, or becomes -1 when that is past the end. No event.
  void RemoveItem(int row);
  void Clear();

  /// Colours of a row; the default ones out of range.
  [[nodiscard]] RowColours Colours(int row) const;
  /// Does nothing for a row that doesn't exist.
  void setForeColor(int row, int colour);
  void setColours(int row, RowColours colours);

  /// Counts up with every change of the rows, so that a view can tell what it has seen.
  [[nodiscard]] std::uint64_t rowsVersion() const { return rowsVersion_; }

  [[nodiscard]] bool takesFocus() const override { return true; }
  void reset() override;

  Event<> SelChange;

 private:
  void rowsChanged();

  /// The selected row of a list with single selection is the one that is followed.
  ListRows rows_;
  Selection selection_;
  int row_ = -1;
  int topIndex_ = 0;
  int sorted_ = 0;
  std::uint64_t rowsVersion_ = 0;
};

}  // namespace pantrigo
