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

void addNumbers(FrmBrowse& form, bool times, std::vector<Control*>& page) {
  for (const NumericFilter& filter : numericFilters) {
    if (filter.isTime != times) continue;
    page.insert(page.end(), {&(form.*filter.caption), &(form.*filter.sign), &(form.*filter.box)});
  }
}

std::vector<Control*> continuedPage(FrmBrowse& form) {
  std::vector<Control*> page{&form.lblSource, &form.txtSource, &form.lblTimeTo};
  addNumbers(form, true, page);
  page.push_back(&form.lblNutrition);
  addNumbers(form, false, page);
  page.insert(page.end(), {&form.lblComments, &form.txtComments, &form.lblMethod, &form.txtMethod});
  return page;
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
