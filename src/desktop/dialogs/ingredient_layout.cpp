#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <span>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"
#include "desktop/dialogs/widgets.h"
#include "desktop/text_conversion.h"

namespace pantrigo {

namespace {

/// A column of the row: its box, and for how many digits it has room.
struct Column {
  std::string_view box;
  int digits;
};

constexpr Column columns[] = {{"txtQuantity", 8}, {"cmbUnit", 16}, {"txtDescription", 30}, {"txtPreparation", 22}};
constexpr int columnCount = 4;

constexpr std::string_view rowButtons[] = {"cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear"};
constexpr std::string_view dialogButtons[] = {"cmdCancel", "cmdHelp"};
constexpr std::span<const std::string_view> buttonGroups[] = {rowButtons, dialogButtons};

enum GridRow { headingRow, boxRow, convertRow, messageRow };

/// Each heading of the one caption stands above its box.
void addHeadings(const FormView& view, QWidget& frame, QGridLayout& grid) {
  const auto& caption = static_cast<const Label&>(*view.form().control("lblIngredient")).Caption();
  QFont bold = frame.font();
  bold.setWeight(QFont::DemiBold);
  int column = 0;
  for (const QString& heading : columnHeadings(caption)) {
    auto* label = new QLabel(heading, &frame);
    label->setFont(bold);
    grid.addWidget(label, headingRow, column++, Qt::AlignLeft | Qt::AlignBottom);
  }
}

/// Two lines, whatever the message is, so that nothing below ever moves.
void addMessage(QWidget& message, const QWidget& canvas, QGridLayout& grid) {
  constexpr int room = 2;
  message.setFixedHeight(2 * QFontMetrics(canvas.font()).lineSpacing() + room);
  message.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  grid.addWidget(&message, messageRow, 0, 1, columnCount);
}

void layOutRow(const FormView& view, const QWidget& canvas) {
  const Widgets widget(view);
  QWidget* frame = widget("fmeIngredient");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(dialogMargin, dialogGap, dialogMargin, dialogGap);
  grid->setHorizontalSpacing(dialogGap / 2);
  grid->setVerticalSpacing(dialogGap / 2);
  widget("lblIngredient")->hide();
  addHeadings(view, *frame, *grid);
  int place = 0;
  for (const Column& column : columns) {
    grid->addWidget(&boxOfWidth(widget, column.box, canvas, column.digits), boxRow, place++);
  }
  grid->addWidget(widget("chkConvertCupSpoon"), convertRow, 0, 1, columnCount, Qt::AlignLeft);
  addMessage(*widget("lblMessage"), canvas, *grid);
}

/// The arrows at the left, what is done with the row in the middle, and at the right what belongs to the dialog.
QHBoxLayout* layOutButtons(const Widgets& widget) {
  int widest = 0;
  for (const std::span<const std::string_view> names : buttonGroups) {
    for (const std::string_view name : names) widest = std::max(widest, widget(name)->sizeHint().width());
  }
  auto* row = new QHBoxLayout;
  row->setSpacing(dialogGap / 2);
  widget("cmdPrevious")->setToolTip(QStringLiteral("Previous ingredient"));
  widget("cmdNext")->setToolTip(QStringLiteral("Next ingredient"));
  row->addWidget(widget("cmdPrevious"));
  row->addWidget(widget("cmdNext"));
  for (const std::span<const std::string_view> names : buttonGroups) {
    row->addSpacing(dialogGap);
    row->addStretch();
    for (const std::string_view name : names) {
      widget(name)->setMinimumWidth(widest);
      row->addWidget(widget(name));
    }
  }
  return row;
}

}  // namespace

void layOutIngredient(const FormView& view, QWidget& canvas) {
  const Widgets widget(view);
  layOutRow(view, canvas);
  auto* column = new QVBoxLayout(&canvas);
  column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
  column->setSpacing(dialogGap);
  column->addWidget(widget("fmeIngredient"));
  column->addLayout(layOutButtons(widget));
}

}  // namespace pantrigo
