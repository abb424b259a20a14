#include "desktop/dialogs/dialog_parts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/text_conversion.h"
#include "platform/controls/controls.h"

namespace pantrigo {

namespace {

/// Room around a line of text, and at the ends of a box, in logical pixels.
constexpr int lineRoom = 3;
constexpr int boxRoom = 14;

}  // namespace

QLabel& oneLine(const Widgets& widget, std::string_view name, const QWidget& canvas, const QString& widest) {
  auto& label = static_cast<QLabel&>(*widget(name));
  const QFontMetrics metrics(canvas.font());
  const int width = std::max(metrics.horizontalAdvance(label.text()), metrics.horizontalAdvance(widest));
  label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  label.setFixedSize(width + lineRoom, metrics.height() + lineRoom);
  return label;
}

QLabel& oneLine(const Widgets& widget, std::string_view name, const QWidget& canvas) {
  return oneLine(widget, name, canvas, {});
}

QWidget& boxOfWidth(const Widgets& widget, std::string_view name, const QWidget& canvas, int characters) {
  QWidget& box = *widget(name);
  const QString widest(characters, QLatin1Char('0'));
  box.setFixedWidth(QFontMetrics(canvas.font()).horizontalAdvance(widest) + boxRoom);
  return box;
}

QWidget& framed(const FormView& view, std::string_view name, const QWidget& canvas, QLayout& contents) {
  const auto& frame = static_cast<const Frame&>(*view.form().control(name));
  QWidget& card = *view.widgetOf(frame);
  QFont bold = canvas.font();
  bold.setWeight(QFont::DemiBold);
  const QFontMetrics metrics(bold);
  contents.setContentsMargins(dialogMargin, metrics.height() + dialogGap, dialogMargin, dialogGap);
  const int caption = metrics.horizontalAdvance(plainCaption(frame.Caption())) + 2 * dialogMargin + lineRoom;
  card.setMinimumWidth(std::max(caption, contents.sizeHint().width()));
  return card;
}

QLayout* buttonLine(const FormView& view, std::initializer_list<std::string_view> buttons) {
  const Widgets widget(view);
  int widest = 0;
  for (const std::string_view name : buttons) widest = std::max(widest, widget(name)->sizeHint().width());
  auto* row = new QHBoxLayout;
  row->setSpacing(dialogGap / 2);
  row->addStretch();
  for (const std::string_view name : buttons) {
    widget(name)->setMinimumWidth(widest);
    row->addWidget(widget(name));
  }
  return row;
}

void stack(const FormView& view, QWidget& canvas, QWidget& frame, std::initializer_list<std::string_view> buttons) {
  auto* column = new QVBoxLayout(&canvas);
  column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
  column->setSpacing(dialogGap);
  column->addWidget(&frame);
  column->addLayout(buttonLine(view, buttons));
}

}  // namespace pantrigo
