#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/widgets.h"
#include "desktop/text_conversion.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

void addHeadings(const FormView& view, QWidget& frame, QGridLayout& grid) {
  int column = 0;
  const auto& caption = static_cast<const Label&>(*view.form().control("Label37")).Caption();
  for (const QString& heading : columnHeadings(caption)) {
    auto* label = new QLabel(heading, &frame);
    QFont bold = frame.font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    label->setAlignment(Qt::AlignCenter);
    grid.addWidget(label, 0, column);
    grid.setColumnMinimumWidth(column++,
                               QFontMetrics(bold).horizontalAdvance(QStringLiteral("Fahrenheit")) + dialogGap);
  }
}

}  // namespace

void layOutOven(const FormView& view, QWidget& canvas) {
  constexpr int columns = 3;
  constexpr int cells = 36;
  const Widgets widget(view);
  QWidget* frame = widget("fmeOven");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(dialogMargin, dialogGap, dialogMargin, dialogGap);
  grid->setHorizontalSpacing(dialogGap);
  grid->setVerticalSpacing(dialogGap / 3);
  widget("Label37")->hide();
  addHeadings(view, *frame, *grid);
  for (int cell = 0; cell < cells; ++cell) {
    QWidget* label = widget("Label" + plainText(static_cast<long>(cell + 1)));
    static_cast<QLabel*>(label)->setAlignment(Qt::AlignCenter);
    label->setFixedHeight(QFontMetrics(canvas.font()).height() + 3);
    grid->addWidget(label, 1 + cell / columns, cell % columns);
  }
  auto* column = new QVBoxLayout(&canvas);
  column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
  column->setSpacing(dialogGap);
  column->addWidget(frame);
  column->addWidget(widget("cmdCancel"), 0, Qt::AlignRight);
}

}  // namespace pantrigo
