#include "recipe_store.h"

#include <initializer_list>
#include <utility>

#include "core/start_up.h"
#include "large_store.h"
#include "platform/store/database.h"
#include "platform/text/numbers.h"

namespace pantrigo::bench {

namespace fs = std::filesystem;

std::string recipeTitle(long id) {
  return "Recipe " + plainText(1000 + id);
}

std::string recipeMethod(char letter) {
  std::string text;
  for (int sentence = 0; sentence < 15; ++sentence) text += "Stir gently over a low heat until it thickens. ";
  return text + letter;
}

namespace {

std::string memo() {
  std::string text;
  for (int row = 0; row < storedIngredients; ++row) text += "250000~mg~flour~sifted~250~g~";
  return text;
}

using Fields = std::initializer_list<std::pair<std::string, Value>>;

void addRow(Database& database, const std::string& table, Fields fields) {
  Recordset rows = database.OpenRecordset(table);
  rows.AddNew();
  for (const auto& [name, value] : fields) rows.Set(name, value);
  rows.Update();
}

void addCategories(Database& database) {
  for (const std::string kind : {"Nationality", "Course", "Cooking", "Ease", "Health", "Other"}) {
    for (int id = 1; id <= 5; ++id) {
      addRow(database, kind, {{kind + "Id", id}, {"Description", kind + " " + plainText(static_cast<long>(id))}});
    }
  }
}

void addRecipe(Database& database, long id) {
  addRow(database, "Recipe",
         {{"RecipeId", id},
          {"Title", recipeTitle(id)},
          {"Nationality", 1},
          {"Course", 2},
          {"Cooking", 3},
          {"Ease", 4},
          {"Serves", 4},
          {"PrepareTime", 30},
          {"CookTime", 45},
          {"Comment", "Good cold."},
          {"Method", recipeMethod('.')},
          {"Ingredients", memo()},
          {"Source", "A friend"},
          {"Energy", 1200}});
  for (const int health : {1, 2, 3}) addRow(database, "RecipeHealth", {{"RecipeId", id}, {"HealthId", health}});
  for (const int other : {1, 2}) addRow(database, "RecipeOther", {{"RecipeId", id}, {"OtherId", other}});
}

}  // namespace

fs::path recipeStoreFolder(const std::string& name) {
  const fs::path folder = fs::current_path() / name;
  fs::remove_all(folder);
  fs::create_directories(folder);
  fs::copy_file(emptyStoreFolder() / storeName, folder / storeName);
  Database database = Database::OpenDatabase(folder / storeName);
  database.setDurability(Database::Durability::AtCheckpoint);
  addCategories(database);
  for (long id = 1; id <= storedRecipes; ++id) addRecipe(database, id);
  database.setDurability(Database::Durability::EachUpdate);
  database.Close();
  return folder;
}

}  // namespace pantrigo::bench
