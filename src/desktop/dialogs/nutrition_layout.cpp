#include <QGridLayout>
#include <QLabel>
#include <string>

#include "desktop/dialogs/dialog_layouts.h"
#include "desktop/dialogs/dialog_parts.h"

namespace pantrigo {

namespace {

/// The nutrients of a row, by the names of their controls without the first three letters; empty for none.
struct Row {
  std::string_view left;
  std::string_view right;
};

constexpr Row rows[] = {
    {"Energy", {}}, {"Protein", "Cholesterol"}, {"Carbohydrates", "Sodium"}, {"Fibre", "Calcium"}, {"Fat", "Iron"}};

/// Columns of the grid: label, box, a gap, label, box.
constexpr int gapColumn = 2;
constexpr int rightColumn = 3;

}  // namespace

void layOutNutrition(const FormView& view, QWidget& canvas) {
  /// A stored number may be longer than what the box takes.
  constexpr int characters = 8;
  const Widgets widget(view);
  auto* grid = new QGridLayout(widget("fmeNutrition"));
  grid->setHorizontalSpacing(dialogGap / 2);
  grid->setVerticalSpacing(dialogGap / 2);
  grid->setColumnMinimumWidth(gapColumn, dialogGap);
  const auto add = [&](std::string_view nutrient, int row, int column) {
    const std::string name(nutrient);
    grid->addWidget(&oneLine(widget, "lbl" + name, canvas), row, column);
    grid->addWidget(&boxOfWidth(widget, "txt" + name, canvas, characters), row, column + 1);
  };
  int line = 0;
  for (const Row& row : rows) {
    add(row.left, line, 0);
    if (!row.right.empty()) add(row.right, line, rightColumn);
    ++line;
  }
  const QString widest = QStringLiteral("or approx. 9999999 kilojoules");
  grid->addWidget(&oneLine(widget, "lblKilojoulesCalories", canvas, widest), 0, rightColumn, 1, 2);
  stack(view, canvas, framed(view, "fmeNutrition", canvas, *grid), {"cmdOK", "cmdCancel", "cmdClear", "cmdHelp"});
}

}  // namespace pantrigo
