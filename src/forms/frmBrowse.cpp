#include "forms/frmBrowse.h"

namespace pantrigo {

std::vector<ToolButton> FrmBrowse::toolButtons() {
  return {
      {"", ""},
      {"", ""},
      {"", ""},
      {"Options", "Set system options"},
      {"Clear", "Clear filters"},
      {"Filter", "Filter recipes"},
      {"Stop", "Stop filter/list process", false, false},
      {"Add", "Add recipe"},
      {"Update", "Update recipe"},
      {"Delete", "Delete recipe"},
      {"Print", "Print recipe or shopping list"},
      {"First", "Go to first recipe"},
      {"Previous", "Go to previous recipe"},
      {"Next", "Go to next recipe"},
      {"Last", "Go to last recipe"},
      {"Settings", "Number of settings to cater for"},
      {"Meal", "Include recipe in meal"},
      {"Exit", "Exit Pantrigo"},
      {"Help", "Help"},
  };
}

std::vector<std::string> FrmBrowse::toolPictures() {
  return pictureNames(toolButtons());
}

FrmBrowse::FrmBrowse() : Form("frmBrowse", "Pantrigo", 9600, 6630) {
  setKeyPreview(true);
  sealDesign(&txtTitle);
}

}  // namespace pantrigo
