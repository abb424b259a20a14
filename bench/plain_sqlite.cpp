#include "plain_sqlite.h"

#include <stdexcept>

#include "core/start_up.h"
#include "platform/store/sql_functions.h"

namespace pantrigo::bench {

namespace fs = std::filesystem;

namespace {

void check(int result, int wanted = SQLITE_OK) {
  if (result != wanted) throw std::runtime_error("the plain yardstick failed");
}

/// Goes through the rows of a statement that gives a title and a meal mark, and resets it.
long readTitles(sqlite3_stmt* statement) {
  long sum = 0;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    sum += static_cast<long>(std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))).size());
    sum += sqlite3_column_int(statement, 1);
  }
  check(sqlite3_reset(statement));
  return sum;
}

fs::path plainCopy(const fs::path& folder) {
  const fs::path copy = folder / "plain.db";
  if (!fs::exists(copy)) fs::copy_file(folder / storeName, copy);
  return copy;
}

}  // namespace

PlainSqlite::PlainSqlite(const fs::path& folder) {
  check(sqlite3_open(plainCopy(folder).c_str(), &connection_));
  registerSqlFunctions(connection_);
  check(sqlite3_exec(connection_, "create index if not exists PlainTitle on Recipe(Title)", nullptr, nullptr, nullptr));
  check(sqlite3_prepare_v2(connection_, "select Title, Meal from Recipe indexed by PlainTitle order by Title", -1,
                           &walk_, nullptr));
  check(sqlite3_prepare_v2(connection_, "select RecipeId from Recipe indexed by RecipeIdxTitle where Title = ?1", -1,
                           &find_, nullptr));
}

PlainSqlite::~PlainSqlite() {
  sqlite3_finalize(walk_);
  sqlite3_finalize(find_);
  sqlite3_close(connection_);
}

long PlainSqlite::walkTitles() {
  return readTitles(walk_);
}

long PlainSqlite::readAll(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  check(sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr));
  const long sum = readTitles(statement);
  check(sqlite3_finalize(statement));
  return sum;
}

long PlainSqlite::findTitle(const std::string& title) {
  check(sqlite3_bind_text(find_, 1, title.data(), static_cast<int>(title.size()), SQLITE_STATIC));
  const long found = sqlite3_step(find_) == SQLITE_ROW ? static_cast<long>(sqlite3_column_int64(find_, 0)) : -1;
  check(sqlite3_reset(find_));
  return found;
}

}  // namespace pantrigo::bench
