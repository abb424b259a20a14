#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <array>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"

namespace pantrigo {

namespace {

/// A frame whose switches, up to four, stand in one line, and its place: row and column of two columns, of which a wide
/// frame takes both.
struct SwitchFrame {
  std::string_view name;
  int row;
  int column;
  int columns;
  std::array<std::string_view, 4> switches;
};

constexpr SwitchFrame switchFrames[] = {
    {"fmeShowRecipes", 0, 0, 1, {"chkShowRecipes"}},
    {"fmeShowToolbars", 0, 1, 1, {"chkShowToolbars"}},
    {"fmeCenti", 1, 0, 2, {"chkCentilitres", "chkCentimetres", "chkCentigrams"}},
    {"fmeMetric", 2, 0, 1, {"optMetric", "optUKImperial", "optUSImperial"}},
    {"fmeRoundFractions", 2, 1, 1, {"optTenth", "optHalf", "optThird", "optQuarter"}},
    {"fmeFractions", 3, 0, 1, {"optDecimals", "optFractions"}},
    {"fmeShowOriginalUOM", 3, 1, 1, {"chkUseOriginalUOM"}},
    {"fmeSettingsIngredients", 4, 0, 1, {"chkSettingsIngredients"}},
    {"fmeKilojoulesCalories", 4, 1, 1, {"optKilojoules", "optCalories"}},
};

constexpr int sizesRow = 5;
constexpr int buttonsRow = 6;
/// Room between the frames, which are many.
constexpr int frameGap = dialogGap / 2;

/// The frame over its filled layout, lower than that of other dialogs: this one must fit on a screen of the smallest
/// size.
QWidget& lowFrame(const FormView& view, std::string_view name, const QWidget& canvas, QLayout& contents) {
  constexpr int saved = dialogGap / 2 - 2;
  QWidget& card = framed(view, name, canvas, contents);
  contents.setContentsMargins(contents.contentsMargins() - QMargins(0, saved, 0, saved));
  return card;
}

QWidget& switchFrame(const FormView& view, QWidget& canvas, const SwitchFrame& frame) {
  const Widgets widget(view);
  auto* line = new QHBoxLayout(widget(frame.name));
  line->setSpacing(dialogGap);
  for (const std::string_view name : frame.switches) {
    if (!name.empty()) line->addWidget(widget(name));
  }
  line->addStretch();
  return lowFrame(view, frame.name, canvas, *line);
}

/// The sizes of cup and spoon: label, box and unit, one below the other. The unit changes with the measurement system.
QWidget& sizesFrame(const FormView& view, QWidget& canvas) {
  /// A stored number may be longer than what the box takes.
  constexpr int characters = 9;
  const Widgets widget(view);
  const QString widestUnit = QStringLiteral("US fluid ounces (US fl oz)");
  auto* grid = new QGridLayout(widget("fmeLiquid"));
  grid->setHorizontalSpacing(dialogGap / 2);
  grid->setVerticalSpacing(dialogGap / 3);
  grid->addWidget(&oneLine(widget, "lblCup", canvas), 0, 0);
  grid->addWidget(&boxOfWidth(widget, "txtCup", canvas, characters), 0, 1);
  grid->addWidget(&oneLine(widget, "lblCupUnit", canvas, widestUnit), 0, 2);
  grid->addWidget(&oneLine(widget, "lblTablespoon", canvas), 1, 0);
  grid->addWidget(&boxOfWidth(widget, "txtTablespoon", canvas, characters), 1, 1);
  grid->addWidget(&oneLine(widget, "lblTeaspoon", canvas), 1, 2);
  grid->setColumnStretch(3, 1);
  return lowFrame(view, "fmeLiquid", canvas, *grid);
}

}  // namespace

void layOutOptions(const FormView& view, QWidget& canvas) {
  auto* grid = new QGridLayout(&canvas);
  grid->setContentsMargins(dialogMargin, dialogMargin / 2, dialogMargin, dialogMargin / 2);
  grid->setSpacing(frameGap);
  for (const SwitchFrame& frame : switchFrames) {
    grid->addWidget(&switchFrame(view, canvas, frame), frame.row, frame.column, 1, frame.columns);
  }
  grid->addWidget(&sizesFrame(view, canvas), sizesRow, 0, 1, 2);
  grid->addLayout(buttonLine(view, {"cmdOK", "cmdCancel", "cmdHelp"}), buttonsRow, 0, 1, 2);
}

}  // namespace pantrigo
