#include "forms/frmIngredient.h"

namespace pantrigo {

FrmIngredient::FrmIngredient() : Form("frmIngredient", "Ingredient", 9300, 2415) {
  setKeyPreview(true);
  setDefaultButton(cmdAdd);
  setCancelButton(cmdCancel);
  sealDesign(&txtQuantity);
}

}  // namespace pantrigo
