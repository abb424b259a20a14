#include "forms/frmNutrition.h"

namespace pantrigo {

FrmNutrition::FrmNutrition() : Form("frmNutrition", "Nutrition", 5940, 3195) {
  setKeyPreview(true);
  setDefaultButton(cmdOK);
  setCancelButton(cmdCancel);
  sealDesign(&txtEnergy);
}

}  // namespace pantrigo
