#include "desktop/accessible_names.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <vector>

#include "desktop/text_conversion.h"
#include "platform/controls/simple_controls.h"

namespace pantrigo {

namespace {

/// How far the middles of a label and a box on the same line may lie apart, in label heights, and how much higher the
/// box may be.
constexpr double sameLine = 0.5;
constexpr double highestBox = 2;
/// How far above its control a label may end, in label heights.
constexpr double nearestAbove = 1.5;

bool onSameLine(const Box& label, const Box& box) {
  const double apart = std::abs((label.top + label.height / 2) - (box.top + box.height / 2));
  return apart < label.height * sameLine && box.height < label.height * highestBox && label.left < box.left;
}

double overlapAcross(const Box& label, const Box& box) {
  return std::min(label.left + label.width, box.left + box.width) - std::max(label.left, box.left);
}

bool standsAbove(const Box& label, const Box& box) {
  const double gap = box.top - (label.top + label.height);
  return label.top < box.top && std::abs(gap) < label.height * nearestAbove && overlapAcross(label, box) > 0;
}

std::vector<const Label*> labelsAround(const Control& control) {
  std::vector<const Label*> labels;
  for (const Control* other : control.form().controls()) {
    // Controls that are shown in turns share one place; a label goes with those that are shown when it is.
    const bool beside = other->container() == control.container() && other->Visible() == control.Visible();
    if (beside && other->kind() == ControlKind::Label) labels.push_back(static_cast<const Label*>(other));
  }
  return labels;
}

/// The labels on the line of the control that stand between the control before it and itself, from the left.
QStringList labelsBefore(const Control& control, std::vector<const Label*> labels) {
  double from = 0;
  for (const Control* other : control.form().controls()) {
    if (other == &control || other->container() != control.container() || !other->takesFocus()) continue;
    if (onSameLine(other->box(), control.box())) from = std::max(from, other->box().left);
  }
  std::sort(labels.begin(), labels.end(), [](const Label* a, const Label* b) { return a->Left() < b->Left(); });
  QStringList captions;
  for (const Label* label : labels) {
    if (label->Left() >= from && onSameLine(label->box(), control.box())) captions += plainCaption(label->Caption());
  }
  return captions;
}

/// Which box of its line this is, counted from the left.
qsizetype placeInLine(const Control& control) {
  const auto& controls = control.form().controls();
  return std::count_if(controls.begin(), controls.end(), [&](const Control* other) {
    return other->container() == control.container() && other->takesFocus() && other->Left() < control.Left() &&
           std::abs(other->Top() - control.Top()) < control.Height() * sameLine;
  });
}

/// The caption of a label above; of one that heads several columns, the heading of this one.
QString headingOf(const Control& control, const Label& label) {
  const QStringList headings = columnHeadings(label.Caption());
  return headings.size() > 1 ? headings.value(placeInLine(control)) : plainCaption(label.Caption());
}

QString labelAbove(const Control& control, const std::vector<const Label*>& labels) {
  const Label* best = nullptr;
  for (const Label* label : labels) {
    if (!standsAbove(label->box(), control.box())) continue;
    const bool better = best == nullptr || label->Top() > best->Top() ||
                        (label->Top() == best->Top() &&
                         overlapAcross(label->box(), control.box()) > overlapAcross(best->box(), control.box()));
    if (better) best = label;
  }
  return best == nullptr ? QString() : headingOf(control, *best);
}

bool captionsItself(const Control& control) {
  return control.kind() == ControlKind::CheckBox || control.kind() == ControlKind::OptionButton ||
         control.kind() == ControlKind::CommandButton || control.kind() == ControlKind::Label ||
         control.kind() == ControlKind::Frame;
}

}  // namespace

QString spokenName(const Control& control) {
  if (captionsItself(control)) return plainCaption(static_cast<const CaptionedControl&>(control).Caption());
  QStringList parts;
  if (const Control* frame = control.container(); frame != nullptr && frame->kind() == ControlKind::Frame) {
    parts += plainCaption(static_cast<const CaptionedControl*>(frame)->Caption());
  }
  const std::vector<const Label*> labels = labelsAround(control);
  const QStringList before = labelsBefore(control, labels);
  parts += before.isEmpty() ? QStringList{labelAbove(control, labels)} : before;
  parts.removeAll(QString());
  return parts.isEmpty() ? toQt(control.Name()) : parts.join(QLatin1Char(' '));
}

}  // namespace pantrigo
