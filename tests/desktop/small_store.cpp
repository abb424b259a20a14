#include "desktop/small_store.h"

#include <initializer_list>
#include <string>
#include <utility>

#include "platform/store/database.h"
#include "platform/store/durability.h"
#include "platform/text/format.h"

namespace pantrigo {

namespace {

using Fields = std::initializer_list<std::pair<const char*, Value>>;

void addRow(Database& store, const char* table, Fields fields) {
  Recordset rows = store.OpenRecordset(table);
  rows.AddNew();
  for (const auto& [name, value] : fields) rows.Set(name, value);
  rows.Update();
}

void setSystem(Database& store, Fields fields) {
  Recordset system = store.OpenRecordset("System");
  system.Edit();
  for (const auto& [name, value] : fields) system.Set(name, value);
  system.Update();
}

}  // namespace

void makeSmallStore(const std::filesystem::path& folder) {
  const std::filesystem::path file = folder / "PANTRIGO.MDB";
  Database::createStore(file);
  Database store = Database::OpenDatabase(file);
  setSystem(store, {{"Measurement", "m"},
                    {"PartialFractions", "4"},
                    {"Fractions", true},
                    {"Cup", 250},
                    {"Tablespoon", 4},
                    {"Kilojoules", true},
                    {"ShowRecipes", true},
                    {"ShowToolBars", true}});
  addRow(store, "Course", {{"CourseId", 1}, {"Description", "Dessert"}});
  addRow(store, "Course", {{"CourseId", 2}, {"Description", "Main Course"}});
  addRow(store, "Nationality", {{"NationalityId", 1}, {"Description", "English"}});
  addRow(store, "Health", {{"HealthId", 1}, {"Description", "Low Fat"}});
  addRow(store, "Health", {{"HealthId", 2}, {"Description", "Vegetarian"}});
  addRow(store, "Unit", {{"Type", "a"}, {"Description", "cup"}});
  addRow(store, "Unit", {{"Type", "a"}, {"Description", "bag"}});
  addRow(store, "Unit", {{"Type", "m"}, {"Description", "g"}});
  addRow(store, "Recipe",
         {{"RecipeId", 1},
          {"Title", "Apple Pie"},
          {"Course", 1},
          {"Nationality", 1},
          {"Serves", 6},
          {"PrepareTime", 30},
          {"Comment", pieComment},
          {"Method", pieMethod},
          {"Ingredients", "1~cup~flour~sifted~1~cup~500000~mg~apples~~500~g~"}});
  addRow(store, "RecipeHealth", {{"RecipeId", 1}, {"HealthId", 2}});
  addRow(store, "Recipe", {{"RecipeId", 2}, {"Title", "Beef Stew"}, {"Course", 2}, {"Serves", 4}, {"Meal", true}});
  addRow(store, "Recipe", {{"RecipeId", 3}, {"Title", "Carrot Cake"}, {"Serves", 8}, {"Source", "Notebook"}});
  store.Close();
}

void addRecipes(const std::filesystem::path& folder, int count) {
  constexpr int firstId = 4;
  Database store = Database::OpenDatabase(folder / "PANTRIGO.MDB");
  {
    const CheckpointAtEnd together(store);
    for (int number = 1; number <= count; ++number) {
      const std::string title = "Recipe " + Format(static_cast<long>(number), "0000");
      addRow(store, "Recipe", {{"RecipeId", firstId + number - 1}, {"Title", title}});
    }
  }
  store.Close();
}

}  // namespace pantrigo
