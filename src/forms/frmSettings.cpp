#include "forms/frmSettings.h"

namespace pantrigo {

FrmSettings::FrmSettings() : Form("frmSettings", "Settings", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
