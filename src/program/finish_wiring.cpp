#include "program/wiring.h"

namespace pantrigo {

void finishWiring(Form& form) {
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::MenuEntry) {
      auto& entry = static_cast<MenuEntry&>(*control);
      if (!entry.isSeparator() && !entry.isMenu() && !entry.Click.isWired()) entry.setEnabled(false);
    }
    control->sealDesign();
  }
}

}  // namespace pantrigo
