#include <QHBoxLayout>
#include <QLabel>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"

namespace pantrigo {

void layOutSettings(const FormView& view, QWidget& canvas) {
  /// A stored number may be longer than what the box takes.
  constexpr int characters = 6;
  const Widgets widget(view);
  auto* row = new QHBoxLayout(widget("fmeServings"));
  row->setSpacing(dialogGap);
  row->addWidget(&oneLine(widget, "lblSettings", canvas));
  row->addWidget(&boxOfWidth(widget, "txtSettings", canvas, characters));
  row->addStretch();
  stack(view, canvas, framed(view, "fmeServings", canvas, *row), {"cmdOK", "cmdCancel", "cmdClear", "cmdHelp"});
}

}  // namespace pantrigo
