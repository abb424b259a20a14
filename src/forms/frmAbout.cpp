#include "forms/frmAbout.h"

namespace pantrigo {

FrmAbout::FrmAbout() : Form("frmAbout", "About", 4680, 2100) {
  setKeyPreview(true);
  setDefaultButton(cmdOK);
  setCancelButton(cmdOK);
  sealDesign(&cmdOK);
}

}  // namespace pantrigo
