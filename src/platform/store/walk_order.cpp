#include "platform/store/walk_order.h"

#include <algorithm>
#include <limits>

#include "platform/store/field_values.h"
#include "platform/store/schema_sql.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

constexpr std::int64_t beforeAllRows = std::numeric_limits<std::int64_t>::min();

/// The engine's word for no limit.
constexpr std::int64_t unlimited = -1;

bool hasMemo(const TableDescription& table) {
  for (const FieldDescription& field : table.fields) {
    if (field.type == FieldType::Memo) return true;
  }
  return false;
}

std::string parameter(int number) {
  return "?" + plainText(static_cast<long>(number));
}

/// The lowest value that a key field can have above Null.
Value lowestValue(FieldType type) {
  if (type == FieldType::Text || type == FieldType::Memo) return "";
  return std::numeric_limits<double>::lowest();
}

}  // namespace

WalkOrder::WalkOrder(Connection& connection, const TableDescription& table, const IndexDescription* index)
    : connection_(connection), table_(table), index_(index), slots_(table.fields.size(), -1) {
  if (index != nullptr) {
    for (const std::string_view name : {index->keyFields[0], index->keyFields[1], index->carried}) {
      if (!name.empty()) fields_.push_back(findField(table, name));
    }
    for (const std::string_view name : table.companions) {
      const int field = findField(table, name);
      if (std::ranges::find(fields_, field) == fields_.end()) fields_.push_back(field);
    }
    keyCount_ = index->keyFields[1].empty() ? 1 : 2;
  } else if (table.fields.size() <= mostSlots && !hasMemo(table)) {
    // Rows this small come along whole.
    for (std::size_t field = 0; field < table.fields.size(); ++field) fields_.push_back(static_cast<int>(field));
  }
  for (std::size_t slot = 0; slot < fields_.size(); ++slot) {
    slots_[static_cast<std::size_t>(fields_[slot])] = static_cast<int>(slot);
  }
}

FieldType WalkOrder::keyType(int key) const {
  return table_.fields[static_cast<std::size_t>(fields_[static_cast<std::size_t>(key)])].type;
}

std::string WalkOrder::keyName(int key) const {
  return std::string(index_->keyFields[key]);
}

std::string WalkOrder::fieldsText() const {
  std::string text = std::string("SELECT ") + rowNumberColumn;
  for (const int field : fields_) text += ", " + std::string(table_.fields[static_cast<std::size_t>(field)].name);
  return text + " FROM " + std::string(table_.name);
}

std::string WalkOrder::selectText() const {
  return fieldsText() + (index_ != nullptr ? " INDEXED BY " + std::string(index_->name) : std::string());
}

/// The end of a text whose first key fields are held fixed. The limit is parameter 1.
std::string WalkOrder::orderText(int fixedKeys) const {
  std::string text = " ORDER BY ";
  for (int key = fixedKeys; key < keyCount_; ++key) text += keyName(key) + ", ";
  return text + rowNumberColumn + " LIMIT ?1";
}

/// Parameters: limit, row number, keys.
Statement& WalkOrder::sameKeyStatement() {
  if (sameKey_ == nullptr) {
    std::string text = selectText() + " WHERE ";
    for (int key = 0; key < keyCount_; ++key) text += keyName(key) + " IS " + parameter(3 + key) + " AND ";
    sameKey_ = &connection_.statement(text + rowNumberColumn + " > ?2" + orderText(keyCount_));
  }
  return *sameKey_;
}

/// Parameters: limit, the keys before that one, and the one that has to be above (or equal).
Statement& WalkOrder::aboveStatement(int key, bool orEqual) {
  Statement*& statement = above_[static_cast<std::size_t>(key)][orEqual ? 1 : 0];
  if (statement == nullptr) {
    std::string text = selectText() + " WHERE ";
    for (int fixed = 0; fixed < key; ++fixed) text += keyName(fixed) + " IS " + parameter(2 + fixed) + " AND ";
    text += keyName(key) + (orEqual ? " >= " : " > ") + parameter(2 + key);
    statement = &connection_.statement(text + orderText(key));
  }
  return *statement;
}

