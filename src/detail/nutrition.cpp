#include "detail/nutrition.h"

#include "core/dialogs.h"
#include "core/layout.h"
#include "core/messages.h"
#include "core/recipes.h"
#include "measures/quantity.h"
#include "platform/text/format.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// Kilojoules in a kilocalorie, which cooks call calorie.
constexpr double kilojoulesInCalorie = 4.1868;
constexpr std::string_view wholeNumber = "####0";

/// The energy is divided on its way in where the options count in calories, and taken as typed by OK, so its unit is
/// that of the options from then on.
void showEnergy(Run& run) {
  FrmNutrition& form = run.frmNutrition;
  const bool inKilojoules = run.GLOBAL.gSystem.Field("Kilojoules").truth();
  form.lblEnergy.setCaption(inKilojoules ? "Energy (kilojoules)" : "Energy (calories)");
  const float energy = run.GLOBAL.gEnergy;
  if (energy == 0) {
    form.lblKilojoulesCalories.setCaption("");
    form.txtEnergy.setText("");
    return;
  }
  const std::string kilojoules = Format(energy, wholeNumber);
  const std::string calories = Format(energy / kilojoulesInCalorie, wholeNumber);
  form.txtEnergy.setText(inKilojoules ? kilojoules : calories);
  form.lblKilojoulesCalories.setCaption("or approx. " +
                                        (inKilojoules ? calories + " calories" : kilojoules + " kilojoules"));
}

/// The first box whose text is no number, in the order of checking; null when there is none.
TextBox* firstWrongBox(FrmNutrition& form) {
  for (const NutritionValue& nutrition : nutritionValues) {
    TextBox& box = form.*nutrition.box;
    if (!box.Text().empty() && !IsNumeric(box.Text())) return &box;
  }
  return nullptr;
}

}  // namespace

void frmNutrition_Load(Run& run) {
  centreForm(run, run.frmNutrition);
  showEnergy(run);
  for (const NutritionValue& nutrition : nutritionValues) {
    if (nutrition.value == &Global::gEnergy) continue;
    const float value = run.GLOBAL.*nutrition.value;
    (run.frmNutrition.*nutrition.box).setText(value == 0 ? "" : plainText(value));
  }
}

void takeNutritionValues(Run& run) {
  run.GLOBAL.gKeepDetailOnActivate = true;
  run.GLOBAL.gDetailChanged = true;
  FrmNutrition& form = run.frmNutrition;
  if (TextBox* wrong = firstWrongBox(form)) {
    subNotNumeric(run);
    run.windows.SetFocus(*wrong);
    return;
  }
  bool marked = false;
  for (const NutritionValue& nutrition : nutritionValues) {
    const float value = toSingle(Val((form.*nutrition.box).Text()));
    run.GLOBAL.*nutrition.value = value;
    marked = marked || (nutrition.marksEntry && value > 0);
  }
  run.frmDetail.mnuNutrition.setCaption(marked ? "Nutrition~" : "Nutrition");
  leaveKeepingDetail(run, form);
}

void clearNutrition(Run& run) {
  FrmNutrition& form = run.frmNutrition;
  form.lblKilojoulesCalories.setCaption("");
  for (const NutritionValue& nutrition : nutritionValues) (form.*nutrition.box).setText("");
  run.windows.SetFocus(form.txtEnergy);
}

void cancelNutrition(Run& run) {
  leaveKeepingDetail(run, run.frmNutrition);
}

}  // namespace pantrigo
