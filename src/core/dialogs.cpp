#include "core/dialogs.h"

namespace pantrigo {

void leaveKeepingDetail(Run& run, Form& dialog) {
  // The detail window is activated by the unloading, so the flag stands first.
  run.GLOBAL.gKeepDetailOnActivate = true;
  run.windows.Unload(dialog);
}

}  // namespace pantrigo
