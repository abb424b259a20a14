#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pantrigo::bench {

/// The yardstick of one recipe: prepared statements over a store that no program runs over, with the store's own
/// settings of the engine.
class PlainRecipes {
 public:
  explicit PlainRecipes(const std::filesystem::path& store);
  ~PlainRecipes();
  PlainRecipes(const PlainRecipes&) = delete;
  PlainRecipes& operator=(const PlainRecipes&) = delete;

  /// Reads all of a recipe: its row, the options, its links and the descriptions of all its categories. Gives the
  /// length of what it read, in bytes.
  [[nodiscard]] long read(const std::string& title);

  /// Writes all of a recipe anew: its links and its row, one commit each.
  void write(long id, const std::string& text);

 private:
  /// Prepares a statement, which lives as long as this object.
  sqlite3_stmt* prepare(const std::string& sql);

  sqlite3* connection_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
  sqlite3_stmt* recipe_ = nullptr;
  sqlite3_stmt* system_ = nullptr;
  sqlite3_stmt* update_ = nullptr;

  struct SingleKind {
    int column;
    sqlite3_stmt* description;
  };
  std::vector<SingleKind> singleKinds_;

  struct LinkedKind {
    sqlite3_stmt* links;
    sqlite3_stmt* description;
    sqlite3_stmt* removal;
    sqlite3_stmt* addition;
    long count;
  };
  std::vector<LinkedKind> linkedKinds_;
};

}  // namespace pantrigo::bench
