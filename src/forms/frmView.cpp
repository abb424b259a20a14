#include "forms/frmView.h"

namespace pantrigo {

FrmView::FrmView() : Form("frmView", "View / Print Import Log", 8400, 5415) {
  setCancelButton(cmdCancel);
  sealDesign(&lstView);
}

}  // namespace pantrigo
