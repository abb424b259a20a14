#include "core/category_kinds.h"

#include <algorithm>

#include "core/recipes.h"

namespace pantrigo {

namespace {

constexpr CategoryKind single(std::string_view name, std::string_view idField, std::string_view descriptionIndex,
                              std::string_view idIndex, std::string_view useIndex, Recordset Global::*cursor,
                              ComboBox FrmBrowse::*browseCombo, ComboBox FrmDetail::*detailCombo) {
  return {name, idField, descriptionIndex, idIndex, useIndex, cursor,  browseCombo, detailCombo,
          {},   {},      nullptr,          nullptr, nullptr,  nullptr, nullptr,     {}};
}

const std::array<CategoryKind, categoryKindCount> kinds{{
    single("Nationality", "NationalityId", "NationalityIdxDescription", "NationalityIdxNationalityId",
           "RecipeIdxNationality", &Global::gNationality, &FrmBrowse::cmbNationality, &FrmDetail::cmbNationality),
    single("Course", "CourseId", "CourseIdxDescription", "CourseIdxCourseId", "RecipeIdxCourse", &Global::gCourse,
           &FrmBrowse::cmbCourse, &FrmDetail::cmbCourse),
    single("Cooking", "CookingId", "CookingIdxDescription", "CookingIdxCookingId", "RecipeIdxCooking",
           &Global::gCooking, &FrmBrowse::cmbCooking, &FrmDetail::cmbCooking),
    single("Ease", "EaseId", "EaseIdxDescription", "EaseIdxEaseId", "RecipeIdxEase", &Global::gEase,
           &FrmBrowse::cmbEase, &FrmDetail::cmbEase),
    {"Health", "HealthId", "HealthIdxDescription", "HealthIdxHealthId", "RecipeHealthIdxHealthId", &Global::gHealth,
     nullptr, nullptr, "RecipeHealth", "RecipeHealthIdxRecipeId", &Global::gRecipeHealth, &FrmBrowse::lstHealth,
     &FrmDetail::lstHealth, &FrmBrowse::lblHealth, &FrmDetail::lblHealth, "Health"},
    {"Other", "OtherId", "OtherIdxDescription", "OtherIdxOtherId", "RecipeOtherIdxOtherId", &Global::gOther, nullptr,
     nullptr, "RecipeOther", "RecipeOtherIdxRecipeId", &Global::gRecipeOther, &FrmBrowse::lstOther,
     &FrmDetail::lstOther, &FrmBrowse::lblOther, &FrmDetail::lblOther, "Other Categories"},
}};

void markLabel(Label& label, const CategoryKind& kind, const ListBox& list) {
  label.setCaption(std::string(kind.labelCaption) + (list.SelCount() > 0 ? "~" : ""));
}

}  // namespace

const std::array<CategoryKind, categoryKindCount>& categoryKinds() {
  return kinds;
}

const CategoryKind& categoryKind(std::string_view name) {
  const auto found =
      std::find_if(kinds.begin(), kinds.end(), [&](const CategoryKind& kind) { return kind.name == name; });
  if (found == kinds.end()) throw RuntimeError(5);
  return *found;
}

std::string categoryDescription(Global& global, const CategoryKind& kind, const Value& id) {
  if (!id.aboveEmpty()) return {};
  Recordset& categories = global.*kind.cursor;
  categories.Index(kind.idIndex);
  categories.Seek("=", id);
  return categories.NoMatch() ? std::string() : categories.Field("Description").text();
}

bool seekCategory(Global& global, const CategoryKind& kind, std::string_view description) {
  Recordset& categories = global.*kind.cursor;
  categories.Index(kind.descriptionIndex);
  categories.Seek("=", description);
  return !categories.NoMatch();
}

Value addCategory(Global& global, const CategoryKind& kind, std::string_view description) {
  const Value id = giveId(global, kind.idField);
  Recordset& categories = global.*kind.cursor;
  categories.AddNew();
  categories.Set(kind.idField, id);
  categories.Set("Description", description);
  categories.Update();
  return id;
}

void addToBrowse(Run& run, const CategoryKind& kind, std::string_view description) {
  if (kind.isLinked()) {
    (run.frmBrowse.*kind.browseList).AddItem(description);
  } else {
    (run.frmBrowse.*kind.browseCombo).AddItem(description);
  }
}

void addToDetail(Run& run, const CategoryKind& kind, std::string_view description) {
  if (kind.isLinked()) {
    (run.frmDetail.*kind.detailList).AddItem(description);
  } else {
    (run.frmDetail.*kind.detailCombo).AddItem(description);
  }
}

std::vector<std::string> browseRows(const Run& run, const CategoryKind& kind) {
  if (!kind.isLinked()) return (run.frmBrowse.*kind.browseCombo).rows();
  const ListBox& list = run.frmBrowse.*kind.browseList;
  std::vector<std::string> descriptions;
  for (int row = 0; row < list.ListCount(); ++row) descriptions.push_back(list.List(row));
  return descriptions;
}

void markBrowseLabel(Run& run, const CategoryKind& kind) {
  if (kind.isLinked()) markLabel(run.frmBrowse.*kind.browseLabel, kind, run.frmBrowse.*kind.browseList);
}

void markDetailLabel(Run& run, const CategoryKind& kind) {
  if (kind.isLinked()) markLabel(run.frmDetail.*kind.detailLabel, kind, run.frmDetail.*kind.detailList);
}

}  // namespace pantrigo
