#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace pantrigo {

/// Colours of a row, numbers of the sixteen-entry colour table: the text of an ordinary row, and text and ground of a
/// selected one. A row that was never coloured is dark blue, white on dark blue when selected.
struct RowColours {
  std::uint8_t foreColor = 1;
  std::uint8_t selForeColor = 15;
  std::uint8_t selBackColor = 1;
  friend bool operator==(const RowColours&, const RowColours&) = default;
};

enum class Selection { Single, Multiple };

/// A list of text rows. With single selection `ListIndex` is the selected row; setting it by code raises `Click` when
/// it differs, and `SelChange` always. With multiple selection each row has its own mark, and marks set by code raise
/// nothing. `Row` is a pointer for reading and colouring; it moves nothing and raises nothing.
class ListBox : public Control {
 public:
  ListBox(Holder holder, std::string_view name, Box box, Selection selection = Selection::Single);

  [[nodiscard]] int ListCount() const { return static_cast<int>(rows_.size()); }
  /// The text of a row, empty out of range.
  [[nodiscard]] const std::string& List(int row) const;

  /// The selected row, -1 for none.
  [[nodiscard]] int ListIndex() const { return listIndex_; }
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
  struct ListRow {
    std::string text;
    RowColours colours;
    bool selected = false;
  };

  [[nodiscard]] bool holds(int row) const { return row >= 0 && row < ListCount(); }
  void rowsChanged();

  std::vector<ListRow> rows_;
  Selection selection_;
  int listIndex_ = -1;
  int row_ = -1;
  int topIndex_ = 0;
  int sorted_ = 0;
  std::uint64_t rowsVersion_ = 0;
};

}  // namespace pantrigo
