#include "browse/filters.h"

#include <algorithm>
#include <vector>

#include "browse/filter_pages.h"
#include "core/category_kinds.h"
#include "core/energy_label.h"
#include "core/messages.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// What the heading says; it is the only mark of which page is on show.
constexpr std::string_view firstPage = "Filters";
constexpr std::string_view firstPageMarked = "Filters~";
constexpr std::string_view continuedPage = "Filters (continued)";

/// Widths of the heading in twips at the design width.
constexpr double firstPageWidth = 820;
constexpr double continuedPageWidth = 1900;

void setHeading(Run& run, std::string_view caption, double width) {
  run.frmBrowse.lblFilters.setWidth(width * static_cast<double>(run.GLOBAL.gScale));
  run.frmBrowse.lblFilters.setCaption(caption);
}

/// The boxes of the continued page that take any text.
constexpr TextBox FrmBrowse::*continuedTexts[] = {&FrmBrowse::txtSource, &FrmBrowse::txtComments,
                                                  &FrmBrowse::txtMethod};

bool holdsContinuedValue(const FrmBrowse& form) {
  const auto isSet = [&](TextBox FrmBrowse::*box) { return !(form.*box).Text().empty(); };
  return std::any_of(std::begin(continuedTexts), std::end(continuedTexts), isSet) ||
         std::any_of(numericFilters.begin(), numericFilters.end(),
                     [&](const NumericFilter& filter) { return isSet(filter.box); });
}

void showContinuedPage(Run& run) {
  setHeading(run, continuedPage, continuedPageWidth);
  subSetFilters(run, false);
  subSetFiltersContinued(run, true);
  run.windows.SetFocus(run.frmBrowse.txtSource);
}

void showFirstPage(Run& run) {
  setHeading(run, holdsContinuedValue(run.frmBrowse) ? firstPageMarked : firstPage, firstPageWidth);
  subSetFilters(run, true);
  // The focus moves before its page disappears.
  run.windows.SetFocus(run.frmBrowse.txtTitle);
  subSetFiltersContinued(run, false);
}

/// What the tick for the meal shuts, but for the heading: the filters of the first page.
std::vector<Control*> firstPageFilters(FrmBrowse& form) {
  return {&form.txtTitle,   &form.txtIngredient, &form.cmbNationality, &form.cmbCourse,
          &form.cmbCooking, &form.cmbEase,       &form.lstHealth,      &form.lstOther};
}

void enableFirstPage(FrmBrowse& form, bool enabled) {
  for (Control* control : firstPageFilters(form)) control->setEnabled(enabled);
}

void clearContinuedPage(FrmBrowse& form) {
  form.txtSource.setText("");
  for (const NumericFilter& filter : numericFilters) {
    (form.*filter.sign).setCaption(atMost);
    (form.*filter.box).setText("");
  }
  form.txtComments.setText("");
  form.txtMethod.setText("");
}

void clearList(FrmBrowse& form, const CategoryKind& kind) {
  ListBox& list = form.*kind.browseList;
  list.clearSelection();
  (form.*kind.browseLabel).setCaption(kind.labelCaption);
  if (list.ListCount() > 0) list.setTopIndex(0);
}

void clearFirstPage(FrmBrowse& form) {
  form.txtTitle.setText("");
  form.txtIngredient.setText("");
  for (const CategoryKind& kind : categoryKinds()) {
    if (!kind.isLinked()) (form.*kind.browseCombo).setText("");
  }
  for (const CategoryKind& kind : categoryKinds()) {
    if (kind.isLinked()) clearList(form, kind);
  }
}

}  // namespace

void lblFilters_Click(Run& run) {
  showEnergyUnit(run);
  const std::string& heading = run.frmBrowse.lblFilters.Caption();
  if (heading == firstPage || heading == firstPageMarked) {
    showContinuedPage(run);
  } else if (funValidFiltersContinued(run)) {
    showFirstPage(run);
  }
}

void flipSign(Label& sign) {
  sign.setCaption(sign.Caption() == atMost ? atLeast : atMost);
}

void chkMeal_Click(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  const bool ticked = form.chkMeal.Value();
  if (ticked) subClearFilters(run);
  enableFirstPage(form, !ticked);
  form.lblFilters.setEnabled(!ticked);
  if (!ticked) run.windows.SetFocus(form.txtTitle);
}

void mnuClear_Click(Run& run) {
  subClearFilters(run);
  run.frmBrowse.chkMeal.setValue(false);
}

bool funValidFiltersContinued(Run& run) {
  for (const NumericFilter& filter : numericFilters) {
    TextBox& box = run.frmBrowse.*filter.box;
    if (box.Text().empty() || isQueryNumber(box.Text())) continue;
    subNotNumeric(run);
    run.windows.SetFocus(box);
    return false;
  }
  return true;
}

void subClearFilters(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  subSetFiltersContinued(run, false);
  setHeading(run, firstPage, firstPageWidth);
  subSetFilters(run, true);
  clearContinuedPage(form);
  enableFirstPage(form, true);
  clearFirstPage(form);
  run.windows.SetFocus(form.txtTitle);
}

}  // namespace pantrigo
