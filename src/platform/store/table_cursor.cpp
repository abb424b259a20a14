#include "platform/store/table_cursor.h"

#include <algorithm>

#include "platform/store/field_values.h"
#include "platform/store/schema_sql.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// Rows read ahead. A walk starts small, since many end after a row or two or change the table, and grows fast.
constexpr std::size_t firstBatch = 2;
constexpr std::size_t batchGrowth = 4;
constexpr std::size_t largestBatch = 128;

}  // namespace

TableCursor::TableCursor(std::shared_ptr<Database::State> state, const TableDescription& table)
    : state_(std::move(state)), table_(table) {
  TableAccess& access = this->access();
  order_ = &access.physicalOrder();
  entries_ = access.firstRow();
  standOnFirstEntry(access);
}

int TableCursor::fieldPlace(std::string_view name) const {
  const int place = findField(table_, name);
  if (place < 0) raiseNamed(store_error::noSuchField, name);
  return place;
}

void TableCursor::setIndex(std::string_view name) {
  order_ = &access().order(name);
  pending_.reset();
  place_ = Place::None;
}

Key TableCursor::seekKey(const std::vector<Value>& key) const {
  if (key.size() > static_cast<std::size_t>(order_->keyCount())) throw RuntimeError(store_error::invalidCall);
  Key result;
  for (std::size_t number = 0; number < key.size(); ++number) {
    result[number] = toKeyValue(order_->keyType(static_cast<int>(number)), key[number]);
  }
  return result;
}

/// An empty text is no number, and not even Null is equal to it.
bool TableCursor::canBeEqual(const std::vector<Value>& key) const {
  for (std::size_t number = 0; number < key.size(); ++number) {
    const FieldType type = order_->keyType(static_cast<int>(number));
    const bool isNumber = type == FieldType::LongInteger || type == FieldType::Number;
    if (isNumber && key[number].isText() && key[number].text().empty()) return false;
  }
  return true;
}

void TableCursor::seek(std::string_view comparison, const std::vector<Value>& key) {
  TableAccess& table = access();
  // What fails from here on has found nothing.
  pending_.reset();
  place_ = Place::None;
  noMatch_ = true;
  entries_.clear();
  if (order_->index() == nullptr) throw RuntimeError(store_error::noCurrentIndex);
  const bool takesEqual = comparison == "=" || comparison == ">=";
  const bool takesAbove = comparison == ">" || comparison == ">=";
  if (!takesEqual && !takesAbove) throw RuntimeError(store_error::invalidCall);
  const Key sought = seekKey(key);
  if (takesEqual && canBeEqual(key)) order_->readEqual(sought, 1, entries_);
  if (takesAbove && entries_.empty()) order_->readAbove(sought, 1, entries_);
  standOnFirstEntry(table);
  noMatch_ = place_ == Place::None;
}

/// Takes the first of the entries just read as the current row.
void TableCursor::standOnFirstEntry(const TableAccess& table) {
  at_ = 0;
  batch_ = 1;
  stamp_ = table.changeNumber();
  place_ = entries_.empty() ? Place::None : Place::Row;
  if (place_ == Place::Row) row_.place(current().rowNumber);
}

bool TableCursor::noMatch() const {
  static_cast<void>(access());
  return noMatch_;
}

bool TableCursor::eof() {
  static_cast<void>(access());
  return place_ == Place::None;
}

void TableCursor::moveFirst() {
  TableAccess& table = access();
  pending_.reset();
  place_ = Place::None;
  entries_.clear();
  order_->readFirst(1, entries_);
  standOnFirstEntry(table);
}

void TableCursor::moveNext() {
  TableAccess& table = access();
  pending_.reset();
  if (place_ == Place::None) throw RuntimeError(store_error::noCurrentRecord);
  if (stamp_ == table.changeNumber() && at_ + 1 < entries_.size()) {
    ++at_;
  } else {
    readOn(table);
  }
  place_ = at_ < entries_.size() ? Place::Row : Place::None;
  if (place_ == Place::Row) row_.place(current().rowNumber);
}

/// Reads the rows behind the current one.
void TableCursor::readOn(TableAccess& table) {
  Entry from = std::move(entries_[at_]);
  place_ = Place::None;
  const bool isUnchanged = stamp_ == table.changeNumber();
  // A row whose key has changed goes on from its new place; one that is gone, from its last.
  if (!isUnchanged) static_cast<void>(order_->readRow(from.rowNumber, from));
  batch_ = isUnchanged && batch_ > 1 ? std::min(batch_ * batchGrowth, largestBatch) : firstBatch;
  entries_.clear();
  at_ = 0;
  stamp_ = table.changeNumber();
  order_->readAfter(from, batch_, entries_);
}

void TableCursor::requireRow() const {
  if (place_ == Place::None) throw RuntimeError(store_error::noCurrentRecord);
  if (place_ == Place::Removed) throw RuntimeError(store_error::recordDeleted);
}

const Value& TableCursor::currentField(TableAccess& table, int field) {
  requireRow();
  const int slot = order_->slotOf(field);
  if (slot >= 0 && stamp_ == table.changeNumber()) return current().values[static_cast<std::size_t>(slot)];
  return row_.field(table, field);
}

const Value& TableCursor::field(std::string_view name) {
  TableAccess& table = access();
  const int field = fieldPlace(name);
  if (pending_) {
    const bool isOwn = pending_->kind == Pending::Kind::Add || (pending_->written & fieldBit(field)) != 0;
    if (isOwn) return pending_->values[static_cast<std::size_t>(field)];
  }
  return currentField(table, field);
}

void TableCursor::requirePending() const {
  if (!pending_) throw RuntimeError(store_error::noEditPending);
}

void TableCursor::setField(std::string_view name, const Value& value) {
  static_cast<void>(access());
  requirePending();
  const int field = fieldPlace(name);
  const auto place = static_cast<std::size_t>(field);
  pending_->values[place] = toFieldValue(table_.fields[place].type, value);
  pending_->written |= fieldBit(field);
}

void TableCursor::addNew() {
  static_cast<void>(access());
  pending_.emplace(Pending{Pending::Kind::Add, {}});
  for (const FieldDescription& field : table_.fields) pending_->values.push_back(defaultOf(field.type));
}

void TableCursor::edit() {
  TableAccess& table = access();
  pending_.reset();
  // Reading any field shows whether the row is still there.
  static_cast<void>(currentField(table, 0));
  pending_.emplace(Pending{Pending::Kind::Edit, std::vector<Value>(table_.fields.size())});
}

void TableCursor::update() {
  TableAccess& table = access();
  requirePending();
  if (pending_->kind == Pending::Kind::Add) {
    table.insert(pending_->values);
  } else if (!table.write(current().rowNumber, pending_->written, pending_->values)) {
    throw RuntimeError(store_error::recordDeleted);
  }
  pending_.reset();
}

void TableCursor::remove() {
  TableAccess& table = access();
  pending_.reset();
  requireRow();
  if (!table.remove(current().rowNumber)) throw RuntimeError(store_error::recordDeleted);
  place_ = Place::Removed;
}

long TableCursor::recordCount() {
  return access().countRows();
}

}  // namespace pantrigo
