#include "forms/frmOptions.h"

namespace pantrigo {

FrmOptions::FrmOptions() : Form("frmOptions", "Options", 8670, 5490) {
  setKeyPreview(true);
  setDefaultButton(cmdOK);
  setCancelButton(cmdCancel);
  sealDesign(&chkShowRecipes);
}

}  // namespace pantrigo
