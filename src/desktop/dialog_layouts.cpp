#include "desktop/dialog_layouts.h"

#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "desktop/form_view.h"
#include "desktop/look.h"
#include "desktop/text_conversion.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// Room around a dialog's contents and between its groups, in logical pixels.
constexpr int margin = 20;
constexpr int gap = 14;

/// The widgets of a form by the names of their controls.
class Widgets {
 public:
  explicit Widgets(const FormView& view) : view_(view) {}
  [[nodiscard]] QWidget* operator()(std::string_view name) const { return view_.widgetOf(*view_.form().control(name)); }

 private:
  const FormView& view_;
};

void layOutAbout(const FormView& view, QWidget& canvas) {
  constexpr int signSide = 80;
  constexpr double titleSize = 2.2;
  const Widgets widget(view);
  widget("picAbout")->setProperty(signProperty, QStringLiteral("pantrigo"));
  widget("picAbout")->setFixedSize(signSide, signSide);

  QFont large = canvas.font();
  large.setPixelSize(static_cast<int>(large.pixelSize() * titleSize));
  large.setWeight(QFont::DemiBold);
  auto* title = static_cast<QLabel*>(widget("lblTitle"));
  title->setProperty(textSizeProperty, titleSize);
  title->setFixedSize(QFontMetrics(large).size(0, title->text()) + QSize(8, 4));

  auto* grid = new QGridLayout(&canvas);
  grid->setContentsMargins(margin, margin, 2 * margin, margin);
  grid->setHorizontalSpacing(margin);
  grid->setVerticalSpacing(2);
  grid->addWidget(widget("picAbout"), 0, 0, 2, 1);
  grid->addWidget(title, 0, 1, Qt::AlignBottom);
  grid->addWidget(widget("lblVersion"), 1, 1, Qt::AlignTop);
  grid->addWidget(widget("cmdOK"), 2, 0, 1, 2, Qt::AlignRight);
  grid->setRowMinimumHeight(0, signSide / 2);
}

/// The three headings of the chart, which stand in one caption with blanks between them.
QStringList chartHeadings(const FormView& view) {
  const auto& heading = static_cast<const Label&>(*view.form().control("Label37"));
  return toQt(heading.Caption()).split(QRegularExpression(QStringLiteral(" {2,}")), Qt::SkipEmptyParts);
}

void addHeadings(const FormView& view, QWidget& frame, QGridLayout& grid) {
  int column = 0;
  for (const QString& heading : chartHeadings(view)) {
    auto* label = new QLabel(heading, &frame);
    QFont bold = frame.font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    label->setAlignment(Qt::AlignCenter);
    grid.addWidget(label, 0, column);
    grid.setColumnMinimumWidth(column++, QFontMetrics(bold).horizontalAdvance(QStringLiteral("Fahrenheit")) + gap);
  }
}

void layOutOven(const FormView& view, QWidget& canvas) {
  constexpr int columns = 3;
  constexpr int cells = 36;
  const Widgets widget(view);
  QWidget* frame = widget("fmeOven");
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(margin, gap, margin, gap);
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(gap / 3);
  widget("Label37")->hide();
  addHeadings(view, *frame, *grid);
  for (int cell = 0; cell < cells; ++cell) {
    QWidget* label = widget("Label" + plainText(static_cast<long>(cell + 1)));
    static_cast<QLabel*>(label)->setAlignment(Qt::AlignCenter);
    label->setFixedHeight(QFontMetrics(canvas.font()).height() + 3);
    grid->addWidget(label, 1 + cell / columns, cell % columns);
  }
  auto* column = new QVBoxLayout(&canvas);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(gap);
  column->addWidget(frame);
  column->addWidget(widget("cmdCancel"), 0, Qt::AlignRight);
}

struct DialogLayout {
  std::string_view form;
  void (*layOut)(const FormView& view, QWidget& canvas);
};

constexpr DialogLayout layouts[] = {
    {"frmAbout", layOutAbout},
    {"frmOven", layOutOven},
};

}  // namespace

bool layOutDialog(const FormView& view, QWidget& canvas) {
  for (const DialogLayout& layout : layouts) {
    if (layout.form != view.form().Name()) continue;
    layout.layOut(view, canvas);
    return true;
  }
  return false;
}

}  // namespace pantrigo
