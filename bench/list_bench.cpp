#include "list_bench.h"

#include <functional>
#include <string>

#include "core/start_up.h"
#include "large_store.h"
#include "plain_sqlite.h"

namespace pantrigo::bench {

namespace {

constexpr int repetitions = 5;

/// Lists what a person's filters ask for, as far as the store goes: without the box that takes the rows. Gives a sum
/// over what was read.
using Listing = std::function<long(Database&)>;

const std::string listText = " SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe ";

long readRow(const Recordset& row) {
  return static_cast<long>(row.Field("Title").text().size()) + (row.Field("Meal").truth() ? -1 : 0);
}

Listing query(const std::string& sql) {
  return [sql](Database& database) {
    long sum = 0;
    for (Recordset rows = database.OpenRecordset(sql); !rows.Eof(); rows.MoveNext()) sum += readRow(rows);
    return sum;
  };
}

/// The id of a category of a kind, found as the program finds it.
Value categoryId(Database& database, const std::string& kind, const char* description) {
  Recordset categories = database.OpenRecordset(kind);
  categories.Index(kind + "IdxDescription");
  categories.Seek("=", description);
  return categories.Field(kind + "Id");
}

long walkCourse(Database& database) {
  const Value id = categoryId(database, "Course", mainCourse);
  Recordset recipes = database.OpenRecordset("Recipe");
  recipes.Index("RecipeIdxCourse");
  long sum = 0;
  for (recipes.Seek("=", id); !recipes.Eof() && recipes.Field("Course") == id; recipes.MoveNext()) {
    sum += readRow(recipes);
  }
  return sum;
}

/// A new cursor finds the recipe of each link row.
long walkHealth(Database& database) {
  const Value id = categoryId(database, "Health", commonHealth);
  Recordset links = database.OpenRecordset("RecipeHealth");
  links.Index("RecipeHealthIdxHealthId");
  long sum = 0;
  for (links.Seek("=", id); !links.Eof() && links.Field("HealthId") == id; links.MoveNext()) {
    Recordset recipe = database.OpenRecordset("Recipe");
    recipe.Index("RecipeIdxRecipeId");
    recipe.Seek("=", links.Field("RecipeId"));
    sum += readRow(recipe);
  }
  return sum;
}

std::string ingredientText(const std::string& sought) {
  return listText + " WHERE Recipe!Ingredients like '*" + sought + "*'";
}

std::string ingredientYardstick(const std::string& sought) {
  return "select distinct Title, Meal from Recipe not indexed where Ingredients like '%" + sought + "%' order by Title";
}

std::string healthText(const std::string& description) {
  return "('" + description +
         "' in (Select Health.Description from Health,RecipeHealth Where RecipeHealth!HealthId = Health!HealthId and "
         "RecipeHealth!RecipeId = Recipe!RecipeId))";
}

std::string courseAndHealthText(const std::string& first, const std::string& second) {
  return listText + " ,Course  WHERE Course.Description = '" + soupCourse +
         "' AND Recipe.Course = Course.CourseId  AND (" + healthText(first) + " AND " + healthText(second) + ")";
}

/// Starts from the smallest set, knowing which it is.
std::string courseAndHealthYardstick() {
  const auto idOf = [](const std::string& table, const std::string& description) {
    return "(select " + table + "Id from " + table + " where Description = '" + description + "')";
  };
  return "select Title, Meal from RecipeHealth rare cross join RecipeHealth frequent cross join Recipe "
         "where rare.HealthId = " +
         idOf("Health", rareHealth) +
         " and frequent.RecipeId = rare.RecipeId and frequent.HealthId = " + idOf("Health", frequentHealth) +
         " and Recipe.RecipeId = rare.RecipeId and Course = " + idOf("Course", soupCourse) + " order by Title";
}

std::string otherText() {
  return listText + " ,Course  ,Other,RecipeOther  WHERE Course.Description = '" + soupCourse +
         "' AND Recipe.Course = Course.CourseId  AND (Other.Description = '" + rareOther +
         "' ) AND RecipeOther.RecipeId = Recipe.RecipeId  AND RecipeOther.OtherId = Other.OtherId ";
}

std::string otherYardstick() {
  return std::string(
             "select Title, Meal from RecipeOther cross join Recipe where OtherId = (select OtherId from Other where "
             "Description = '") +
         rareOther +
         "') and Recipe.RecipeId = RecipeOther.RecipeId and Course = (select CourseId from Course where Description "
         "= '" +
         soupCourse + "') order by Title";
}

struct Case {
  const char* name;
  Listing listing;
  std::string yardstick;
  double bound;
};

/// Our comparison knows the letter case of all alphabets, the engine's own only that of ASCII.
std::vector<Case> cases() {
  const auto sought = [](const char* name, const char* text, double bound) {
    return Case{name, query(ingredientText(text)), ingredientYardstick(text), bound};
  };
  return {
      sought("ingredient, no hits", "xylophone", 1.2),
      sought("ingredient, 600 hits", "saffron", 1.2),
      sought("ingredient, 36,000 hits", "butter", 1.2),
      sought("ingredient beyond ASCII, no hits", "g\u00FCrk\u00E7e", 4.0),
      sought("ingredient beyond ASCII, 600 hits", "Gruy\u00E8re", 4.0),
      sought("ingredient beyond ASCII, 36,000 hits", "Cr\u00E8me fra\u00EEche", 4.0),
      {"walk of a course", walkCourse, courseYardstick, 4.0},
      {"walk of a health category", walkHealth, healthYardstick, 4.0},
      {"a course and two health categories", query(courseAndHealthText(frequentHealth, rareHealth)),
       courseAndHealthYardstick(), 1.5},
      {"a course and two health categories, turned round", query(courseAndHealthText(rareHealth, frequentHealth)),
       courseAndHealthYardstick(), 1.5},
      {"a course and an other category", query(otherText()), otherYardstick(), 1.5},
  };
}

void runListing(benchmark::State& state, const Listing& listing) {
  Database database = Database::OpenDatabase(largeStoreFolder() / storeName);
  for (auto round : state) benchmark::DoNotOptimize(listing(database));
  database.Close();
}

void runYardstick(benchmark::State& state, const std::string& sql) {
  PlainSqlite plain(largeStoreFolder());
  for (auto round : state) benchmark::DoNotOptimize(plain.readAll(sql));
}

template <class Function>
std::string registered(const std::string& name, Function function) {
  benchmark::RegisterBenchmark(name.c_str(), function)
      ->Repetitions(repetitions)
      ->ReportAggregatesOnly(true)
      ->Unit(benchmark::kMillisecond);
  return name;
}

}  // namespace

std::vector<Ratio> registerListBenchmarks() {
  std::vector<Ratio> ratios;
  for (const Case& one : cases()) {
    const std::string name = std::string("List ") + one.name;
    ratios.push_back(
        {one.name, registered(name, [listing = one.listing](benchmark::State& state) { runListing(state, listing); }),
         registered(name + ", plain", [sql = one.yardstick](benchmark::State& state) { runYardstick(state, sql); }),
         one.bound});
  }
  return ratios;
}

}  // namespace pantrigo::bench
