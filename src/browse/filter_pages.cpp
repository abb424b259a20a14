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
  std::vector<Control*> page{&form.lblSource, &form.txtSource, &form.lblTimeTo};
  bool nutrients = false;
  for (const NumericFilter& filter : numericFilters) {
    if (!filter.isTime && !nutrients) page.push_back(&form.lblNutrition);
    nutrients = !filter.isTime;
    page.insert(page.end(), {&(form.*filter.caption), &(form.*filter.sign), &(form.*filter.box)});
  }
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
