#include "detail/clear_detail.h"

#include "core/category_kinds.h"
#include "core/pointer.h"
#include "core/recipes.h"
#include "detail/option_labels.h"
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
  global.gSource.clear();
  form.fmePicture.setCaption("");
  form.setMousePointer(pointerDefault);
}

}  // namespace pantrigo
