#include <QHBoxLayout>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"

namespace pantrigo {

void layOutView(const FormView& view, QWidget& canvas) {
  /// Room for most lines that an import writes: a title of any length, and what was wrong with it.
  constexpr int characters = 104;
  constexpr int rows = 18;
  const Widgets widget(view);
  const QFontMetrics metrics(canvas.font());
  QWidget& list = *widget("lstView");
  list.setMinimumSize(metrics.averageCharWidth() * characters, metrics.lineSpacing() * rows);
  auto* column = new QHBoxLayout(widget("fmeView"));
  column->addWidget(&list);
  stack(view, canvas, framed(view, "fmeView", canvas, *column), {"cmdPrint", "cmdCancel", "cmdHelp"});
}

}  // namespace pantrigo
