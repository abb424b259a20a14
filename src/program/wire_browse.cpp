#include "browse/browse_window.h"
#include "browse/filters.h"
#include "browse/last_import.h"
#include "browse/list_query.h"
#include "browse/recipe_commands.h"
#include "browse/title_list.h"
#include "core/category_kinds.h"
#include "core/messages.h"
#include "program/wire_commands.h"
#include "program/wiring.h"

namespace pantrigo {

namespace {

/// A menu entry and a filter's label, either of which opens the dialog of a category kind.
struct CategoryEntry {
  MenuEntry FrmBrowse::*entry;
  Label FrmBrowse::*label;
  std::string_view kind;
};

constexpr CategoryEntry categoryEntries[] = {
    {&FrmBrowse::mnuCategoriesNationality, &FrmBrowse::lblNationality, "Nationality"},
    {&FrmBrowse::mnuCategoriesCourse, &FrmBrowse::lblCourse, "Course"},
    {&FrmBrowse::mnuCategoriesCooking, &FrmBrowse::lblCooking, "Cooking"},
    {&FrmBrowse::mnuCategoriesEase, &FrmBrowse::lblEase, "Ease"},
    {&FrmBrowse::mnuCategoriesHealth, &FrmBrowse::lblHealth, "Health"},
    {&FrmBrowse::mnuCategoriesOther, &FrmBrowse::lblOther, "Other"},
};

constexpr MenuCommand<FrmBrowse> menuCommands[] = {
    {&FrmBrowse::mnuOptions, [](Run& run) { run.windows.ShowModal(run.frmOptions); }},
    {&FrmBrowse::mnuPrintSetup, [](Run& run) { setUpPrinter(run.frmBrowse.CMDialog1); }},
    {&FrmBrowse::mnuViewImportLog, showImportLog},
    {&FrmBrowse::mnuListLastImported, subListLastImported},
    {&FrmBrowse::mnuClear, mnuClear_Click},
    {&FrmBrowse::mnuFilter, subBuildList},
    {&FrmBrowse::mnuAdd, subOpenBlankDetail},
    {&FrmBrowse::mnuUpdate, subOpenSelected},
    {&FrmBrowse::mnuDelete, subDeleteSelected},
    {&FrmBrowse::mnuFirst, subListFirst},
    {&FrmBrowse::mnuPrevious, subListPrevious},
    {&FrmBrowse::mnuNext, subListNext},
    {&FrmBrowse::mnuLast, subListLast},
    {&FrmBrowse::mnuSettings, [](Run& run) { run.windows.ShowModal(run.frmSettings); }},
    {&FrmBrowse::mnuMeal, subListToggleMeal},
    {&FrmBrowse::mnuListListLastImported, subListLastImported},
    {&FrmBrowse::mnuContents, [](Run& run) { subShowHelp(run, helpContents); }},
    {&FrmBrowse::mnuSearch, [](Run& run) { showHelpSearch(run.frmBrowse.CMDialog1); }},
    {&FrmBrowse::mnuAbout, [](Run& run) { run.windows.ShowModal(run.frmAbout); }},
};

constexpr ToolCommand<FrmBrowse> toolCommands[] = {
    {"Options", &FrmBrowse::mnuOptions}, {"Clear", &FrmBrowse::mnuClear},   {"Filter", &FrmBrowse::mnuFilter},
    {"Add", &FrmBrowse::mnuAdd},         {"Update", &FrmBrowse::mnuUpdate}, {"Delete", &FrmBrowse::mnuDelete},
    {"Print", &FrmBrowse::mnuPrint},     {"First", &FrmBrowse::mnuFirst},   {"Previous", &FrmBrowse::mnuPrevious},
    {"Next", &FrmBrowse::mnuNext},       {"Last", &FrmBrowse::mnuLast},     {"Settings", &FrmBrowse::mnuSettings},
    {"Meal", &FrmBrowse::mnuMeal},       {"Exit", &FrmBrowse::mnuExit},
};

/// Stop acts at any time, the other buttons only while the window isn't busy.
void tbBrowse_ButtonClick(Run& run, const std::string& key) {
  if (key == "Stop") {
    run.frmBrowse.mbStop = true;
    return;
  }
  if (run.frmBrowse.mbBusy) return;
  if (key == "Help") subShowHelp(run, helpBrowse);
  pressToolButton<FrmBrowse>(run.frmBrowse, toolCommands, key);
}

void wireList(Run& run) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.DblClick = [&run] {
    if (!run.frmBrowse.mbBusy) lstTitles_DblClick(run);
  };
  titles.KeyDown = [&run](int key) {
    if (!run.frmBrowse.mbBusy) lstTitles_KeyDown(run, key);
  };
  titles.SelChange = [&run] { lstTitles_SelChange(run); };
}

void showCategories(Run& run, std::string_view kind) {
  if (run.frmBrowse.mbBusy) return;
  run.GLOBAL.gCategoryCaller = run.frmBrowse.Name();
  run.GLOBAL.gCategoryTable = kind;
  run.windows.ShowModal(run.frmCategory);
}

void wireCategories(Run& run) {
  for (const CategoryEntry& category : categoryEntries) {
    const auto show = [&run, kind = category.kind] { showCategories(run, kind); };
    (run.frmBrowse.*category.entry).Click = show;
    (run.frmBrowse.*category.label).Click = show;
  }
}

void wireFilters(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  form.lblFilters.Click = [&run] {
    if (!run.frmBrowse.mbBusy) lblFilters_Click(run);
  };
  form.chkMeal.Click = [&run] {
    if (!run.frmBrowse.mbBusy) chkMeal_Click(run);
  };
  for (const CategoryKind& kind : categoryKinds()) {
    if (kind.isLinked()) (form.*kind.browseList).Click = [&run, &kind] { markBrowseLabel(run, kind); };
  }
  for (const NumericFilter& filter : numericFilters) {
    Label& sign = form.*filter.sign;
    sign.Click = [&sign] { flipSign(sign); };
  }
}

}  // namespace

void wireFrmBrowse(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  form.Load = [&run] { frmBrowse_Load(run); };
  form.Activate = [&run] { frmBrowse_Activate(run); };
  form.Resize = [&run] { frmBrowse_Resize(run); };
  form.KeyPress = [&run](int key) { frmBrowse_KeyPress(run, key); };
  form.Unload = [&run] { frmBrowse_Unload(run); };
  wireList(run);
  wireCategories(run);
  wireFilters(run);
  for (const MenuCommand<FrmBrowse>& command : menuCommands) {
    (form.*command.entry).Click = [&run, routine = command.routine] {
      if (!run.frmBrowse.mbBusy) routine(run);
    };
  }
  // Exit alone works while the window is busy.
  form.mnuExit.Click = [&run] { run.loop.End(); };
  form.tbBrowse.ButtonClick = [&run](const std::string& key) { tbBrowse_ButtonClick(run, key); };
  disableUnwiredButtons<FrmBrowse>(form, form.tbBrowse, toolCommands);
}

}  // namespace pantrigo
