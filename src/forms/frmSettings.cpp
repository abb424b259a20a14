#include "forms/frmSettings.h"

namespace pantrigo {

FrmSettings::FrmSettings() : Form("frmSettings", "Settings", 5940, 1515) {
  setKeyPreview(true);
  setDefaultButton(cmdOK);
  setCancelButton(cmdCancel);
  sealDesign(&txtSettings);
}

}  // namespace pantrigo
