#pragma once

#include <array>
#include <string_view>

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The main window: the filters at the left, on two pages that share one space, and the list of titles beside them.
/// Places and sizes are twips at the design width of 9600.
struct FrmBrowse : Form {
  FrmBrowse();

  ToolBar tbBrowse{*this, "tbBrowse", {0, 0, 9600, 640}, toolButtons()};
  ImageList ilBrowse{*this, "ilBrowse", smallPicture, toolPictures()};
  ImageList ilBrowse1{*this, "ilBrowse1", largePicture, toolPictures()};
  CommonDialog CMDialog1{*this, "CMDialog1"};

  Frame fmeFilters{*this, "fmeFilters", "", {60, 640, 4080, 5955}};
  Label lblFilters{fmeFilters, "lblFilters", "Filters", {120, 0, 750, 225}};

  // The first page.
  Label lblTitle{fmeFilters, "lblTitle", "Title containing:", {120, 300, 3840, 225}};
  TextBox txtTitle{fmeFilters, "txtTitle", {120, 525, 3840, 315}};
  Label lblIngredient{fmeFilters, "lblIngredient", "Ingredients containing:", {120, 900, 3840, 225}};
  TextBox txtIngredient{fmeFilters, "txtIngredient", {120, 1125, 3840, 315}};
  Label lblNationality{fmeFilters, "lblNationality", "Nationality/Origin", {120, 1500, 1860, 225}};
  ComboBox cmbNationality{fmeFilters, "cmbNationality", {120, 1725, 1860, 315}, 30};
  Label lblCourse{fmeFilters, "lblCourse", "Course", {2100, 1500, 1860, 225}};
  ComboBox cmbCourse{fmeFilters, "cmbCourse", {2100, 1725, 1860, 315}, 30};
  Label lblCooking{fmeFilters, "lblCooking", "Cooking involved", {120, 2100, 1860, 225}};
  ComboBox cmbCooking{fmeFilters, "cmbCooking", {120, 2325, 1860, 315}, 30};
  Label lblEase{fmeFilters, "lblEase", "Ease", {2100, 2100, 1860, 225}};
  ComboBox cmbEase{fmeFilters, "cmbEase", {2100, 2325, 1860, 315}, 30};
  Label lblHealth{fmeFilters, "lblHealth", "Health", {120, 2715, 3840, 225}};
  ListBox lstHealth{fmeFilters, "lstHealth", {120, 2940, 3840, 1380}, Selection::Multiple};
  Label lblOther{fmeFilters, "lblOther", "Other Categories", {120, 4395, 3840, 225}};
  ListBox lstOther{fmeFilters, "lstOther", {120, 4635, 3840, 810}, Selection::Multiple};
  CheckBox chkMeal{fmeFilters, "chkMeal", "Only show recipes included in meal", {120, 5535, 3840, 330}};

