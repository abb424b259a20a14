#include "core/messages.h"
#include "detail/change_tracking.h"
#include "detail/delete_recipe.h"
#include "detail/detail_window.h"
#include "detail/find_recipe.h"
#include "detail/ingredient_list.h"
#include "detail/navigation.h"
#include "detail/save_recipe.h"
#include "detail/settings.h"
#include "detail/source.h"
#include "detail/toggle_meal.h"
#include "program/wire_commands.h"
#include "program/wiring.h"

namespace pantrigo {

namespace {

constexpr MenuCommand<FrmDetail> menuCommands[] = {
    {&FrmDetail::mnuPrinterSetup, [](Run& run) { setUpPrinter(run.frmDetail.CMDialog1); }},
    {&FrmDetail::mnuExit, leaveDetail},
    {&FrmDetail::mnuClear, clearRecipe},
    {&FrmDetail::mnuFind, subFindRecipe},
    {&FrmDetail::mnuAdd, subAddRecipe},
    {&FrmDetail::mnuUpdate, subUpdateRecipe},
    {&FrmDetail::mnuDelete, subDeleteRequest},
    {&FrmDetail::mnuFirst, subFirstRecipe},
    {&FrmDetail::mnuPrevious, subPreviousRecipe},
    {&FrmDetail::mnuNext, subNextRecipe},
    {&FrmDetail::mnuLast, subLastRecipe},
    {&FrmDetail::mnuSettings, subEditSettings},
    {&FrmDetail::mnuNutrition, [](Run& run) { run.windows.ShowModal(run.frmNutrition); }},
    {&FrmDetail::mnuMeal, subToggleMeal},
    {&FrmDetail::mnuOven, [](Run& run) { run.windows.ShowModal(run.frmOven); }},
    {&FrmDetail::mnuSource, subSource},
    {&FrmDetail::mnuContents, [](Run& run) { subShowHelp(run, helpContents); }},
    {&FrmDetail::mnuSearch, [](Run& run) { showHelpSearch(run.frmDetail.CMDialog1); }},
    {&FrmDetail::mnuAbout, [](Run& run) { run.windows.ShowModal(run.frmAbout); }},
};

constexpr ToolCommand<FrmDetail> toolCommands[] = {
    {"Clear", &FrmDetail::mnuClear},   {"Find", &FrmDetail::mnuFind},         {"Add", &FrmDetail::mnuAdd},
    {"Update", &FrmDetail::mnuUpdate}, {"Delete", &FrmDetail::mnuDelete},     {"Print", &FrmDetail::mnuPrint},
    {"First", &FrmDetail::mnuFirst},   {"Previous", &FrmDetail::mnuPrevious}, {"Next", &FrmDetail::mnuNext},
    {"Last", &FrmDetail::mnuLast},     {"Settings", &FrmDetail::mnuSettings}, {"Nutrition", &FrmDetail::mnuNutrition},
    {"Meal", &FrmDetail::mnuMeal},     {"Oven", &FrmDetail::mnuOven},         {"Exit", &FrmDetail::mnuExit},
};

/// A category's label and its menu entry, either of which opens the dialog of that kind.
struct CategoryEntry {
  Label FrmDetail::*label;
  MenuEntry FrmDetail::*entry;
  std::string_view kind;
};

constexpr CategoryEntry categoryEntries[] = {
    {&FrmDetail::lblNationality, &FrmDetail::mnuCategoriesNationality, "Nationality"},
    {&FrmDetail::lblCourse, &FrmDetail::mnuCategoriesCoarse, "Course"},
    {&FrmDetail::lblCooking, &FrmDetail::mnuCategoriesCooking, "Cooking"},
    {&FrmDetail::lblEase, &FrmDetail::mnuCategoriesEase, "Ease"},
    {&FrmDetail::lblHealth, &FrmDetail::mnuCategoriesHealth, "Health"},
    {&FrmDetail::lblOther, &FrmDetail::mnuCategoriesOther, "Other"},
};

void tbDetail_ButtonClick(Run& run, const std::string& key) {
  if (key == "Help") subShowHelp(run, helpDetail);
  pressToolButton<FrmDetail>(run.frmDetail, toolCommands, key);
}

void wireChanges(Run& run) {
  FrmDetail& form = run.frmDetail;
  const auto changed = [&run] { detailChanged(run); };
  for (ComboBox* combo : {&form.cmbNationality, &form.cmbCourse, &form.cmbCooking, &form.cmbEase}) {
    combo->Change = changed;
    combo->Click = changed;
  }
  for (TextBox* box : {&form.txtServes, &form.txtPrepareTime, &form.txtCookTime}) box->Change = changed;
  form.txtComments.Change = [&run] { txtComments_Change(run); };
  form.txtMethod.Change = [&run] { txtMethod_Change(run); };
  form.lstHealth.Click = [&run] { lstHealth_Click(run); };
  form.lstOther.Click = [&run] { lstOther_Click(run); };
  form.lblServes.Click = [&run] { lblServes_Click(run); };
}

void wireCategories(Run& run) {
  for (const CategoryEntry& category : categoryEntries) {
    const auto show = [&run, kind = category.kind] {
      run.GLOBAL.gCategoryCaller = run.frmDetail.Name();
      run.GLOBAL.gCategoryTable = kind;
      run.windows.ShowModal(run.frmCategory);
    };
    (run.frmDetail.*category.label).Click = show;
    (run.frmDetail.*category.entry).Click = show;
  }
}

void wireIngredients(Run& run) {
  ListBox& list = run.frmDetail.lstIngredient;
  list.Click = [&run] { lstIngredient_Click(run); };
  list.GotFocus = [&run] { lstIngredient_GotFocus(run); };
  list.MouseDown = [&run](int) { lstIngredient_MouseDown(run); };
}

}  // namespace

void wireFrmDetail(Run& run) {
  FrmDetail& form = run.frmDetail;
  form.Load = [&run] { frmDetail_Load(run); };
  form.Activate = [&run] { frmDetail_Activate(run); };
  form.KeyDown = [&run](int key) { frmDetail_KeyDown(run, key); };
  form.KeyPress = [&run](int key) { frmDetail_KeyPress(run, key); };
  form.CloseMark = [&run] { leaveDetail(run); };
  form.lblSettings.Click = [&run] { subEditSettings(run); };
  form.fmeTitle.Click = [&run] { subSource(run); };
  wireChanges(run);
  wireIngredients(run);
  wireCategories(run);
  for (const MenuCommand<FrmDetail>& command : menuCommands) {
    (form.*command.entry).Click = [&run, routine = command.routine] { routine(run); };
  }
  form.tbDetail.ButtonClick = [&run](const std::string& key) { tbDetail_ButtonClick(run, key); };
  disableUnwiredButtons<FrmDetail>(form, form.tbDetail, toolCommands);
}

}  // namespace pantrigo
