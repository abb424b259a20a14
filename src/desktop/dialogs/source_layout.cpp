#include <QHBoxLayout>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"

namespace pantrigo {

void layOutSource(const FormView& view, QWidget& canvas) {
  /// Fifty letters of a text are about as wide as so many digits.
  constexpr int digits = 46;
  const Widgets widget(view);
  auto* row = new QHBoxLayout(widget("fmeSource"));
  row->addWidget(&boxOfWidth(widget, "txtSource", canvas, digits));
  stack(view, canvas, framed(view, "fmeSource", canvas, *row), {"cmdOK", "cmdCancel", "cmdHelp"});
}

}  // namespace pantrigo
