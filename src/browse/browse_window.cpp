#include "browse/browse_window.h"

#include "browse/filter_pages.h"
#include "core/layout.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// Width in twips of the screen for which the windows are laid out.
constexpr double designScreenWidth = 9600;

}  // namespace

void frmBrowse_Load(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  const auto scale = static_cast<float>(run.toolkit.screen().width / designScreenWidth);
  run.GLOBAL.gScale = scale;
  sizeToolBar(run, form.tbBrowse, form.ilBrowse, form.ilBrowse1);
  for (Control* control : form.controls()) {
    if (control->kind() != ControlKind::MenuEntry) control->scale(scale);
  }
  form.setCaption("Pantrigo");
  subSetFiltersContinued(run, false);
  placeForm(run, form, scale);
}

void frmBrowse_Activate(Run& run) {
  run.frmBrowse.setMousePointer(pointerDefault);
  run.frmBrowse.mbBusy = false;
}

void frmBrowse_Resize(Run& run) {
  if (run.frmBrowse.minimised()) run.windows.Hide(run.frmDetail);
}

void frmBrowse_KeyPress(Run& run, int key) {
  if (key == keyEscape) run.loop.End();
}

void frmBrowse_Unload(Run& run) {
  run.loop.End();
}

}  // namespace pantrigo
