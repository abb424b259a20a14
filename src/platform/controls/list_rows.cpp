#include "platform/controls/list_rows.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace pantrigo {

ListRow& ListRows::last() const {
  return lastWaiting_ >= 0 ? waiting_[static_cast<std::size_t>(lastWaiting_)].row : rows_.back();
}

ListRow& ListRows::coloured(int row) const {
  if (row == count() - 1) return last();
  settle();
  return rows_[static_cast<std::size_t>(row)];
}

std::vector<ListRow>& ListRows::all() {
  settle();
  return rows_;
}

const std::vector<ListRow>& ListRows::all() const {
  settle();
  return rows_;
}

int ListRows::followed() const {
  if (followed_ >= 0) settle();
  return followed_;
}

void ListRows::follow(int row) {
  settle();
  followed_ = row;
}

void ListRows::setSorted(bool sorted) {
  if (sorted == sorted_) return;
  settle();
  sorted_ = sorted;
  lastPlace_.reset();
  const auto before = [](const ListRow& left, const ListRow& right) { return collate(left.text, right.text) < 0; };
  inOrder_ = !sorted || std::is_sorted(rows_.begin(), rows_.end(), before);
}

void ListRows::add(std::string_view text) {
  if (!sorted_) {
    rows_.push_back({std::string(text), {}, false});
  } else if (inOrder_) {
    addInOrder(text);
  } else {
    addBeforeGreater(text);
  }
}

void ListRows::addInOrder(std::string_view text) {
  TextPlace place(text);
  if (count() > 0 && !lastPlace_) lastPlace_.emplace(last().text);
  const bool becomesLast = count() == 0 || place.compare(*lastPlace_) >= 0;
  if (becomesLast) lastPlace_ = place;
  if (becomesLast && waiting_.empty()) {
    rows_.push_back({std::string(text), {}, false});
    return;
  }
  if (becomesLast) lastWaiting_ = static_cast<int>(waiting_.size());
  waiting_.push_back({std::move(place), {std::string(text), {}, false}});
}

void ListRows::addBeforeGreater(std::string_view text) {
  const auto place =
      std::find_if(rows_.begin(), rows_.end(), [&](const ListRow& row) { return collate(text, row.text) < 0; });
  if (place - rows_.begin() <= followed_) ++followed_;
  rows_.insert(place, {std::string(text), {}, false});
}

void ListRows::settle() const {
  if (waiting_.empty()) return;
  std::vector<WaitingRow*> added;
  added.reserve(waiting_.size());
  for (WaitingRow& row : waiting_) added.push_back(&row);
  std::stable_sort(added.begin(), added.end(), [](const WaitingRow* left, const WaitingRow* right) {
    return left->place.compare(right->place) < 0;
  });
  merge(added);
  waiting_ = {};
  lastWaiting_ = -1;
}

void ListRows::merge(const std::vector<WaitingRow*>& added) const {
  std::size_t from = rows_.size();
  rows_.resize(rows_.size() + added.size());
  std::size_t to = rows_.size();
  int above = 0;
  for (auto row = added.rbegin(); row != added.rend(); ++row) {
    const std::size_t place = placeOf((*row)->row.text, from);
    if (static_cast<int>(place) <= followed_) ++above;
    const auto begin = rows_.begin();
    std::move_backward(begin + static_cast<std::ptrdiff_t>(place), begin + static_cast<std::ptrdiff_t>(from),
                       begin + static_cast<std::ptrdiff_t>(to));
    to -= from - place;
    from = place;
    rows_[--to] = std::move((*row)->row);
  }
  if (followed_ >= 0) followed_ += above;
}

std::size_t ListRows::placeOf(std::string_view text, std::size_t end) const {
  const auto staysBefore = [&](const ListRow& row) { return collate(text, row.text) >= 0; };
  // From the end in growing steps: the places are asked for from the last to the first, and lie close together.
  std::size_t low = end;
  for (std::size_t step = 1; low > 0; step *= 2) {
    const std::size_t looked = low > step ? low - step : 0;
    if (staysBefore(rows_[looked])) {
      low = looked + 1;
      break;
    }
    end = looked;
    low = looked;
  }
  const auto begin = rows_.begin();
  const auto place = std::partition_point(begin + static_cast<std::ptrdiff_t>(low),
                                          begin + static_cast<std::ptrdiff_t>(end), staysBefore);
  return static_cast<std::size_t>(place - begin);
}

void ListRows::remove(int row) {
  settle();
  rows_.erase(rows_.begin() + row);
  lastPlace_.reset();
}

void ListRows::clear() {
  rows_ = {};
  waiting_ = {};
  lastPlace_.reset();
  lastWaiting_ = -1;
  followed_ = -1;
  inOrder_ = true;
}

}  // namespace pantrigo
