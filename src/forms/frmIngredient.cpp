#include "forms/frmIngredient.h"

namespace pantrigo {

FrmIngredient::FrmIngredient() : Form("frmIngredient", "Ingredient", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
