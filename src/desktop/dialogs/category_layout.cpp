#include <QFontMetrics>
#include <QHBoxLayout>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"
#include "platform/controls/controls.h"

namespace pantrigo {

void layOutCategory(const FormView& view, QWidget& canvas) {
  const Widgets widget(view);
  QWidget* box = widget("txtCategory");
  const auto& control = static_cast<const TextBox&>(*view.form().control("txtCategory"));
  const QString widest(static_cast<qsizetype>(control.MaxLength()), QLatin1Char('W'));
  box->setMinimumWidth(QFontMetrics(canvas.font()).horizontalAdvance(widest) + dialogGap);
  auto* row = new QHBoxLayout(widget("fmeCategory"));
  row->addWidget(box);
  stack(view, canvas, framed(view, "fmeCategory", canvas, *row),
        {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear", "cmdCancel", "cmdHelp"});
}

}  // namespace pantrigo
