#include "large_store.h"

#include <array>
#include <initializer_list>
#include <random>
#include <string>

#include "core/start_up.h"
#include "platform/store/database.h"
#include "platform/text/numbers.h"

namespace pantrigo::bench {

namespace fs = std::filesystem;

namespace {

constexpr std::array<std::string_view, 24> dishes{"Soup",     "Stew",      "Pie",     "Cake",   "Salad",    "Curry",
                                                  "Risotto",  "Bread",     "Tart",    "Gratin", "Pilaf",    "Chowder",
                                                  "Fritters", "Loaf",      "Noodles", "Roast",  "Crumble",  "Sorbet",
                                                  "Relish",   "Dumplings", "Bake",    "Hotpot", "Pancakes", "Terrine"};
constexpr std::array<std::string_view, 24> mains{"Apple",  "Beef",   "Carrot",  "Duck",     "Egg",    "Fennel",
                                                 "Garlic", "Ham",    "Lentil",  "Mushroom", "Nut",    "Onion",
                                                 "Potato", "Quince", "Rhubarb", "Salmon",   "Tomato", "Turnip",
                                                 "Walnut", "Pepper", "Leek",    "Chicken",  "Barley", "Pumpkin"};
constexpr std::array<std::string_view, 12> adjectives{"Spiced", "Cold",   "Smoked", "Baked",  "Sweet",  "Sour",
                                                      "Quick",  "Rustic", "Winter", "Summer", "Golden", "Crisp"};
constexpr std::string_view sentence =
    "Stir gently over a low heat until it thickens, then season and set aside to rest. ";

template <class Words>
std::string_view pick(std::mt19937& random, const Words& words) {
  return words[random() % words.size()];
}

std::string title(std::mt19937& random, long id) {
  return std::string(pick(random, adjectives)) + " " + std::string(pick(random, mains)) + " " +
         std::string(pick(random, dishes)) + " " + plainText(id);
}

/// Whether a recipe is among a number of them that are strewn over the store. The multipliers
/// are primes that share no factor with the recipes' count; sets of different ones are independent of each other.
bool isAmong(long id, long count, long multiplier) {
  return id * multiplier % recipeCount < count;
}

std::string ingredientRow(std::string_view name) {
  return "250000~mg~" + std::string(name) + "~chopped~250~g~";
}

std::string ingredients(std::mt19937& random, long id) {
  std::string memo;
  const unsigned rows = 6 + random() % 8;
  for (unsigned row = 0; row < rows; ++row) memo += ingredientRow(pick(random, mains));
  if (isAmong(id, 600, 7919)) memo += ingredientRow("Saffron");
  if (isAmong(id, 36000, 104729)) memo += ingredientRow("Butter");
  if (isAmong(id, 600, 15485863)) memo += ingredientRow("Gruy\u00E8re");
  if (isAmong(id, 36000, 32452843)) memo += ingredientRow("Cr\u00E8me fra\u00EEche");
  return memo;
}

std::string method(std::mt19937& random) {
  std::string text;
  const std::size_t length = static_cast<std::size_t>(recipeBytes) - 700 + random() % 600;
  while (text.size() < length) text += sentence;
  return text;
}

void addRecipes(Database& database) {
  std::mt19937 random(20011105);
  Recordset recipes = database.OpenRecordset("Recipe");
  for (long id = 1; id <= recipeCount; ++id) {
    recipes.AddNew();
    recipes.Set("RecipeId", id);
    recipes.Set("Title", title(random, id));
    recipes.Set("Meal", random() % 100 == 0);
    recipes.Set("Serves", static_cast<int>(2 + random() % 8));
    if (id % 2 == 0) recipes.Set("Course", 1);
    if (id % 10 == 1) recipes.Set("Course", 2);
    recipes.Set("Ingredients", ingredients(random, id));
    recipes.Set("Method", method(random));
    recipes.Update();
  }
  recipes.Close();
}

void addCategories(Database& database, const std::string& table, std::initializer_list<const char*> descriptions) {
  Recordset categories = database.OpenRecordset(table);
  long id = 0;
  for (const char* description : descriptions) {
    categories.AddNew();
    categories.Set(table + "Id", ++id);
    categories.Set("Description", description);
    categories.Update();
  }
  categories.Close();
}

void linkRecipes(Database& database, const std::string& table, long categoryId, long count, long multiplier) {
  Recordset links = database.OpenRecordset("Recipe" + table);
  for (long id = 1; id <= recipeCount; ++id) {
    if (!isAmong(id, count, multiplier)) continue;
    links.AddNew();
    links.Set("RecipeId", id);
    links.Set(table + "Id", categoryId);
    links.Update();
  }
  links.Close();
}

void addAllCategories(Database& database) {
  addCategories(database, "Course", {mainCourse, soupCourse});
  addCategories(database, "Health", {commonHealth, frequentHealth, rareHealth});
  addCategories(database, "Other", {frequentOther, rareOther});
  linkRecipes(database, "Health", 1, 50000, 49979687);
  linkRecipes(database, "Health", 2, 20000, 67867967);
  linkRecipes(database, "Health", 3, 500, 86028121);
  linkRecipes(database, "Other", 1, 20000, 122949823);
  linkRecipes(database, "Other", 2, 500, 141650939);
}

void setOptions(Database& database) {
  Recordset system = database.OpenRecordset("System");
  system.Edit();
  system.Set("Measurement", "m");
  system.Set("PartialFractions", "4");
  system.Set("Fractions", true);
  system.Set("Centigrams", true);
  system.Set("Cup", 250);
  system.Set("Tablespoon", 4);
  system.Set("ShowRecipes", true);
  system.Set("ShowToolBars", true);
  system.Set("RecipeId", recipeCount);
  system.Update();
  system.Close();
}

/// The store is made under another name first, so that a broken run leaves none behind that looks whole.
fs::path madeStore(const std::string& folderName, bool withRecipes) {
  const fs::path folder = fs::current_path() / folderName;
  const fs::path store = folder / storeName;
  if (fs::exists(store)) return folder;
  fs::create_directories(folder);
  const fs::path unfinished = folder / "unfinished";
  fs::remove(unfinished);
  Database::createStore(unfinished);
  Database database = Database::OpenDatabase(unfinished);
  database.setDurability(Database::Durability::AtCheckpoint);
  setOptions(database);
  if (withRecipes) {
    addRecipes(database);
    addAllCategories(database);
  }
  database.setDurability(Database::Durability::EachUpdate);
  database.Close();
  // The system keeps a file that was written page by page in smaller pieces than one that was written in a row, as the
  // yardstick's copy is; both are to be read alike.
  const fs::path inARow = folder / "copied";
  fs::copy_file(unfinished, inARow, fs::copy_options::overwrite_existing);
  fs::remove(unfinished);
  fs::rename(inARow, store);
  return folder;
}

}  // namespace

fs::path largeStoreFolder() {
  return madeStore("bench-cookbook", true);
}
fs::path emptyStoreFolder() {
  return madeStore("bench-empty", false);
}

}  // namespace pantrigo::bench
