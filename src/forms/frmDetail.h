#pragma once

#include "platform/controls/controls.h"
#include "platform/controls/form.h"

namespace pantrigo {

/// The window of one recipe, a working copy that is typed over. Places and sizes are twips at the design width of 9600;
/// those of the General, Comments and picture groups are set by the two layouts.
struct FrmDetail : Form {
  FrmDetail();

  ToolBar tbDetail{*this, "tbDetail", {0, 0, 9600, 640}, toolButtons()};
  ImageList ilDetail{*this, "ilDetail", smallPicture, toolPictures()};
  ImageList ilDetail1{*this, "ilDetail1", largePicture, toolPictures()};
  CommonDialog CMDialog1{*this, "CMDialog1"};

  Frame fmeTitle{*this, "fmeTitle", "", {0, 640, 9555, 560}};
  TextBox txtTitle{fmeTitle, "txtTitle", {90, 225, 9375, 285}, 80};

  Frame fmeCategories{*this, "fmeCategories", "Categories", {0, 1200, 6735, 2415}};
  Label lblNationality{fmeCategories, "lblNationality", "Nationality/Origin", {90, 225, 2130, 210}};
  ComboBox cmbNationality{fmeCategories, "cmbNationality", {90, 435, 2130, 300}, 30};
  Label lblCourse{fmeCategories, "lblCourse", "Course", {90, 765, 2130, 210}};
  ComboBox cmbCourse{fmeCategories, "cmbCourse", {90, 975, 2130, 300}, 30};
  Label lblCooking{fmeCategories, "lblCooking", "Cooking involved", {90, 1305, 2130, 210}};
  ComboBox cmbCooking{fmeCategories, "cmbCooking", {90, 1515, 2130, 300}, 30};
  Label lblEase{fmeCategories, "lblEase", "Ease", {90, 1845, 2130, 210}};
  ComboBox cmbEase{fmeCategories, "cmbEase", {90, 2055, 2130, 300}, 30};
  Label lblHealth{fmeCategories, "lblHealth", "Health", {2310, 225, 2130, 210}};
  ListBox lstHealth{fmeCategories, "lstHealth", {2310, 435, 2130, 1920}, Selection::Multiple};
  Label lblOther{fmeCategories, "lblOther", "Other Categories", {4530, 225, 2130, 210}};
  ListBox lstOther{fmeCategories, "lstOther", {4530, 435, 2115, 1920}, Selection::Multiple};

  Frame fmePicture{*this, "fmePicture", "", {6750, 1200, 2805, 3270}};
  Image imgPhoto{fmePicture, "imgPhoto", {45, 225, 2715, 2970}};
  Label lblPicture{fmePicture, "lblPicture", "", {135, 335, 2490, 1005}};

  Frame fmeGeneral{*this, "fmeGeneral", "General", {0, 3630, 2400, 840}};
  Label lblTime{fmeGeneral, "lblTime", "Minutes to:", {1280, 105, 790, 225}};
  Label lblServes{fmeGeneral, "lblServes", "Serves", {80, 285, 675, 225}};
  Label lblPrepare{fmeGeneral, "lblPrepare", "Prepare", {1035, 285, 720, 225}};
  Label lblCook{fmeGeneral, "lblCook", "Cook", {1800, 285, 510, 225}};
  TextBox txtServes{fmeGeneral, "txtServes", {80, 495, 390, 285}, 3, Lines::One, Alignment::Right};
  Label lblSettings{fmeGeneral, "lblSettings", "", {500, 540, 480, 225}};
  TextBox txtPrepareTime{fmeGeneral, "txtPrepareTime", {1010, 495, 620, 285}, 5};
  TextBox txtCookTime{fmeGeneral, "txtCookTime", {1730, 495, 620, 285}, 5};

  Frame fmeComments{*this, "fmeComments", "Comments", {2430, 3630, 4305, 840}};
  TextBox txtComments{fmeComments, "txtComments", {90, 225, 4125, 540}, 0, Lines::Many};

