#include "next_window.h"

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "desktop/desktop.h"
#include "platform/controls/input.h"
#include "recipe_store.h"

namespace pantrigo::bench {

namespace {

constexpr int repetitions = 5;
/// Fewest recipes in a second.
constexpr double bound = 100;

void step(Desktop& desktop) {
  Run& run = desktop.program().run();
  desktop.toolkit().dispatch([&](Windows& windows) { userClicks(windows, run.frmDetail.mnuNext); });
  // The windows are painted in here.
  QCoreApplication::processEvents();
}

/// Goes from the first recipe to the last, and gives the seconds that it took.
double walk(Desktop& desktop) {
  Run& run = desktop.program().run();
  desktop.toolkit().dispatch([&](Windows& windows) { userClicks(windows, run.frmDetail.mnuFirst); });
  QCoreApplication::processEvents();
  const auto start = std::chrono::steady_clock::now();
  for (long number = 1; number < storedRecipes; ++number) step(desktop);
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  const FrmDetail& form = run.frmDetail;
  const bool isShown = form.Visible() && form.txtTitle.Text() == recipeTitle(storedRecipes) &&
                       form.lstIngredient.ListCount() == storedIngredients &&
                       form.lstHealth.SelCount() == storedHealthLinks && form.lstOther.SelCount() == storedOtherLinks;
  if (!isShown) std::abort();
  return time.count();
}

}  // namespace

bool windowShowsRecipesQuickly() {
  Desktop desktop(recipeStoreFolder("bench-recipes-window"));
  desktop.start();
  Run& run = desktop.program().run();
  desktop.toolkit().dispatch([&](Windows& windows) { userPicks(windows, run.frmBrowse.lstTitles, 0); });
  desktop.toolkit().dispatch([&](Windows& windows) { userDoubleClicks(windows, run.frmBrowse.lstTitles); });
  std::vector<double> times;
  for (int round = 0; round < repetitions; ++round) times.push_back(walk(desktop));
  desktop.close();
  std::ranges::sort(times);
  const double rate = static_cast<double>(storedRecipes - 1) / times[times.size() / 2];
  const bool kept = rate >= bound;
  std::cout << (kept ? "kept    " : "MISSED  ") << "recipes that Next shows in a second, with the window: " << rate
            << " of at least " << bound << '\n';
  return kept;
}

}  // namespace pantrigo::bench