  // The continued page.
  Label lblSource{fmeFilters, "lblSource", "Source containing:", {120, 300, 3840, 225}};
  TextBox txtSource{fmeFilters, "txtSource", {120, 525, 3840, 315}, 50};
  Label lblTimeTo{fmeFilters, "lblTimeTo", "Time (in minutes) to", {120, 930, 3840, 225}};
  Label lblPrepareTime{fmeFilters, "lblPrepareTime", "Prepare:", captionBox(1170)};
  Label lblPrepareSign{fmeFilters, "lblPrepareSign", "<=", signBox(1170)};
  TextBox txtPrepareTime{fmeFilters, "txtPrepareTime", numberBox(1170), 5};
  Label lblCookTime{fmeFilters, "lblCookTime", "Cook:", captionBox(1500)};
  Label lblCookSign{fmeFilters, "lblCookSign", "<=", signBox(1500)};
  TextBox txtCookTime{fmeFilters, "txtCookTime", numberBox(1500), 5};
  Label lblNutrition{fmeFilters, "lblNutrition", "Nutrition", {120, 1875, 3840, 225}};
  Label lblEnergy{fmeFilters, "lblEnergy", "Energy:", captionBox(2115)};
  Label lblEnergySign{fmeFilters, "lblEnergySign", "<=", signBox(2115)};
  TextBox txtEnergy{fmeFilters, "txtEnergy", numberBox(2115), 5};
  Label lblProtein{fmeFilters, "lblProtein", "Protein (g):", captionBox(2440)};
  Label lblProteinSign{fmeFilters, "lblProteinSign", "<=", signBox(2440)};
  TextBox txtProtein{fmeFilters, "txtProtein", numberBox(2440), 5};
  Label lblCarbohydrates{fmeFilters, "lblCarbohydrates", "Carbohydrates (g):", captionBox(2765)};
  Label lblCarbohydratesSign{fmeFilters, "lblCarbohydratesSign", "<=", signBox(2765)};
  TextBox txtCarbohydrates{fmeFilters, "txtCarbohydrates", numberBox(2765), 5};
  Label lblFibre{fmeFilters, "lblFibre", "Fibre (g):", captionBox(3090)};
  Label lblFibreSign{fmeFilters, "lblFibreSign", "<=", signBox(3090)};
  TextBox txtFibre{fmeFilters, "txtFibre", numberBox(3090), 5};
  Label lblFat{fmeFilters, "lblFat", "Fat (g):", captionBox(3415)};
  Label lblFatSign{fmeFilters, "lblFatSign", "<=", signBox(3415)};
  TextBox txtFat{fmeFilters, "txtFat", numberBox(3415), 5};
  Label lblCholesterol{fmeFilters, "lblCholesterol", "Cholesterol (mg):", captionBox(3740)};
  Label lblCholesterolSign{fmeFilters, "lblCholesterolSign", "<=", signBox(3740)};
  TextBox txtCholesterol{fmeFilters, "txtCholesterol", numberBox(3740), 5};
  Label lblSodium{fmeFilters, "lblSodium", "Sodium(mg):", captionBox(4065)};
  Label lblSodiumSign{fmeFilters, "lblSodiumSign", "<=", signBox(4065)};
  TextBox txtSodium{fmeFilters, "txtSodium", numberBox(4065), 5};
  Label lblCalcium{fmeFilters, "lblCalcium", "Calcium (mg):", captionBox(4390)};
  Label lblCalciumSign{fmeFilters, "lblCalciumSign", "<=", signBox(4390)};
  TextBox txtCalcium{fmeFilters, "txtCalcium", numberBox(4390), 5};
  Label lblIron{fmeFilters, "lblIron", "Iron (mg):", captionBox(4715)};
  Label lblIronSign{fmeFilters, "lblIronSign", "<=", signBox(4715)};
  TextBox txtIron{fmeFilters, "txtIron", numberBox(4715), 5};
  Label lblComments{fmeFilters, "lblComments", "Comments containing:", {120, 5100, 1860, 225}};
  TextBox txtComments{fmeFilters, "txtComments", {120, 5325, 1860, 315}, 50};
  Label lblMethod{fmeFilters, "lblMethod", "Method containing:", {2100, 5100, 1860, 225}};
  TextBox txtMethod{fmeFilters, "txtMethod", {2100, 5325, 1860, 315}, 50};

  Frame fmeList{*this, "fmeList", "", {4200, 640, 5340, 5955}};
  ListBox lstTitles{fmeList, "lstTitles", {120, 300, 5100, 5550}};

