#include "forms/frmNutrition.h"

namespace pantrigo {

FrmNutrition::FrmNutrition() : Form("frmNutrition", "Nutrition", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
