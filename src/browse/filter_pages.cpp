#include "browse/filter_pages.h"

#include <vector>

namespace pantrigo {

namespace {

std::vector<Control*> firstPage(FrmBrowse& form) {
  return {&form.lblTitle,       &form.txtTitle,  &form.lblIngredient, &form.txtIngredient, &form.lblNationality,
          &form.cmbNationality, &form.lblCourse, &form.cmbCourse,     &form.lblCooking,    &form.cmbCooking,
          &form.lblEase,        &form.cmbEase,   &form.lblHealth,     &form.lstHealth,     &form.lblOther,
          &form.lstOther,       &form.chkMeal};
}

std::vector<Control*> continuedPage(FrmBrowse& form) {
  return {&form.lblSource,        &form.txtSource,        &form.lblTimeTo,
          &form.lblPrepareTime,   &form.lblPrepareSign,   &form.txtPrepareTime,
          &form.lblCookTime,      &form.lblCookSign,      &form.txtCookTime,
          &form.lblNutrition,     &form.lblEnergy,        &form.lblEnergySign,
          &form.txtEnergy,        &form.lblProtein,       &form.lblProteinSign,
          &form.txtProtein,       &form.lblCarbohydrates, &form.lblCarbohydratesSign,
          &form.txtCarbohydrates, &form.lblFibre,         &form.lblFibreSign,
          &form.txtFibre,         &form.lblFat,           &form.lblFatSign,
          &form.txtFat,           &form.lblCholesterol,   &form.lblCholesterolSign,
          &form.txtCholesterol,   &form.lblSodium,        &form.lblSodiumSign,
          &form.txtSodium,        &form.lblCalcium,       &form.lblCalciumSign,
          &form.txtCalcium,       &form.lblIron,          &form.lblIronSign,
          &form.txtIron,          &form.lblComments,      &form.txtComments,
          &form.lblMethod,        &form.txtMethod};
}

void setVisible(const std::vector<Control*>& controls, bool visible) {
  for (Control* control : controls) control->setVisible(visible);
}

}  // namespace

void subSetFilters(Run& run, bool visible) {
  setVisible(firstPage(run.frmBrowse), visible);
}

void subSetFiltersContinued(Run& run, bool visible) {
  setVisible(continuedPage(run.frmBrowse), visible);
}

}  // namespace pantrigo
