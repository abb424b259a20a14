#include "forms/frmSource.h"

namespace pantrigo {

FrmSource::FrmSource() : Form("frmSource", "Source", 6000, 3000) {
  sealDesign();
}

}  // namespace pantrigo
