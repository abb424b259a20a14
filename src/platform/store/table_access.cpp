#include "platform/store/table_access.h"

#include <algorithm>

#include "platform/store/field_values.h"
#include "platform/store/names.h"
#include "platform/store/schema_sql.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

TableAccess::TableAccess(Connection& connection, const TableDescription& table)
    : connection_(connection), table_(table), readMemo_(table.fields.size()) {
  orders_.push_back(std::make_unique<WalkOrder>(connection, table, nullptr));
  for (const IndexDescription& index : table.indexes) {
    orders_.push_back(std::make_unique<WalkOrder>(connection, table, &index));
  }
  for (std::size_t field = 0; field < table.fields.size(); ++field) {
    if (table.fields[field].type != FieldType::Memo) shortFields_.push_back(static_cast<int>(field));
  }
}

const std::vector<Entry>& TableAccess::firstRow() {
  if (firstRowStamp_ != changeNumber_) {
    firstRow_.clear();
    physicalOrder().readFirst(1, firstRow_);
    firstRowStamp_ = changeNumber_;
  }
  return firstRow_;
}

WalkOrder& TableAccess::order(std::string_view indexName) {
  const auto found = std::find_if(orders_.begin() + 1, orders_.end(), [indexName](const auto& order) {
    return isSameName(order->index()->name, indexName);
  });
  if (found == orders_.end()) raiseNamed(store_error::noSuchIndex, indexName);
  return **found;
}

Statement& TableAccess::readStatement(int field) {
  const FieldDescription& description = table_.fields[static_cast<std::size_t>(field)];
  const bool isMemo = description.type == FieldType::Memo;
  Statement*& statement = isMemo ? readMemo_[static_cast<std::size_t>(field)] : readShort_;
  if (statement == nullptr) {
    const auto nameOf = [this](int other) { return table_.fields[static_cast<std::size_t>(other)].name; };
    const std::string names = isMemo ? std::string(description.name) : nameList(shortFields_, nameOf);
    statement = &connection_.statement("SELECT " + names + " FROM " + std::string(table_.name) + " WHERE " +
                                       rowNumberColumn + " = ?1");
  }
  return *statement;
}

FieldSet TableAccess::read(std::int64_t rowNumber, int field, std::vector<Value>& values) {
  const auto place = [](int number) { return static_cast<std::size_t>(number); };
  Running statement(readStatement(field));
  statement->bindWhole(1, rowNumber);
  if (!statement->step()) return 0;
  if (table_.fields[place(field)].type == FieldType::Memo) {
    values[place(field)] = readValue(*statement, 0, FieldType::Memo);
    return fieldBit(field);
  }
  FieldSet read = 0;
  int column = 0;
  for (const int other : shortFields_) {
    values[place(other)] = readValue(*statement, column++, table_.fields[place(other)].type);
    read |= fieldBit(other);
  }
  return read;
}

std::int64_t TableAccess::highestRowNumber() {
  if (!lastRowNumber_) {
    Statement highest(connection_.handle(),
                      std::string("SELECT max(") + rowNumberColumn + ") FROM " + std::string(table_.name));
    lastRowNumber_ = highest.step() ? highest.whole(0) : 0;
  }
  return *lastRowNumber_;
}

void TableAccess::insert(const std::vector<Value>& values) {
  connection_.requireWritable();
  const std::int64_t rowNumber = highestRowNumber() + 1;
  if (insert_ == nullptr) insert_ = &connection_.statement(insertText(table_));
  Running statement(*insert_);
  statement->bindWhole(1, rowNumber);
  for (std::size_t field = 0; field < values.size(); ++field)
    statement->bind(static_cast<int>(field) + 2, values[field]);
  statement->run();
  lastRowNumber_ = rowNumber;
  noteChange();
}

Statement& TableAccess::writeStatement(FieldSet fields) {
  Statement*& statement = write_[fields];
  if (statement == nullptr) {
    std::string places;
    for (std::size_t field = 0; field < table_.fields.size(); ++field) {
      if ((fields & fieldBit(static_cast<int>(field))) == 0) continue;
      places += (places.empty() ? "" : ", ") + std::string(table_.fields[field].name) + " = ?";
    }
    statement = &connection_.statement("UPDATE " + std::string(table_.name) + " SET " + places + " WHERE " +
                                       rowNumberColumn + " = ?");
  }
  return *statement;
}

bool TableAccess::write(std::int64_t rowNumber, FieldSet fields, const std::vector<Value>& values) {
  connection_.requireWritable();
  if (fields == 0) return true;
  Running statement(writeStatement(fields));
  int parameter = 1;
  for (std::size_t field = 0; field < values.size(); ++field) {
    if ((fields & fieldBit(static_cast<int>(field))) != 0) statement->bind(parameter++, values[field]);
  }
  statement->bindWhole(parameter, rowNumber);
  statement->run();
  noteChange();
  return connection_.changedRows() > 0;
}

bool TableAccess::remove(std::int64_t rowNumber) {
  connection_.requireWritable();
  // A number that is about to become free has to be known as used.
  beforeRemoval();
  if (remove_ == nullptr) {
    remove_ = &connection_.statement("DELETE FROM " + std::string(table_.name) + " WHERE " + rowNumberColumn + " = ?1");
  }
  Running statement(*remove_);
  statement->bindWhole(1, rowNumber);
  statement->run();
  noteChange();
  return connection_.changedRows() > 0;
}

long TableAccess::countRows() {
  Running statement(connection_.statement("SELECT count(*) FROM " + std::string(table_.name)));
  return statement->step() ? static_cast<long>(statement->whole(0)) : 0;
}

}  // namespace pantrigo
