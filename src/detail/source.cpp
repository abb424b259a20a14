#include "detail/source.h"

#include "core/dialogs.h"
#include "core/layout.h"
#include "core/messages.h"
#include "detail/change_tracking.h"
#include "platform/text/letters.h"

namespace pantrigo {

void subSource(Run& run) {
  if (funNoTitle(run)) return;
  FrmDetail& detail = run.frmDetail;
  if (!detail.mnuSource.Enabled()) {
    run.loop.MsgBox("Recipe source cannot be altered.", boxStop, captionError);
    return;
  }
  run.windows.ShowModal(run.frmSource);
  Global& global = run.GLOBAL;
  if (global.gSourceEntered.empty()) return;
  global.gDetailChanged = true;
  global.gSource = global.gSourceEntered;
  detail.fmeTitle.setCaption("Source: " + global.gSource);
}

void frmSource_Load(Run& run) {
  centreForm(run, run.frmSource);
  run.GLOBAL.gSourceEntered.clear();
  run.frmSource.txtSource.setText("");
}

void takeSource(Run& run) {
  run.GLOBAL.gSourceEntered = Trim(run.frmSource.txtSource.Text());
  leaveKeepingDetail(run, run.frmSource);
}

void cancelSource(Run& run) {
  leaveKeepingDetail(run, run.frmSource);
}

}  // namespace pantrigo
