#include "forms/frmSource.h"

namespace pantrigo {

FrmSource::FrmSource() : Form("frmSource", "Source", 5940, 1515) {
  setKeyPreview(true);
  // Enter cancels too: a source can never be altered again, so only OK itself takes it.
  setDefaultButton(cmdCancel);
  setCancelButton(cmdCancel);
  sealDesign(&txtSource);
}

}  // namespace pantrigo
