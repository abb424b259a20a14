#include "platform/store/distinct_cursor.h"

#include <algorithm>
#include <utility>

#include "platform/store/schema_sql.h"
#include "platform/text/collation.h"

namespace pantrigo {

namespace {

/// Rows that are read ahead.
constexpr std::size_t pageRows = 100;

/// Looking a row up takes about as long as passing by so many in the index.
constexpr std::int64_t walkedForALookUp = 25;

/// The order of values in an index: Null, then numbers (True is -1), then texts.
int compareValues(const Value& left, const Value& right) {
  const auto rank = [](const Value& value) { return value.isNull() ? 0 : value.isText() ? 2 : 1; };
  if (rank(left) != rank(right)) return rank(left) - rank(right);
  if (left.isNull()) return 0;
  if (const auto* text = std::get_if<std::string>(&left.content())) {
    return collate(*text, std::get<std::string>(right.content()));
  }
  const double difference = left.number() - right.number();
  return (difference > 0 ? 1 : 0) - (difference < 0 ? 1 : 0);
}

}  // namespace

DistinctCursor::DistinctCursor(std::shared_ptr<Database::State> state, const TableDescription& table,
                               const IndexDescription& index, std::vector<FieldDescription> fields,
                               std::vector<std::int64_t> rowNumbers)
    : QueryCursor(std::move(state), std::move(fields)), table_(table), index_(index) {
  for (const FieldDescription& field : this->fields()) {
    slots_.push_back(static_cast<std::size_t>(order().slotOf(findField(table, field.name))));
  }
  keep(std::move(rowNumbers));
  // Rows that were read to be put in order are a first page, if they are no more than one.
  lookedUp_ = page_.size();
  if (page_.empty() || page_.size() > pageRows) restart();
}

WalkOrder& DistinctCursor::order() const {
  return state().access(table_).order(index_.name);
}

void DistinctCursor::keep(std::vector<std::int64_t> rowNumbers) {
  if (rowNumbers.empty()) return;
  const auto count = static_cast<std::int64_t>(rowNumbers.size());
  const bool areMany = count > state().access(table_).highestRowNumber() / walkedForALookUp;
  if (areMany && *std::ranges::min_element(rowNumbers) > 0) {
    rowSet_ = std::make_unique<RowSet>(rowNumbers);
  } else {
    putInOrder(rowNumbers);
  }
}

void DistinctCursor::putInOrder(const std::vector<std::int64_t>& rowNumbers) {
  for (const std::int64_t number : rowNumbers) {
    Entry entry;
    entry.rowNumber = number;
    if (order().readRow(number, entry)) page_.push_back(std::move(entry));
  }
  const std::size_t key = slots_.front();
  std::ranges::sort(page_, [key](const Entry& left, const Entry& right) {
    const int order = compareValues(left.values[key], right.values[key]);
    return order != 0 ? order < 0 : left.rowNumber < right.rowNumber;
  });
  dropEqualRows();
  rowNumbers_.reserve(page_.size());
  for (const Entry& entry : page_) rowNumbers_.push_back(entry.rowNumber);
}

/// Of the entries with the same key, which stand together, those that differ in the other field stay, in its order.
void DistinctCursor::dropEqualRows() {
  const std::size_t key = slots_.front();
  const std::size_t other = slots_.back();
  auto kept = page_.begin();
  for (auto group = page_.begin(); group != page_.end();) {
    const auto isOfGroup = [&](const Entry& entry) {
      return compareValues(entry.values[key], group->values[key]) == 0;
    };
    const auto end = std::find_if_not(group + 1, page_.end(), isOfGroup);
    if (end - group > 1) {
      std::stable_sort(group, end, [other, key](const Entry& left, const Entry& right) {
        return other != key && compareValues(left.values[other], right.values[other]) < 0;
      });
    }
    const auto isSame = [other, key](const Entry& left, const Entry& right) {
      return other == key || compareValues(left.values[other], right.values[other]) == 0;
    };
    const auto groupEnd = end - group > 1 ? std::unique(group, end, isSame) : end;
    kept = group == kept ? groupEnd : std::move(group, groupEnd, kept);
    group = end;
  }
  page_.erase(kept, page_.end());
}

void DistinctCursor::step() {
  ++at_;
  if (at_ >= page_.size()) readPage();
}

void DistinctCursor::restart() {
  lookedUp_ = 0;
  walk_ = Walk::AtStart;
  readPage();
}

const Value& DistinctCursor::read(std::size_t field) {
  return page_[at_].values[slots_[field]];
}

void DistinctCursor::readPage() {
  page_.clear();
  at_ = 0;
  if (rowSet_) {
    walkPage();
  } else {
    lookPageUp();
  }
}

void DistinctCursor::lookPageUp() {
  while (page_.size() < pageRows && lookedUp_ < rowNumbers_.size()) {
    Entry& entry = page_.emplace_back();
    entry.rowNumber = rowNumbers_[lookedUp_++];
    if (!order().readRow(entry.rowNumber, entry)) page_.pop_back();
  }
}

void DistinctCursor::walkPage() {
  if (walk_ == Walk::Done) return;
  const std::size_t key = slots_.front();
  // A page ends between two keys, so that rows which are equal stand on one.
  for (std::size_t limit = pageRows;; limit *= 2) {
    page_.clear();
    if (walk_ == Walk::AtStart) {
      order().readFirst(limit, page_, rowSet_.get());
    } else {
      order().readAbove(walked_, limit, page_, rowSet_.get());
    }
    if (page_.size() < limit) {
      walk_ = Walk::Done;
      break;
    }
    const Value& last = page_.back().values[key];
    const auto isBefore = [&](const Entry& entry) { return compareValues(entry.values[key], last) != 0; };
    const auto lastGroup = std::find_if(page_.rbegin(), page_.rend(), isBefore).base();
    if (lastGroup == page_.begin()) continue;
    page_.erase(lastGroup, page_.end());
    walked_[0] = page_.back().values[key];
    walk_ = Walk::Within;
    break;
  }
  dropEqualRows();
}

}  // namespace pantrigo
