#include "forms/frmCategory.h"

namespace pantrigo {

FrmCategory::FrmCategory() : Form("frmCategory", "Categories", 8130, 1515) {
  // No button is the default one: Enter could mean any of three. Esc comes by the form's own event.
  setKeyPreview(true);
  sealDesign(&txtCategory);
}

}  // namespace pantrigo