  MenuEntry mnuFile{*this, "mnuFile", "&File"};
  MenuEntry mnuOptions{mnuFile, "mnuOptions", "&Options"};
  MenuEntry mnuSep1{mnuFile, "mnuSep1", "-"};
  MenuEntry mnuPrintSetup{mnuFile, "mnuPrintSetup", "Printer &Setup"};
  MenuEntry mnuPrint{mnuFile, "mnuPrint", "&Print"};
  MenuEntry mnuSep4{mnuFile, "mnuSep4", "-"};
  MenuEntry mnuImport{mnuFile, "mnuImport", "&Import"};
  MenuEntry mnuMasterCook{mnuImport, "mnuMasterCook", "Master&Cook (TM) Format"};
  MenuEntry mnuMealMaster{mnuImport, "mnuMealMaster", "&Meal Master (TM) Format"};
  MenuEntry mnuPantrigo{mnuImport, "mnuPantrigo", "&Pantrigo Format"};
  MenuEntry mnuViewImportLog{mnuImport, "mnuViewImportLog", "&View / Print Import Log"};
  MenuEntry mnuListLastImported{mnuImport, "mnuListLastImported", "&List Last Imported Recipes"};
  MenuEntry mnuSep2{mnuFile, "mnuSep2", "-"};
  MenuEntry mnuExit{mnuFile, "mnuExit", "E&xit               Esc"};

  MenuEntry mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuEntry mnuClear{mnuEdit, "mnuClear", "&Clear"};
  MenuEntry mnuFilter{mnuEdit, "mnuFilter", "&Filter"};
  MenuEntry mnuSep3{mnuEdit, "mnuSep3", "-"};
  MenuEntry mnuAdd{mnuEdit, "mnuAdd", "&Add"};
  MenuEntry mnuUpdate{mnuEdit, "mnuUpdate", "&Update"};
  MenuEntry mnuDelete{mnuEdit, "mnuDelete", "&Delete"};

  MenuEntry mnuNavigate{*this, "mnuNavigate", "&Navigate"};
  MenuEntry mnuFirst{mnuNavigate, "mnuFirst", "&First"};
  MenuEntry mnuPrevious{mnuNavigate, "mnuPrevious", "&Previous"};
  MenuEntry mnuNext{mnuNavigate, "mnuNext", "&Next"};
  MenuEntry mnuLast{mnuNavigate, "mnuLast", "&Last"};

  MenuEntry mnuSettings{*this, "mnuSettings", "&Settings"};

  MenuEntry mnuCategories{*this, "mnuCategories", "&Categories"};
  MenuEntry mnuCategoriesNationality{mnuCategories, "mnuCategoriesNationality", "&Nationality"};
  MenuEntry mnuCategoriesCourse{mnuCategories, "mnuCategoriesCourse", "&Course"};
  MenuEntry mnuCategoriesCooking{mnuCategories, "mnuCategoriesCooking", "Coo&king"};
  MenuEntry mnuCategoriesEase{mnuCategories, "mnuCategoriesEase", "&Ease"};
  MenuEntry mnuCategoriesHealth{mnuCategories, "mnuCategoriesHealth", "&Health"};
  MenuEntry mnuCategoriesOther{mnuCategories, "mnuCategoriesOther", "&Other"};

  MenuEntry mnuMeal{*this, "mnuMeal", "&Meal"};

  MenuEntry mnuList{*this, "mnuList", "&List"};
  MenuEntry mnuListAdd{mnuList, "mnuListAdd", "&Add / Update"};
  MenuEntry mnuListNationality{mnuListAdd, "mnuListNationality", "&Nationality"};
  MenuEntry mnuListCourse{mnuListAdd, "mnuListCourse", "&Course"};
  MenuEntry mnuListCooking{mnuListAdd, "mnuListCooking", "Coo&king"};
  MenuEntry mnuListEase{mnuListAdd, "mnuListEase", "&Ease"};
  MenuEntry mnuListHealth{mnuListAdd, "mnuListHealth", "&Health"};
  MenuEntry mnuListOther{mnuListAdd, "mnuListOther", "&Other"};
  MenuEntry mnuListDelete{mnuList, "mnuListDelete", "&Delete"};
  MenuEntry mnuListDeleteHealth{mnuListDelete, "mnuListDeleteHealth", "&Health"};
  MenuEntry mnuListDeleteOther{mnuListDelete, "mnuListDeleteOther", "&Other"};
  MenuEntry mnuListDeleteRecipes{mnuListDelete, "mnuListDeleteRecipes", "&Recipes"};
  MenuEntry mnuListExport{mnuList, "mnuListExport", "&Export"};
  MenuEntry mnuListMeal{mnuList, "mnuListMeal", "&Include/Exclude From Meal"};
  MenuEntry mnuListListLastImported{mnuList, "mnuListListLastImported", "&Last Imported Recipes"};
  MenuEntry mnuListPrint{mnuList, "mnuListPrint", "&Print"};
  MenuEntry mnuListPrintAll{mnuListPrint, "mnuListPrintAll", "&All Recipe Details"};
  MenuEntry mnuListPrintIngredientsMethod{mnuListPrint, "mnuListPrintIngredientsMethod", "&Ingredients/Method Only"};
  MenuEntry mnuListRemove{mnuList, "mnuListRemove", "&Remove Recipe From List"};