  Frame fmeIngredients{*this, "fmeIngredients", "Ingredients", {0, 4485, 4770, 2130}};
  Label lblMeasurement{fmeIngredients, "lblMeasurement", "(metric)", {1200, 0, 1500, 225}};
  ListBox lstIngredient{fmeIngredients, "lstIngredient", {90, 255, 4590, 1785}};

  Frame fmeMethod{*this, "fmeMethod", "Method", {4800, 4485, 4755, 2130}};
  TextBox txtMethod{fmeMethod, "txtMethod", {90, 255, 4575, 1785}, 0, Lines::Many};

  MenuEntry mnuFile{*this, "mnuFile", "&File"};
  MenuEntry mnuPrinterSetup{mnuFile, "mnuPrinterSetup", "Printer &Setup"};
  MenuEntry mnuPrint{mnuFile, "mnuPrint", "&Print"};
  MenuEntry mnuSep1{mnuFile, "mnuSep1", "-"};
  MenuEntry mnuExit{mnuFile, "mnuExit", "E&xit               Esc"};

  MenuEntry mnuEdit{*this, "mnuEdit", "&Edit"};
  MenuEntry mnuClear{mnuEdit, "mnuClear", "&Clear"};
  MenuEntry mnuFind{mnuEdit, "mnuFind", "&Find"};
  MenuEntry mnuSep2{mnuEdit, "mnuSep2", "-"};
  MenuEntry mnuAdd{mnuEdit, "mnuAdd", "&Add"};
  MenuEntry mnuUpdate{mnuEdit, "mnuUpdate", "&Update"};
  MenuEntry mnuDelete{mnuEdit, "mnuDelete", "&Delete"};

  MenuEntry mnuNavigate{*this, "mnuNavigate", "&Navigate"};
  MenuEntry mnuFirst{mnuNavigate, "mnuFirst", "&First"};
  MenuEntry mnuPrevious{mnuNavigate, "mnuPrevious", "&Previous"};
  MenuEntry mnuNext{mnuNavigate, "mnuNext", "&Next"};
  MenuEntry mnuLast{mnuNavigate, "mnuLast", "&Last"};

  MenuEntry mnuSettings{*this, "mnuSettings", "&Settings"};
  MenuEntry mnuNutrition{*this, "mnuNutrition", "Nu&trition"};

  MenuEntry mnuCategories{*this, "mnuCategories", "Cate&gories"};
  MenuEntry mnuCategoriesNationality{mnuCategories, "mnuCategoriesNationality", "&Nationality"};
  MenuEntry mnuCategoriesCoarse{mnuCategories, "mnuCategoriesCoarse", "&Course"};
  MenuEntry mnuCategoriesCooking{mnuCategories, "mnuCategoriesCooking", "Coo&king"};
  MenuEntry mnuCategoriesEase{mnuCategories, "mnuCategoriesEase", "&Ease"};
  MenuEntry mnuCategoriesHealth{mnuCategories, "mnuCategoriesHealth", "&Health"};
  MenuEntry mnuCategoriesOther{mnuCategories, "mnuCategoriesOther", "&Other"};

  MenuEntry mnuMeal{*this, "mnuMeal", "&Meal"};
  MenuEntry mnuOven{*this, "mnuOven", "&Oven"};
  MenuEntry mnuSource{*this, "mnuSource", "Sour&ce"};
  MenuEntry mnuImages{*this, "mnuImages", "&Images"};

  MenuEntry mnuHelp{*this, "mnuHelp", "&Help"};
  MenuEntry mnuContents{mnuHelp, "mnuContents", "&Contents"};
  MenuEntry mnuSearch{mnuHelp, "mnuSearch", "&Search"};
  MenuEntry mnuAbout{mnuHelp, "mnuAbout", "&About"};

 private:
  static std::vector<ToolButton> toolButtons();
  static std::vector<std::string> toolPictures();
};

}  // namespace pantrigo
