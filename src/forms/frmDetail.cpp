#include "forms/frmDetail.h"

namespace pantrigo {

std::vector<ToolButton> FrmDetail::toolButtons() {
  return {
      {"", ""},
      {"", ""},
      {"", ""},
      {"Clear", "Clear recipe details"},
      {"Find", "Find recipe"},
      {"Add", "Add recipe"},
      {"Update", "Update recipe"},
      {"Delete", "Delete recipe"},
      {"Print", "Print recipe or shopping list"},
      {"First", "Go to first recipe"},
      {"Previous", "Go to previous recipe"},
      {"Next", "Go to next recipe"},
      {"Last", "Go to last recipe"},
      {"Settings", "Number of settings to cater for"},
      {"Nutrition", "Show nutrition details"},
      {"Meal", "Include recipe in meal"},
      {"Oven", "Oven conversion chart"},
      {"Exit", "Exit Recipe Detail"},
      {"Help", "Help"},
  };
}

std::vector<std::string> FrmDetail::toolPictures() {
  return pictureNames(toolButtons());
}

FrmDetail::FrmDetail() : Form("frmDetail", "Recipe Detail", 9600, 6630) {
  setKeyPreview(true);
  for (Label* clickable : {&lblNationality, &lblCourse, &lblCooking, &lblEase, &lblHealth, &lblOther, &lblPicture,
                           &lblServes, &lblSettings}) {
    clickable->setMousePointer(pointerCustom);
  }
  sealDesign(&txtTitle);
}

}  // namespace pantrigo
