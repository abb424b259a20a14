#include "recipe_bench.h"

#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>

#include "core/start_up.h"
#include "large_store.h"
#include "plain_recipes.h"
#include "platform/text/numbers.h"
#include "program/program.h"
#include "support/quiet_toolkit.h"

namespace pantrigo::bench {

namespace {

namespace fs = std::filesystem;

constexpr int repetitions = 5;
constexpr long recipes = 200;
constexpr int ingredients = 20;

/// What a shown recipe is read for at most, against its plain reads, and saved for against its plain writes.
constexpr double showBound = 10.0;
constexpr double saveBound = 3.0;

std::string titleOf(long id) {
  return "Recipe " + plainText(1000 + id);
}

std::string methodOf(char letter) {
  std::string text;
  for (int sentence = 0; sentence < 15; ++sentence) text += "Stir gently over a low heat until it thickens. ";
  return text + letter;
}

std::string memo() {
  std::string text;
  for (int row = 0; row < ingredients; ++row) text += "250000~mg~flour~sifted~250~g~";
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
          {"Title", titleOf(id)},
          {"Nationality", 1},
          {"Course", 2},
          {"Cooking", 3},
          {"Ease", 4},
          {"Serves", 4},
          {"PrepareTime", 30},
          {"CookTime", 45},
          {"Comment", "Good cold."},
          {"Method", methodOf('.')},
          {"Ingredients", memo()},
          {"Source", "A friend"},
          {"Energy", 1200}});
  for (const int health : {1, 2, 3}) addRow(database, "RecipeHealth", {{"RecipeId", id}, {"HealthId", health}});
  for (const int other : {1, 2}) addRow(database, "RecipeOther", {{"RecipeId", id}, {"OtherId", other}});
}

/// Makes a folder of its own for a benchmark, with a store of recipes of 20 ingredients and 5 links each.
fs::path madeFolder(const std::string& name) {
  const fs::path folder = fs::current_path() / name;
  fs::remove_all(folder);
  fs::create_directories(folder);
  fs::copy_file(emptyStoreFolder() / storeName, folder / storeName);
  Database database = Database::OpenDatabase(folder / storeName);
  database.setDurability(Database::Durability::AtCheckpoint);
  addCategories(database);
  for (long id = 1; id <= recipes; ++id) addRecipe(database, id);
  database.setDurability(Database::Durability::EachUpdate);
  database.Close();
  return folder;
}

/// The program with the first recipe on show.
class ShownRecipe {
 public:
  explicit ShownRecipe(const fs::path& folder) : program_(toolkit_, folder) {
    program_.start();
    program_.run().loop.dispatch([&] {
      program_.run().frmBrowse.lstTitles.setListIndex(0);
      program_.run().frmBrowse.lstTitles.DblClick();
    });
  }
  ~ShownRecipe() {
    program_.run().loop.dispatch([&] { program_.run().loop.End(); });
  }
  ShownRecipe(const ShownRecipe&) = delete;
  ShownRecipe& operator=(const ShownRecipe&) = delete;

  [[nodiscard]] Run& run() { return program_.run(); }
  void press(MenuEntry& entry) {
    run().loop.dispatch([&] { entry.Click(); });
  }

 private:
  QuietToolkit toolkit_;
  Program program_;
};

void NextRecipe(benchmark::State& state) {
  ShownRecipe shown(madeFolder("bench-recipes"));
  FrmDetail& form = shown.run().frmDetail;
  const ListBox& titles = shown.run().frmBrowse.lstTitles;
  for (auto round : state) {
    shown.press(titles.ListIndex() + 1 < titles.ListCount() ? form.mnuNext : form.mnuFirst);
    benchmark::DoNotOptimize(form.txtMethod.Text().size());
  }
  const bool isShown = form.txtTitle.Text() == titles.List(titles.ListIndex()) &&
                       form.lstIngredient.ListCount() == ingredients && form.lstHealth.SelCount() == 3;
  if (!isShown) state.SkipWithError("the recipe is not on show");
}

void NextPlain(benchmark::State& state) {
  PlainRecipes plain(madeFolder("bench-recipes-plain") / storeName);
  long id = 1;
  for (auto round : state) {
    benchmark::DoNotOptimize(plain.read(titleOf(id)));
    id = id % recipes + 1;
  }
}

/// Types into every part of the form.
void changeEverything(Run& run, char letter) {
  FrmDetail& form = run.frmDetail;
  form.txtServes.setText(letter == 'a' ? "4" : "6");
  form.txtPrepareTime.setText(letter == 'a' ? "30" : "40");
  form.txtComments.setText(methodOf(letter));
  form.txtMethod.setText(methodOf(letter));
  form.lstHealth.Click();
  form.lstOther.Click();
  run.GLOBAL.gIngredientsChanged = true;
}

void UpdateRecipe(benchmark::State& state) {
  ShownRecipe shown(madeFolder("bench-recipes"));
  char letter = 'a';
  for (auto round : state) {
    letter = letter == 'a' ? 'b' : 'a';
    changeEverything(shown.run(), letter);
    shown.press(shown.run().frmDetail.mnuUpdate);
  }
  const bool isStored = !shown.run().loop.ended() && !shown.run().GLOBAL.gDetailChanged &&
                        shown.run().GLOBAL.gRecipe.Field("Comment").text() == methodOf(letter);
  if (!isStored) state.SkipWithError("the update failed");
}

void UpdatePlain(benchmark::State& state) {
  PlainRecipes plain(madeFolder("bench-recipes-plain") / storeName);
  char letter = 'a';
  for (auto round : state) {
    letter = letter == 'a' ? 'b' : 'a';
    plain.write(1, methodOf(letter));
  }
}

void add(const char* name, void (*function)(benchmark::State&)) {
  benchmark::RegisterBenchmark(name, function)
      ->Repetitions(repetitions)
      ->ReportAggregatesOnly(true)
      ->UseRealTime()
      ->Unit(benchmark::kMicrosecond);
}

}  // namespace

std::vector<Ratio> registerRecipeBenchmarks() {
  add("NextRecipe", NextRecipe);
  add("NextPlain", NextPlain);
  add("UpdateRecipe", UpdateRecipe);
  add("UpdatePlain", UpdatePlain);
  return {{"next recipe, 20 ingredients and 5 links", "NextRecipe", "NextPlain", showBound},
          {"update of all parts of a recipe", "UpdateRecipe", "UpdatePlain", saveBound}};
}

}  // namespace pantrigo::bench
