#include "unit/store/model_store.h"

#include <algorithm>

#include "platform/text/collation.h"

namespace pantrigo {

const ModelTable::Row* ModelTable::find(std::int64_t number) const {
  for (const Row& row : rows_) {
    if (row.number == number) return &row;
  }
  return nullptr;
}

std::size_t ModelTable::place(std::string_view field) const {
  std::size_t place = 0;
  while (description_.fields[place].name != field) ++place;
  return place;
}

std::vector<Value> ModelTable::newValues() const {
  std::vector<Value> values(description_.fields.size());
  for (std::size_t place = 0; place < values.size(); ++place) {
    if (description_.fields[place].type == FieldType::YesNo) values[place] = false;
  }
  return values;
}

int ModelTable::compare(const Value& left, const Value& right) {
  if (left.isNull() || right.isNull()) return static_cast<int>(right.isNull()) - static_cast<int>(left.isNull());
  if (left.isText()) return collate(left.text(), right.text());
  return left.number() < right.number() ? -1 : left.number() > right.number() ? 1 : 0;
}

int ModelTable::compare(const RowKey& left, const RowKey& right) {
  for (std::size_t number = 0; number < left.size(); ++number) {
    if (const int order = compare(left[number], right[number]); order != 0) return order;
  }
  return 0;
}

ModelTable::RowKey ModelTable::keyOf(const Row& row, const IndexDescription* index) const {
  RowKey key;
  if (index == nullptr) return key;
  for (const std::string_view field : index->keyFields) {
    if (!field.empty()) key.push_back(row.values[place(field)]);
  }
  return key;
}

std::vector<ModelTable::Row> ModelTable::ordered(const IndexDescription* index) const {
  std::vector<Row> result = rows_;
  std::ranges::stable_sort(
      result, [&](const Row& left, const Row& right) { return compare(keyOf(left, index), keyOf(right, index)) < 0; });
  return result;
}

std::optional<ModelTable::Row> ModelTable::next(const IndexDescription* index, const RowKey& key,
                                                std::int64_t number) const {
  for (const Row& row : ordered(index)) {
    const int order = compare(keyOf(row, index), key);
    if (order > 0 || (order == 0 && row.number > number)) return row;
  }
  return std::nullopt;
}

bool ModelTable::wouldRepeat(const std::vector<Value>& values, std::int64_t number) const {
  for (const IndexDescription& index : description_.indexes) {
    if (index.uniqueness != Uniqueness::Unique) continue;
    const RowKey key = keyOf({number, values}, &index);
    if (std::ranges::any_of(key, &Value::isNull)) continue;
    for (const Row& row : rows_) {
      if (row.number != number && compare(keyOf(row, &index), key) == 0) return true;
    }
  }
  return false;
}

int ModelTable::insert(std::vector<Value> values) {
  if (wouldRepeat(values, 0)) return 3022;
  rows_.push_back({++lastNumber_, std::move(values)});
  return 0;
}

int ModelTable::replace(std::int64_t number, std::vector<Value> values) {
  if (wouldRepeat(values, number)) return 3022;
  for (Row& row : rows_) {
    if (row.number == number) row.values = std::move(values);
  }
  return 0;
}

bool ModelTable::remove(std::int64_t number) {
  return std::erase_if(rows_, [number](const Row& row) { return row.number == number; }) > 0;
}

void ModelTable::removeWhere(std::string_view field, const Value& value) {
  const std::size_t column = place(field);
  std::erase_if(
      rows_, [&](const Row& row) { return !row.values[column].isNull() && compare(row.values[column], value) == 0; });
}

void ModelCursor::standOn(const std::optional<ModelTable::Row>& row) {
  place_ = row ? Place::Row : Place::None;
  if (!row) return;
  number_ = row->number;
  key_ = table_.keyOf(*row, index_);
}

int ModelCursor::rowError() const {
  if (place_ == Place::None) return 3021;
  return place_ == Place::Removed || table_.find(number_) == nullptr ? 3167 : 0;
}

int ModelCursor::setIndex(std::string_view name) {
  for (const IndexDescription& index : table_.description().indexes) {
    if (index.name != name) continue;
    index_ = &index;
    place_ = Place::None;
    return 0;
  }
  return 3015;
}

int ModelCursor::seek(std::string_view comparison, const std::vector<Value>& key) {
  if (index_ == nullptr) return 3019;
  pending_.reset();
  std::optional<ModelTable::Row> found;
  for (const ModelTable::Row& row : table_.ordered(index_)) {
    const int order = ModelTable::compare(table_.keyOf(row, index_), key);
    const bool fits = comparison == "=" ? order == 0 : comparison == ">" ? order > 0 : order >= 0;
    if (!fits) continue;
    found = row;
    break;
  }
  noMatch_ = !found;
  standOn(found);
  return 0;
}

int ModelCursor::moveFirst() {
  pending_.reset();
  const std::vector<ModelTable::Row> rows = table_.ordered(index_);
  standOn(rows.empty() ? std::nullopt : std::optional(rows.front()));
  return 0;
}

int ModelCursor::moveNext() {
  pending_.reset();
  if (place_ == Place::None) return 3021;
  const ModelTable::Row* present = table_.find(number_);
  standOn(table_.next(index_, present == nullptr ? key_ : table_.keyOf(*present, index_), number_));
  return 0;
}

int ModelCursor::field(std::string_view name, Value& value) const {
  const std::size_t place = table_.place(name);
  if (pending_ && (pending_->isNew || pending_->written[place])) {
    value = pending_->written[place] ? *pending_->written[place] : table_.newValues()[place];
    return 0;
  }
  if (const int error = rowError(); error != 0) return error;
  value = table_.find(number_)->values[place];
  return 0;
}

int ModelCursor::set(std::string_view name, const Value& value) {
  if (!pending_) return 3020;
  pending_->written[table_.place(name)] = value;
  return 0;
}

int ModelCursor::addNew() {
  pending_.emplace(Pending{true, std::vector<std::optional<Value>>(table_.description().fields.size())});
  return 0;
}

int ModelCursor::edit() {
  pending_.reset();
  if (const int error = rowError(); error != 0) return error;
  pending_.emplace(Pending{false, std::vector<std::optional<Value>>(table_.description().fields.size())});
  return 0;
}

int ModelCursor::update() {
  if (!pending_) return 3020;
  const ModelTable::Row* row = table_.find(number_);
  const bool isUnwritten = std::ranges::none_of(pending_->written, [](const auto& value) { return value.has_value(); });
  int error = 0;
  if (pending_->isNew || (row != nullptr && !isUnwritten)) {
    std::vector<Value> values = pending_->isNew ? table_.newValues() : row->values;
    for (std::size_t place = 0; place < values.size(); ++place) {
      if (pending_->written[place]) values[place] = *pending_->written[place];
    }
    error = pending_->isNew ? table_.insert(std::move(values)) : table_.replace(number_, std::move(values));
  } else if (!isUnwritten) {
    error = 3167;
  }
  if (error == 0) pending_.reset();
  return error;
}

int ModelCursor::remove() {
  pending_.reset();
  if (const int error = rowError(); error != 0) return error;
  table_.remove(number_);
  place_ = Place::Removed;
  return 0;
}

}  // namespace pantrigo
