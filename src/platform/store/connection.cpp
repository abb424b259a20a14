#include "platform/store/connection.h"

#include <sqlite3.h>

#include <cmath>

#include "platform/store/sql_functions.h"
#include "platform/store/store_errors.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

/// Query texts differ only in which conditions are set; a run seldom makes more kinds than this.
constexpr std::size_t mostQueryStatements = 64;

/// Whole numbers are exact in a double up to here; larger ones are bound as they are.
constexpr double largestExactWhole = 9007199254740992.0;

}  // namespace

Statement::Statement(sqlite3* connection, std::string_view sql) {
  checkResult(sqlite3_prepare_v3(connection, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                 &handle_, nullptr));
}

Statement::~Statement() {
  sqlite3_finalize(handle_);
}

void Statement::bind(int parameter, const Value& value) {
  const auto& content = value.content();
  if (const auto* text = std::get_if<std::string>(&content)) {
    bindText(parameter, *text);
  } else if (const auto* number = std::get_if<double>(&content)) {
    bindNumber(parameter, *number);
  } else if (const auto* truth = std::get_if<bool>(&content)) {
    bindWhole(parameter, *truth ? -1 : 0);
  } else {
    checkResult(sqlite3_bind_null(handle_, parameter));
  }
}

void Statement::bindWhole(int parameter, std::int64_t number) {
  checkResult(sqlite3_bind_int64(handle_, parameter, number));
}

void Statement::bindNumber(int parameter, double number) {
  const bool isWhole = std::abs(number) <= largestExactWhole && std::trunc(number) == number;
  if (isWhole) return bindWhole(parameter, static_cast<std::int64_t>(number));
  checkResult(sqlite3_bind_double(handle_, parameter, number));
}

void Statement::bindText(int parameter, std::string_view text) {
  const char* bytes = text.data() == nullptr ? "" : text.data();
  checkResult(sqlite3_bind_text64(handle_, parameter, bytes, text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::bindObject(int parameter, const void* object, const char* kind) {
  // The engine takes the object as writable, but only hands it back to our own function.
  checkResult(sqlite3_bind_pointer(handle_, parameter, const_cast<void*>(object), kind, nullptr));
}

bool Statement::step() {
  const int result = sqlite3_step(handle_);
  checkResult(result);
  return result == SQLITE_ROW;
}

void Statement::run() {
  while (step()) {
  }
}

void Statement::reset() noexcept {
  sqlite3_reset(handle_);
}

bool Statement::isNull(int column) const {
  return sqlite3_column_type(handle_, column) == SQLITE_NULL;
}

std::int64_t Statement::whole(int column) const {
  return sqlite3_column_int64(handle_, column);
}

double Statement::number(int column) const {
  return sqlite3_column_double(handle_, column);
}

std::string_view Statement::text(int column) const {
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
  if (bytes == nullptr) return {};
  return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column))};
}

Connection::Connection(const std::string& fileName, int engineFlags, Access access) : access_(access) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(fileName.c_str(), &opened, engineFlags | SQLITE_OPEN_NOMUTEX, nullptr);
  // The engine gives a handle to be closed also when it fails.
  handle_.reset(opened);
  checkResult(result);
  sqlite3_extended_result_codes(opened, 1);
  // Plans never depend on the values bound, so a statement is prepared once.
  sqlite3_db_config(opened, SQLITE_DBCONFIG_ENABLE_QPSG, 1, nullptr);
  registerSqlFunctions(opened);
}

Connection::~Connection() = default;

void Connection::Closer::operator()(sqlite3* handle) const {
  sqlite3_close(handle);
}

Connection::LeftOver::~LeftOver() {
  if (path.empty()) return;
  // A file that stays is a blemish, and there is nobody to tell.
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

void Connection::dropStatements() {
  queryStatements_.clear();
  statements_.clear();
}

Statement& Connection::statement(const std::string& sql) {
  return find(statements_, sql);
}

Statement& Connection::queryStatement(const std::string& sql) {
  if (queryStatements_.size() >= mostQueryStatements && !queryStatements_.contains(sql)) queryStatements_.clear();
  return find(queryStatements_, sql);
}

Statement& Connection::find(Statements& statements, const std::string& sql) {
  if (const auto known = statements.find(sql); known != statements.end()) return *known->second;
  auto prepared = std::make_unique<Statement>(handle(), sql);
  return *statements.emplace(sql, std::move(prepared)).first->second;
}

void Connection::execute(const char* sql) {
  checkResult(sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr));
}

std::string Connection::single(const char* sql) {
  Statement statement(handle(), sql);
  return statement.step() ? std::string(statement.text(0)) : std::string();
}

void Connection::requireWritable() const {
  if (isReadOnly()) throw RuntimeError(store_error::readOnly);
}

int Connection::changedRows() const {
  return sqlite3_changes(handle());
}

}  // namespace pantrigo
