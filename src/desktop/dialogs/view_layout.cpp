#include <QHBoxLayout>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"

namespace pantrigo {

void layOutView(const FormView& view, QWidget& canvas) {
  /// Room for the longest lines that an import writes, a title and a category behind what was wrong.
  constexpr int characters = 84;
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
