#include "detail/ingredient_list.h"

#include "measures/ingredient_rows.h"
#include "measures/show_ingredients.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

constexpr int alreadyShown = 400;

/// Opens the dialog for the first row of a recipe.
void offerFirstRow(Run& run) {
  resetIngredientRows(run, -1);
  run.GLOBAL.gIngredientsChanged = true;
  run.GLOBAL.gKeepDetailOnActivate = true;
  run.windows.ShowModal(run.frmIngredient);
}

}  // namespace

void lstIngredient_Click(Run& run) {
  run.GLOBAL.gKeepDetailOnActivate = true;
  try {
    run.windows.ShowModal(run.frmIngredient);
  } catch (const RuntimeError& error) {
    // The dialog makes the line that it goes to the current one, which is a click too.
    if (error.number() != alreadyShown) throw;
  }
}

void lstIngredient_GotFocus(Run& run) {
  if (run.frmDetail.lstIngredient.ListCount() == 0 && !run.GLOBAL.gIngredientsChanged) offerFirstRow(run);
}

void lstIngredient_MouseDown(Run& run) {
  if (run.frmDetail.lstIngredient.ListCount() == 0) offerFirstRow(run);
}

void rebuildLines(Run& run) {
  // A recipe that is not in the store yet may stand over a cursor without a row. It scales nothing then.
  Value makes;
  guarded([&] { makes = run.GLOBAL.gRecipe.Field("Makes"); });
  subShowIngredients(run, "s", makes);
}

}  // namespace pantrigo
