#include "forms/frmView.h"

namespace pantrigo {

FrmView::FrmView() : Form("frmView", "View", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
