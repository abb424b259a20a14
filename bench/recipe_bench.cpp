#include "recipe_bench.h"

#include <filesystem>
#include <string>

#include "core/start_up.h"
#include "plain_recipes.h"
#include "program/program.h"
#include "recipe_store.h"
#include "support/quiet_toolkit.h"

namespace pantrigo::bench {

namespace {

namespace fs = std::filesystem;

constexpr int repetitions = 5;

/// What a shown recipe is read for at most, against its plain reads, and saved for against its plain writes.
constexpr double showBound = 10.0;
constexpr double saveBound = 3.0;

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
  ShownRecipe shown(recipeStoreFolder("bench-recipes"));
  FrmDetail& form = shown.run().frmDetail;
  const ListBox& titles = shown.run().frmBrowse.lstTitles;
  for (auto round : state) {
    shown.press(titles.ListIndex() + 1 < titles.ListCount() ? form.mnuNext : form.mnuFirst);
    benchmark::DoNotOptimize(form.txtMethod.Text().size());
  }
  const bool isShown = form.txtTitle.Text() == titles.List(titles.ListIndex()) &&
                       form.lstIngredient.ListCount() == storedIngredients &&
                       form.lstHealth.SelCount() == storedHealthLinks;
  if (!isShown) state.SkipWithError("the recipe is not on show");
}

void NextPlain(benchmark::State& state) {
  PlainRecipes plain(recipeStoreFolder("bench-recipes-plain") / storeName);
  long id = 1;
  for (auto round : state) {
    benchmark::DoNotOptimize(plain.read(recipeTitle(id)));
    id = id % storedRecipes + 1;
  }
}

/// Types into every part of the form.
void changeEverything(Run& run, char letter) {
  FrmDetail& form = run.frmDetail;
  form.txtServes.setText(letter == 'a' ? "4" : "6");
  form.txtPrepareTime.setText(letter == 'a' ? "30" : "40");
  form.txtComments.setText(recipeMethod(letter));
  form.txtMethod.setText(recipeMethod(letter));
  form.lstHealth.Click();
  form.lstOther.Click();
  run.GLOBAL.gIngredientsChanged = true;
}

void UpdateRecipe(benchmark::State& state) {
  ShownRecipe shown(recipeStoreFolder("bench-recipes"));
  char letter = 'a';
  for (auto round : state) {
    letter = letter == 'a' ? 'b' : 'a';
    changeEverything(shown.run(), letter);
    shown.press(shown.run().frmDetail.mnuUpdate);
  }
  const bool isStored = !shown.run().loop.ended() && !shown.run().GLOBAL.gDetailChanged &&
                        shown.run().GLOBAL.gRecipe.Field("Comment").text() == recipeMethod(letter);
  if (!isStored) state.SkipWithError("the update failed");
}

void UpdatePlain(benchmark::State& state) {
  PlainRecipes plain(recipeStoreFolder("bench-recipes-plain") / storeName);
  char letter = 'a';
  for (auto round : state) {
    letter = letter == 'a' ? 'b' : 'a';
    plain.write(1, recipeMethod(letter));
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