  MenuEntry mnuHelp{*this, "mnuHelp", "&Help"};
  MenuEntry mnuContents{mnuHelp, "mnuContents", "&Contents"};
  MenuEntry mnuSearch{mnuHelp, "mnuSearch", "&Search"};
  MenuEntry mnuAbout{mnuHelp, "mnuAbout", "&About"};

  // Working state of the window between its routines.
  /// Set by the Stop button; a running loop reads it and ends.
  bool mbStop = false;
  /// True while long work runs: it shuts out every command but Stop and exit.
  bool mbBusy = false;

 private:
  static std::vector<ToolButton> toolButtons();
  static std::vector<std::string> toolPictures();
  static constexpr Box captionBox(double top) { return {240, top + 30, 2160, 255}; }
  static constexpr Box signBox(double top) { return {2430, top + 30, 420, 255}; }
  static constexpr Box numberBox(double top) { return {2880, top, 1080, 300}; }
};

/// A filter on a number: one row of the continued page. It limits one field of a recipe.
struct NumericFilter {
  /// The field of `Recipe`.
  std::string_view field;
  /// A time in minutes; the others are nutrients.
  bool isTime;
  Label FrmBrowse::*caption;
  Label FrmBrowse::*sign;
  TextBox FrmBrowse::*box;
};

/// What a sign says: the limit is the most, or the least.
inline constexpr std::string_view atMost = "<=";
inline constexpr std::string_view atLeast = ">=";

/// The numeric filters from the top of the page: the order in which they are checked, cleared and asked for.
inline constexpr std::array<NumericFilter, 11> numericFilters{{
    {"PrepareTime", true, &FrmBrowse::lblPrepareTime, &FrmBrowse::lblPrepareSign, &FrmBrowse::txtPrepareTime},
    {"CookTime", true, &FrmBrowse::lblCookTime, &FrmBrowse::lblCookSign, &FrmBrowse::txtCookTime},
    {"Energy", false, &FrmBrowse::lblEnergy, &FrmBrowse::lblEnergySign, &FrmBrowse::txtEnergy},
    {"Protein", false, &FrmBrowse::lblProtein, &FrmBrowse::lblProteinSign, &FrmBrowse::txtProtein},
    {"Carbohydrates", false, &FrmBrowse::lblCarbohydrates, &FrmBrowse::lblCarbohydratesSign,
     &FrmBrowse::txtCarbohydrates},
    {"Fibre", false, &FrmBrowse::lblFibre, &FrmBrowse::lblFibreSign, &FrmBrowse::txtFibre},
    {"Fat", false, &FrmBrowse::lblFat, &FrmBrowse::lblFatSign, &FrmBrowse::txtFat},
    {"Cholesterol", false, &FrmBrowse::lblCholesterol, &FrmBrowse::lblCholesterolSign, &FrmBrowse::txtCholesterol},
    {"Sodium", false, &FrmBrowse::lblSodium, &FrmBrowse::lblSodiumSign, &FrmBrowse::txtSodium},
    {"Calcium", false, &FrmBrowse::lblCalcium, &FrmBrowse::lblCalciumSign, &FrmBrowse::txtCalcium},
    {"Iron", false, &FrmBrowse::lblIron, &FrmBrowse::lblIronSign, &FrmBrowse::txtIron},
}};

}  // namespace pantrigo
