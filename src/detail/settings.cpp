#include "detail/settings.h"

#include "core/dialogs.h"
#include "core/layout.h"
#include "core/messages.h"
#include "detail/ingredient_list.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// Unlike the load of a recipe this looks at the option alone: without a number the brackets are empty.
void refreshSettingsLabel(Run& run) {
  const Recordset& system = run.GLOBAL.gSystem;
  const bool shown = system.Field("SettingsIngredients").truth();
  run.frmDetail.lblSettings.setCaption(shown ? "(" + system.Field("Settings").text() + ")" : "");
  run.frmDetail.lblSettings.setVisible(shown);
}

/// Reports what is wrong with the entry; gives whether it can be stored. The order of texts stands for that of numbers:
/// it refuses the empty box, signs and a leading 0 as well.
bool checkSettings(Run& run, const std::string& entry) {
  if (!entry.empty() && !IsNumeric(entry)) {
    subNotNumeric(run);
    return false;
  }
  if (entry < "1") {
    run.loop.MsgBox("Settings must be greater than 0.", boxStop, captionError);
    return false;
  }
  return true;
}

}  // namespace

void subEditSettings(Run& run) {
  run.windows.ShowModal(run.frmSettings);
  refreshSettingsLabel(run);
  if (!run.frmDetail.txtTitle.Text().empty()) rebuildLines(run);
}

void frmSettings_Load(Run& run) {
  centreForm(run, run.frmSettings);
  run.frmSettings.txtSettings.setText(run.GLOBAL.gSystem.Field("Settings").text());
}

void storeSettings(Run& run) {
  TextBox& box = run.frmSettings.txtSettings;
  if (!checkSettings(run, box.Text())) {
    run.windows.SetFocus(box);
    return;
  }
  Recordset& system = run.GLOBAL.gSystem;
  system.Edit();
  system.Set("Settings", box.Text());
  system.Update();
  leaveKeepingDetail(run, run.frmSettings);
}

void cancelSettings(Run& run) {
  leaveKeepingDetail(run, run.frmSettings);
}

}  // namespace pantrigo
