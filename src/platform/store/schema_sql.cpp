#include "platform/store/schema_sql.h"

#include "platform/store/names.h"
#include "platform/store/sql_functions.h"

namespace pantrigo {

namespace {

std::string columnText(const FieldDescription& field) {
  const std::string name(field.name);
  switch (field.type) {
    case FieldType::LongInteger:
      return name + " INTEGER";
    case FieldType::Number:
      return name + " REAL";
    case FieldType::YesNo:
      return name + " INTEGER NOT NULL DEFAULT 0";
    case FieldType::Text:
    case FieldType::Memo:
      return name + " TEXT COLLATE " + collationName;
  }
  return name;
}

}  // namespace

std::string createTableText(const TableDescription& table) {
  std::string text = "CREATE TABLE " + std::string(table.name) + " (" + rowNumberColumn + " INTEGER PRIMARY KEY";
  for (const FieldDescription& field : table.fields) text += ", " + columnText(field);
  return text + ")";
}

std::string createIndexText(const TableDescription& table, const IndexDescription& index) {
  std::string text = index.uniqueness == Uniqueness::Unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ";
  text += std::string(index.name) + " ON " + std::string(table.name) + " (" + std::string(index.keyFields[0]);
  if (!index.keyFields[1].empty()) text += ", " + std::string(index.keyFields[1]);
  if (!index.carried.empty()) text += std::string(", ") + rowNumberColumn + ", " + std::string(index.carried);
  return text + ")";
}

std::string insertText(const TableDescription& table) {
  std::string names = rowNumberColumn;
  std::string places = "?";
  for (const FieldDescription& field : table.fields) {
    names += ", " + std::string(field.name);
    places += ", ?";
  }
  return "INSERT INTO " + std::string(table.name) + " (" + names + ") VALUES (" + places + ")";
}

int findField(const TableDescription& table, std::string_view name) {
  for (std::size_t field = 0; field < table.fields.size(); ++field) {
    if (isSameName(table.fields[field].name, name)) return static_cast<int>(field);
  }
  return -1;
}

}  // namespace pantrigo
