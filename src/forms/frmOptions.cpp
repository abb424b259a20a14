#include "forms/frmOptions.h"

namespace pantrigo {

FrmOptions::FrmOptions() : Form("frmOptions", "System Options", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
