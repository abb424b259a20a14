#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <string>

namespace pantrigo::bench {

/// The yardstick: plain loops of the engine's C interface over a copy of the made store that has one more index, on
/// `Title` alone.
class PlainSqlite {
 public:
  /// Makes the copy at the first call and opens it with the engine's own settings and the store's collation.
  explicit PlainSqlite(const std::filesystem::path& folder);
  ~PlainSqlite();
  PlainSqlite(const PlainSqlite&) = delete;
  PlainSqlite& operator=(const PlainSqlite&) = delete;

  /// Runs `select Title, Meal from Recipe order by Title` by the index on `Title`; gives a sum over what it read.
  [[nodiscard]] long walkTitles();

  /// Finds a title with a prepared statement; gives its recipe id, -1 for none.
  [[nodiscard]] long findTitle(const std::string& title);

  /// Runs a query text from its preparation to its last row; gives a sum over what it read of the first two columns, a
  /// text and a number.
  [[nodiscard]] long readAll(const std::string& sql);

 private:
  sqlite3* connection_ = nullptr;
  sqlite3_stmt* walk_ = nullptr;
  sqlite3_stmt* find_ = nullptr;
};

}  // namespace pantrigo::bench
