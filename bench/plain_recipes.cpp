#include "plain_recipes.h"

#include <stdexcept>

#include "platform/store/sql_functions.h"

namespace pantrigo::bench {

namespace {

void check(int result, int wanted = SQLITE_OK) {
  if (result != wanted) throw std::runtime_error("the plain yardstick failed");
}

/// The length of all columns of the row that the statement stands on, each taken as a text.
long readRow(sqlite3_stmt* statement) {
  long length = 0;
  for (int column = 0; column < sqlite3_column_count(statement); ++column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    if (text != nullptr) length += static_cast<long>(std::string(text).size());
  }
  return length;
}

long readOne(sqlite3_stmt* statement) {
  const long length = sqlite3_step(statement) == SQLITE_ROW ? readRow(statement) : 0;
  check(sqlite3_reset(statement));
  return length;
}

long readById(sqlite3_stmt* statement, sqlite3_int64 id) {
  check(sqlite3_bind_int64(statement, 1, id));
  return readOne(statement);
}

void run(sqlite3_stmt* statement) {
  check(sqlite3_step(statement), SQLITE_DONE);
  check(sqlite3_reset(statement));
}

void bindText(sqlite3_stmt* statement, int parameter, const std::string& text) {
  check(sqlite3_bind_text(statement, parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC));
}

}  // namespace

PlainRecipes::PlainRecipes(const std::filesystem::path& store) {
  check(sqlite3_open(store.c_str(), &connection_));
  registerSqlFunctions(connection_);
  check(sqlite3_exec(connection_,
                     "pragma locking_mode=exclusive; pragma journal_mode=wal; pragma synchronous=full; "
                     "pragma cache_size=-8192",
                     nullptr, nullptr, nullptr));
  recipe_ = prepare(
      "select RecipeId, Nationality, Course, Cooking, Ease, * from Recipe indexed by RecipeIdxTitle where Title = ?1");
  system_ = prepare("select * from System");
  update_ = prepare(
      "update Recipe set Title = Title, Nationality = 1, Course = 1, Cooking = 1, Ease = 1, Serves = 4, Makes = 0, "
      "PrepareTime = 30, CookTime = 45, Comment = ?2, ConvertCupSpoon = 0, Ingredients = ?3, Method = ?4, Energy = 1, "
      "Protein = 1, Cholesterol = 1, Carbohydrates = 1, Sodium = 1, Fibre = 1, Calcium = 1, Fat = 1, Iron = 1, "
      "Source = ?5 where RecipeId = ?1");
  int column = 0;
  for (const std::string kind : {"Nationality", "Course", "Cooking", "Ease"}) {
    singleKinds_.push_back({++column, prepare("select Description from " + kind + " where " + kind + "Id = ?1")});
  }
  for (const auto& [kind, count] : {std::pair<std::string, long>{"Health", 3}, {"Other", 2}}) {
    const std::string link = "Recipe" + kind;
    linkedKinds_.push_back({prepare("select " + kind + "Id from " + link + " where RecipeId = ?1"),
                            prepare("select Description from " + kind + " where " + kind + "Id = ?1"),
                            prepare("delete from " + link + " where RecipeId = ?1"),
                            prepare("insert into " + link + " (RecipeId, " + kind + "Id) values (?1, ?2)"), count});
  }
}

PlainRecipes::~PlainRecipes() {
  for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
  sqlite3_close(connection_);
}

sqlite3_stmt* PlainRecipes::prepare(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  check(sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr));
  statements_.push_back(statement);
  return statement;
}

long PlainRecipes::read(const std::string& title) {
  bindText(recipe_, 1, title);
  check(sqlite3_step(recipe_), SQLITE_ROW);
  long length = readRow(recipe_) + readOne(system_);
  const sqlite3_int64 id = sqlite3_column_int64(recipe_, 0);
  for (const SingleKind& kind : singleKinds_) {
    length += readById(kind.description, sqlite3_column_int64(recipe_, kind.column));
  }
  check(sqlite3_reset(recipe_));
  for (const LinkedKind& kind : linkedKinds_) {
    check(sqlite3_bind_int64(kind.links, 1, id));
    while (sqlite3_step(kind.links) == SQLITE_ROW) {
      length += readById(kind.description, sqlite3_column_int64(kind.links, 0));
    }
    check(sqlite3_reset(kind.links));
  }
  return length;
}

void PlainRecipes::write(long id, const std::string& text) {
  for (const LinkedKind& kind : linkedKinds_) {
    check(sqlite3_bind_int64(kind.removal, 1, id));
    run(kind.removal);
    for (long place = 1; place <= kind.count; ++place) {
      check(sqlite3_bind_int64(kind.addition, 1, id));
      check(sqlite3_bind_int64(kind.addition, 2, place));
      run(kind.addition);
    }
  }
  check(sqlite3_bind_int64(update_, 1, id));
  for (const int parameter : {2, 3, 4, 5}) bindText(update_, parameter, text);
  run(update_);
}

}  // namespace pantrigo::bench
