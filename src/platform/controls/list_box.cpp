#include "platform/controls/list_box.h"

#include <algorithm>

namespace pantrigo {

ListBox::ListBox(Holder holder, std::string_view name, Box box, Selection selection)
    : Control(holder, ControlKind::ListBox, name, box), selection_(selection) {}

void ListBox::rowsChanged() {
  ++rowsVersion_;
  changed(Aspect::Rows);
}

const std::string& ListBox::List(int row) const {
  static const std::string none;
  return rows_.holds(row) ? rows_.at(row).text : none;
}

void ListBox::setListIndex(int row) {
  const int before = ListIndex();
  rows_.follow(rows_.holds(row) ? row : -1);
  changed(Aspect::Selection);
  if (ListIndex() < 0) return;
  if (ListIndex() != before) Click();
  SelChange();
}

void ListBox::setTopIndex(int row) {
  topIndex_ = row;
  changed(Aspect::Scroll);
}

void ListBox::setSorted(int sorted) {
  sorted_ = sorted;
  rows_.setSorted(sorted != 0);
}

bool ListBox::Selected(int row) const {
  if (!rows_.holds(row)) return false;
  return multiple() ? rows_.at(row).selected : row == ListIndex();
}

void ListBox::setSelected(int row, bool selected) {
  if (!rows_.holds(row)) return;
  rows_.at(row).selected = selected;
  changed(Aspect::Selection);
}

int ListBox::SelCount() const {
  if (!multiple()) return ListIndex() >= 0 ? 1 : 0;
  const std::vector<ListRow>& rows = rows_.all();
  return static_cast<int>(std::count_if(rows.begin(), rows.end(), [](const ListRow& row) { return row.selected; }));
}

void ListBox::clearSelection() {
  for (ListRow& row : rows_.all()) row.selected = false;
  changed(Aspect::Selection);
}

void ListBox::AddItem(std::string_view text) {
  rows_.add(text);
  rowsChanged();
}

void ListBox::RemoveItem(int row) {
  if (!rows_.holds(row)) return;
  rows_.remove(row);
  if (!rows_.holds(ListIndex())) rows_.follow(-1);
  rowsChanged();
}

void ListBox::Clear() {
  rows_.clear();
  row_ = -1;
  topIndex_ = 0;
  rowsChanged();
}

RowColours ListBox::Colours(int row) const {
  return rows_.holds(row) ? rows_.colours(row) : RowColours{};
}

void ListBox::setForeColor(int row, int colour) {
  RowColours colours = Colours(row);
  colours.foreColor = static_cast<std::uint8_t>(colour);
  setColours(row, colours);
}

void ListBox::setColours(int row, RowColours colours) {
  if (!rows_.holds(row)) return;
  rows_.setColours(row, colours);
  changed(Aspect::RowColours);
}

void ListBox::reset() {
  Control::reset();
  rows_.clear();
  setSorted(0);
  row_ = -1;
  topIndex_ = 0;
  ++rowsVersion_;
}

}  // namespace pantrigo
