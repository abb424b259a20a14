#include "platform/store/store_checks.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/store/names.h"
#include "platform/store/schema.h"
#include "platform/store/schema_sql.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// The first bytes of every file of the engine, the trailing zero byte included.
constexpr std::array<char, 16> signature{'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f',
                                         'o', 'r', 'm', 'a', 't', ' ', '3', '\0'};

/// The file's header, and where in it things stand; numbers have their highest byte first.
using HeaderBytes = std::array<char, 100>;
constexpr std::size_t pageSizePlace = 16;
constexpr std::size_t writeVersionPlace = 18;
constexpr std::size_t changeCounterPlace = 24;
constexpr std::size_t pageCountPlace = 28;
/// The change counter at the time when the page count was noted.
constexpr std::size_t validForPlace = 92;

/// The mark of the write-ahead log as way of writing.
constexpr char writeAheadMark = 2;

/// The largest page size does not fit its two bytes, and is written as 1.
constexpr std::int64_t largestPageMark = 1;
constexpr std::int64_t largestPage = 65536;

std::int64_t numberAt(const HeaderBytes& header, std::size_t place, std::size_t length) {
  std::int64_t number = 0;
  for (std::size_t offset = 0; offset < length; ++offset) {
    number = number * 256 + static_cast<unsigned char>(header[place + offset]);
  }
  return number;
}

/// Whether a file of that size, in bytes, holds all the pages that its header counts and nothing else.
bool isWhole(const HeaderBytes& header, std::int64_t size) {
  const std::int64_t noted = numberAt(header, pageSizePlace, 2);
  const std::int64_t pageSize = noted == largestPageMark ? largestPage : noted;
  if (pageSize == 0 || size % pageSize != 0) return false;
  const bool isCountValid = numberAt(header, changeCounterPlace, 4) == numberAt(header, validForPlace, 4);
  return !isCountValid || size >= numberAt(header, pageCountPlace, 4) * pageSize;
}

void checkOrigin(Connection& connection) {
  const auto number = [&](const char* pragma) {
    Statement statement(connection.handle(), pragma);
    return statement.step() ? statement.whole(0) : 0;
  };
  if (number("PRAGMA application_id") != storeApplicationId) throw RuntimeError(store_error::notADatabase);
  if (number("PRAGMA user_version") > storeSchemaVersion) throw RuntimeError(store_error::notADatabase);
}

using Names = std::vector<std::string>;

/// The first column of a text with one parameter.
Names namesOf(Connection& connection, const char* sql, std::string_view parameter) {
  Statement statement(connection.handle(), sql);
  statement.bindText(1, parameter);
  Names names;
  while (statement.step()) names.emplace_back(statement.text(0));
  return names;
}

void checkFields(Connection& connection, const TableDescription& table) {
  const Names present = namesOf(connection, "SELECT name FROM pragma_table_info(?1)", table.name);
  const auto check = [&](std::string_view field) {
    const bool isThere = std::ranges::any_of(present, [&](const auto& name) { return isSameName(name, field); });
    if (!isThere) raiseNamed(store_error::noSuchField, std::string(table.name) + "." + std::string(field));
  };
  check(rowNumberColumn);
  for (const FieldDescription& field : table.fields) check(field.name);
}

void checkKeys(Connection& connection, const IndexDescription& index) {
  const Names present = namesOf(connection, "SELECT name FROM pragma_index_info(?1) ORDER BY seqno", index.name);
  std::size_t place = 0;
  for (const std::string_view key : index.keyFields) {
    if (key.empty()) break;
    const bool isThere = place < present.size() && isSameName(present[place], key);
    if (!isThere) raiseNamed(store_error::noSuchIndex, index.name);
    ++place;
  }
}

/// Tables and indexes of the file, each with the table that it belongs to.
std::map<std::string, std::string, std::less<>> tablesOfNames(Connection& connection) {
  std::map<std::string, std::string, std::less<>> found;
  Statement rows(connection.handle(), "SELECT name, tbl_name FROM sqlite_schema WHERE type IN ('table', 'index')");
  while (rows.step()) found.emplace(rows.text(0), rows.text(1));
  return found;
}

}  // namespace

sqlite3_file* engineFileOf(const Connection& connection) {
  sqlite3_file* file = nullptr;
  checkResult(sqlite3_file_control(connection.handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file));
  return file;
}

bool hasLog(const std::filesystem::path& file) {
  return std::ranges::any_of(std::array{"-wal", "-journal"}, [&](const char* ending) {
    std::error_code failure;
    const auto size = std::filesystem::file_size(file.string() + ending, failure);
    return !failure && size > 0;
  });
}

StoreHeader checkHeader(const Connection& connection, const std::filesystem::path& file) {
  sqlite3_file* handle = engineFileOf(connection);
  sqlite3_int64 size = 0;
  checkResult(handle->pMethods->xFileSize(handle, &size));
  HeaderBytes header{};
  if (size < static_cast<sqlite3_int64>(header.size())) throw RuntimeError(store_error::notADatabase);
  checkResult(handle->pMethods->xRead(handle, header.data(), static_cast<int>(header.size()), 0));
  if (!std::equal(signature.begin(), signature.end(), header.begin())) throw RuntimeError(store_error::notADatabase);
  if (!hasLog(file) && !isWhole(header, size)) throw RuntimeError(store_error::notADatabase);
  return {header[writeVersionPlace] == writeAheadMark};
}

void checkContent(Connection& connection) {
  checkOrigin(connection);
  const auto found = tablesOfNames(connection);
  for (const TableDescription& table : storeTables()) {
    if (!found.contains(table.name)) raiseNamed(store_error::noSuchTable, table.name);
    checkFields(connection, table);
    for (const IndexDescription& index : table.indexes) {
      const auto place = found.find(index.name);
      if (place == found.end() || place->second != table.name) raiseNamed(store_error::noSuchIndex, index.name);
      checkKeys(connection, index);
    }
  }
  if (connection.single("SELECT 1 FROM System LIMIT 1").empty()) {
    throw RuntimeError(store_error::noCurrentRecord, errorText(store_error::noCurrentRecord) +
                                                         " The row of options is missing from the table System.");
  }
}

}  // namespace pantrigo
