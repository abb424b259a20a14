#include "platform/store/store_file_content.h"

#include "platform/store/field_values.h"
#include "platform/store/schema.h"
#include "platform/store/schema_sql.h"
#include "platform/text/collation.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// The stamp has a table of its own, of one row: which order of texts the indexes follow.
constexpr const char* stampTableText = "CREATE TABLE IF NOT EXISTS StoreStamp (CollationVersion TEXT NOT NULL)";

/// A group of changes that is made as a whole or not at all.
class Transaction {
 public:
  explicit Transaction(Connection& connection) : connection_(connection) { connection_.execute("BEGIN IMMEDIATE"); }
  ~Transaction() {
    // Rolling back is the way out of a failure that is being reported already.
    if (!isDone_) guarded([this] { connection_.execute("ROLLBACK"); });
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit() {
    connection_.execute("COMMIT");
    isDone_ = true;
  }

 private:
  Connection& connection_;
  bool isDone_ = false;
};

void writeStamp(Connection& connection) {
  connection.execute("DELETE FROM StoreStamp");
  const std::string version = collationVersion();
  Statement insert(connection.handle(), "INSERT INTO StoreStamp VALUES (?1)");
  insert.bindText(1, version);
  insert.run();
}

/// A new counter starts at 0; every other field as in any new row.
Value firstSystemValue(const FieldDescription& field) {
  return field.type == FieldType::LongInteger ? Value(0) : defaultOf(field.type);
}

void writeSystemRow(Connection& connection) {
  const TableDescription& system = *findTable("System");
  Statement insert(connection.handle(), insertText(system));
  insert.bindWhole(1, 1);
  int parameter = 2;
  for (const FieldDescription& field : system.fields) insert.bind(parameter++, firstSystemValue(field));
  insert.run();
}

}  // namespace

void makeSchema(Connection& connection) {
  Transaction transaction(connection);
  connection.execute(("PRAGMA application_id=" + plainText(static_cast<long>(storeApplicationId))).c_str());
  connection.execute(("PRAGMA user_version=" + plainText(static_cast<long>(storeSchemaVersion))).c_str());
  for (const TableDescription& table : storeTables()) {
    connection.execute(createTableText(table).c_str());
    for (const IndexDescription& index : table.indexes) connection.execute(createIndexText(table, index).c_str());
  }
  connection.execute(stampTableText);
  writeStamp(connection);
  writeSystemRow(connection);
  transaction.commit();
}

void refreshCollation(Connection& connection) {
  const bool isStamped = !connection.single("SELECT 1 FROM sqlite_schema WHERE name = 'StoreStamp'").empty();
  if (isStamped && connection.single("SELECT CollationVersion FROM StoreStamp") == collationVersion()) return;
  Transaction transaction(connection);
  connection.execute(stampTableText);
  connection.execute("REINDEX");
  writeStamp(connection);
  transaction.commit();
}

}  // namespace pantrigo