/// Reads the row number and the slots from the statement's present row.
void WalkOrder::readValues(const Statement& statement, Entry& entry) const {
  entry.rowNumber = statement.whole(0);
  for (std::size_t slot = 0; slot < fields_.size(); ++slot) {
    const FieldType type = table_.fields[static_cast<std::size_t>(fields_[slot])].type;
    entry.values[slot] = readValue(statement, static_cast<int>(slot) + 1, type);
  }
}

void WalkOrder::collect(Running& statement, std::vector<Entry>& entries) const {
  while (statement->step()) readValues(*statement, entries.emplace_back());
}

void WalkOrder::collectAmong(Running& statement, std::size_t full, std::vector<Entry>& entries,
                             const RowSet& among) const {
  while (entries.size() < full && statement->step()) {
    if (among.contains(statement->whole(0))) readValues(*statement, entries.emplace_back());
  }
}

void WalkOrder::readSameKey(const Value* key, std::int64_t afterRow, std::size_t limit, std::vector<Entry>& entries) {
  Running statement(sameKeyStatement());
  statement->bindWhole(1, static_cast<std::int64_t>(limit));
  statement->bindWhole(2, afterRow);
  for (int number = 0; number < keyCount_; ++number) statement->bind(3 + number, key[number]);
  collect(statement, entries);
}

void WalkOrder::readAbove(const Value* key, std::size_t limit, std::vector<Entry>& entries, const RowSet* among) {
  // First the rows that differ in the last key field only, then those that differ in an earlier one.
  const std::size_t full = entries.size() + limit;
  for (int level = keyCount_ - 1; level >= 0 && entries.size() < full; --level) {
    const bool aboveNull = key[level].isNull();
    const Value lowest = aboveNull ? lowestValue(keyType(level)) : Value();
    Running statement(aboveStatement(level, aboveNull));
    statement->bindWhole(1, among != nullptr ? unlimited : static_cast<std::int64_t>(full - entries.size()));
    for (int fixed = 0; fixed < level; ++fixed) statement->bind(2 + fixed, key[fixed]);
    statement->bind(2 + level, aboveNull ? lowest : key[level]);
    if (among != nullptr) {
      collectAmong(statement, full, entries, *among);
    } else {
      collect(statement, entries);
    }
  }
}

void WalkOrder::readFirst(std::size_t limit, std::vector<Entry>& entries, const RowSet* among) {
  if (first_ == nullptr) first_ = &connection_.statement(selectText() + orderText(0));
  Running statement(*first_);
  statement->bindWhole(1, among != nullptr ? unlimited : static_cast<std::int64_t>(limit));
  if (among != nullptr) return collectAmong(statement, entries.size() + limit, entries, *among);
  collect(statement, entries);
}

void WalkOrder::readEqual(const Key& key, std::size_t limit, std::vector<Entry>& entries) {
  readSameKey(key.data(), beforeAllRows, limit, entries);
}

void WalkOrder::readAbove(const Key& key, std::size_t limit, std::vector<Entry>& entries, const RowSet* among) {
  readAbove(key.data(), limit, entries, among);
}

void WalkOrder::readAfter(const Entry& entry, std::size_t limit, std::vector<Entry>& entries) {
  const std::size_t before = entries.size();
  readSameKey(entry.values.data(), entry.rowNumber, limit, entries);
  const std::size_t found = entries.size() - before;
  if (found < limit) readAbove(entry.values.data(), limit - found, entries, nullptr);
}

bool WalkOrder::readRow(std::int64_t rowNumber, Entry& entry) {
  if (row_ == nullptr) {
    row_ = &connection_.statement(fieldsText() + " WHERE " + rowNumberColumn + " = ?1");
  }
  Running statement(*row_);
  statement->bindWhole(1, rowNumber);
  if (!statement->step()) return false;
  readValues(*statement, entry);
  return true;
}

}  // namespace pantrigo
