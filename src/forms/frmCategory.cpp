#include "forms/frmCategory.h"

namespace pantrigo {

FrmCategory::FrmCategory() : Form("frmCategory", "Category", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
