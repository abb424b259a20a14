#include "log_size.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "core/start_up.h"
#include "platform/store/database.h"

namespace pantrigo::bench {

namespace fs = std::filesystem;

namespace {

constexpr long updateCount = 10000;
constexpr long rowCount = 500;

enum class Cursor { None, Standing };

void addRow(Recordset& recipes, long id) {
  recipes.AddNew();
  recipes.Set("RecipeId", id);
  recipes.Set("Title", "Recipe " + std::to_string(id));
  recipes.Update();
}

std::uintmax_t largestLog(Cursor cursor) {
  const fs::path folder = fs::current_path() / "bench-log";
  fs::remove_all(folder);
  fs::create_directories(folder);
  const fs::path store = folder / storeName;
  Database::createStore(store);
  Database database = Database::OpenDatabase(store);
  Recordset recipes = database.OpenRecordset("Recipe");
  for (long id = 1; id <= rowCount; ++id) addRow(recipes, id);
  Recordset walk = database.OpenRecordset("Recipe");
  if (cursor == Cursor::Standing) {
    walk.Index("RecipeIdxTitle");
    walk.Seek(">", "");
    for (long step = 0; step < rowCount / 2; ++step) walk.MoveNext();
  }
  std::uintmax_t largest = 0;
  recipes.Index("RecipeIdxRecipeId");
  for (long update = 0; update < updateCount; ++update) {
    recipes.Seek("=", 1 + update % rowCount);
    recipes.Edit();
    recipes.Set("Method", "Stir " + std::to_string(update) + " times.");
    recipes.Update();
    std::error_code none;
    const std::uintmax_t size = fs::file_size(store.string() + "-wal", none);
    if (!none) largest = std::max(largest, size);
  }
  database.Close();
  fs::remove_all(folder);
  return largest;
}

}  // namespace

bool standingCursorKeepsTheLogSmall() {
  const std::uintmax_t standing = largestLog(Cursor::Standing);
  const std::uintmax_t none = largestLog(Cursor::None);
  const bool kept = standing <= none;
  std::cout << (kept ? "kept    " : "MISSED  ") << "largest log in 10,000 updates: " << standing / 1024
            << " KB with a standing cursor, " << none / 1024 << " KB without\n";
  return kept;
}

}  // namespace pantrigo::bench
