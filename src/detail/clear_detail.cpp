#include "detail/clear_detail.h"

#include "core/category_kinds.h"
#include "measures/ingredient_rows.h"

namespace pantrigo {

namespace {

void clearCategories(Run& run) {
  for (const CategoryKind& kind : categoryKinds()) {
    if (kind.isLinked()) {
      (run.frmDetail.*kind.detailList).clearSelection();
      (run.frmDetail.*kind.detailLabel).setCaption(kind.labelCaption);
    } else {
      (run.frmDetail.*kind.detailCombo).setText("");
    }
  }
}

}  // namespace

void showMeasurement(Run& run) {
  const std::string measurement = run.GLOBAL.gSystem.Field("Measurement").text();
  Label& label = run.frmDetail.lblMeasurement;
  if (measurement == "m") label.setCaption("(metric)");
  if (measurement == "i") label.setCaption("(UK imperial)");
  if (measurement == "u") label.setCaption("(US imperial)");
}

void showSettings(Run& run) {
  const Recordset& system = run.GLOBAL.gSystem;
  const Value settings = system.Field("Settings");
  const bool shown = !settings.isNull() && settings.text() != " " && system.Field("SettingsIngredients").truth();
  run.frmDetail.lblSettings.setCaption(shown ? "(" + settings.text() + ")" : "");
  run.frmDetail.lblSettings.setVisible(shown);
}

void subClearDetail(Run& run) {
  FrmDetail& form = run.frmDetail;
  Global& global = run.GLOBAL;
  form.setMousePointer(pointerHourglass);
  form.txtTitle.setText("");
  form.fmeTitle.setCaption("");
  clearCategories(run);
  form.txtServes.setText("");
  showMeasurement(run);
  showSettings(run);
  form.txtPrepareTime.setText("");
  form.txtCookTime.setText("");
  form.txtComments.setText("");
  resetIngredientRows(run, 0);
  form.lstIngredient.Clear();
  form.txtMethod.setText("");
  form.imgPhoto.setPicture({});
  form.mnuNutrition.setCaption("Nutrition");
  for (const NutritionValue& nutrition : nutritionValues) global.*nutrition.value = 0;
  form.lblPicture.setVisible(false);
  global.gDetailChanged = false;
  global.gIngredientLast = 0;
  global.gSource.clear();
  form.fmePicture.setCaption("");
  form.setMousePointer(pointerDefault);
}

}  // namespace pantrigo
