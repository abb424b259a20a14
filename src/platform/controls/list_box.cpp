#include "platform/controls/list_box.h"

#include <algorithm>

#include "platform/text/collation.h"

namespace pantrigo {

ListBox::ListBox(Holder holder, std::string_view name, Box box, Selection selection)
    : Control(holder, ControlKind::ListBox, name, box), selection_(selection) {}

void ListBox::rowsChanged() {
  ++rowsVersion_;
  changed(Aspect::Rows);
}

const std::string& ListBox::List(int row) const {
  static const std::string none;
  return holds(row) ? rows_[static_cast<std::size_t>(row)].text : none;
}

void ListBox::setListIndex(int row) {
  const int before = listIndex_;
  listIndex_ = holds(row) ? row : -1;
  changed(Aspect::Selection);
  if (listIndex_ < 0) return;
  if (listIndex_ != before) Click();
  SelChange();
}

void ListBox::setTopIndex(int row) {
  topIndex_ = row;
  changed(Aspect::Scroll);
}

void ListBox::setSorted(int sorted) {
  sorted_ = sorted;
}

bool ListBox::Selected(int row) const {
  if (!holds(row)) return false;
  return multiple() ? rows_[static_cast<std::size_t>(row)].selected : row == listIndex_;
}

void ListBox::setSelected(int row, bool selected) {
  if (!holds(row)) return;
  rows_[static_cast<std::size_t>(row)].selected = selected;
  changed(Aspect::Selection);
}

int ListBox::SelCount() const {
  if (!multiple()) return listIndex_ >= 0 ? 1 : 0;
  return static_cast<int>(std::count_if(rows_.begin(), rows_.end(), [](const ListRow& row) { return row.selected; }));
}

void ListBox::clearSelection() {
  for (ListRow& row : rows_) row.selected = false;
  changed(Aspect::Selection);
}

void ListBox::AddItem(std::string_view text) {
  auto place = rows_.end();
  if (sorted_ != 0) {
    place = std::upper_bound(rows_.begin(), rows_.end(), text,
                             [](std::string_view added, const ListRow& row) { return collate(added, row.text) < 0; });
  }
  const int row = static_cast<int>(place - rows_.begin());
  rows_.insert(place, ListRow{std::string(text), {}, false});
  if (listIndex_ >= 0 && row <= listIndex_) ++listIndex_;
  rowsChanged();
}

void ListBox::RemoveItem(int row) {
  if (!holds(row)) return;
  rows_.erase(rows_.begin() + row);
  if (!holds(listIndex_)) listIndex_ = -1;
  rowsChanged();
}

void ListBox::Clear() {
  rows_.clear();
  listIndex_ = -1;
  row_ = -1;
  topIndex_ = 0;
  rowsChanged();
}

RowColours ListBox::Colours(int row) const {
  return holds(row) ? rows_[static_cast<std::size_t>(row)].colours : RowColours{};
}

void ListBox::setForeColor(int row, int colour) {
  RowColours colours = Colours(row);
  colours.foreColor = static_cast<std::uint8_t>(colour);
  setColours(row, colours);
}

void ListBox::setColours(int row, RowColours colours) {
  if (!holds(row)) return;
  rows_[static_cast<std::size_t>(row)].colours = colours;
  changed(Aspect::RowColours);
}

void ListBox::reset() {
  Control::reset();
  rows_.clear();
  rows_.shrink_to_fit();
  listIndex_ = -1;
  row_ = -1;
  topIndex_ = 0;
  sorted_ = 0;
  ++rowsVersion_;
}

}  // namespace pantrigo
