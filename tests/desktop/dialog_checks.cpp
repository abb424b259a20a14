#include "desktop/dialog_checks.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLayout>
#include <QTest>
#include <algorithm>

#include "desktop/text_conversion.h"

namespace pantrigo {

namespace {

std::string focusedName(const FormView& view) {
  return view.focusWidget()->objectName().toStdString();
}

const QWidget& widgetNamed(const FormView& view, const std::string& name) {
  return *view.widgetOf(*view.form().control(name));
}

void expectClear(const FormView& view, const Control& control, const QWidget& shown) {
  EXPECT_TRUE(shown.parentWidget()->rect().contains(shown.geometry())) << control.Name();
  for (const Control* other : view.form().controls()) {
    const QWidget& neighbour = *view.widgetOf(*other);
    if (other == &control || neighbour.parentWidget() != shown.parentWidget()) continue;
    EXPECT_FALSE(neighbour.geometry().intersects(shown.geometry())) << control.Name() << " " << other->Name();
  }
}

void expectWholeLabel(const QLabel& label, int textSize) {
  EXPECT_EQ(label.font().pixelSize(), textSize) << label.objectName().toStdString();
  EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width()) << label.objectName().toStdString();
  EXPECT_LE(label.fontMetrics().height(), label.height()) << label.objectName().toStdString();
}

void expectWholeCaption(const Frame& frame, const QWidget& card) {
  QFont bold = card.font();
  bold.setWeight(QFont::DemiBold);
  const QMargins margins = card.layout()->contentsMargins();
  EXPECT_LE(QFontMetrics(bold).horizontalAdvance(plainCaption(frame.Caption())) + margins.left() + margins.right(),
            card.width())
      << frame.Name();
  EXPECT_LE(QFontMetrics(bold).height(), margins.top()) << frame.Name();
}

}  // namespace

std::vector<std::string> tabRound(FormView& view) {
  std::vector<std::string> names;
  const std::string first = focusedName(view);
  do {
    names.push_back(focusedName(view));
    QTest::keyClick(view.focusWidget(), Qt::Key_Tab);
  } while (focusedName(view) != first && names.size() < view.form().controls().size());
  return names;
}

void expectReadingOrder(const FormView& view, const std::vector<std::string>& names) {
  for (std::size_t place = 1; place < names.size(); ++place) {
    const QWidget& before = widgetNamed(view, names[place - 1]);
    const QWidget& next = widgetNamed(view, names[place]);
    const QPoint from = before.mapTo(&view, before.rect().center());
    const QPoint to = next.mapTo(&view, next.rect().center());
    const bool below = to.y() > from.y() + before.height() / 2;
    const bool sameLine = std::abs(to.y() - from.y()) <= before.height() / 2;
    EXPECT_TRUE(below || (sameLine && to.x() > from.x())) << names[place - 1] << " " << names[place];
  }
}

void expectNothingCut(const FormView& view) {
  const int textSize = view.widgetOf(*view.form().controls().front())->font().pixelSize();
  for (const Control* control : view.form().controls()) {
    const QWidget& shown = *view.widgetOf(*control);
    expectClear(view, *control, shown);
    switch (control->kind()) {
      case ControlKind::Label:
        expectWholeLabel(dynamic_cast<const QLabel&>(shown), textSize);
        break;
      case ControlKind::Frame:
        expectWholeCaption(static_cast<const Frame&>(*control), shown);
        break;
      default:
        EXPECT_GE(shown.height(), shown.minimumSizeHint().height()) << control->Name();
        EXPECT_GE(shown.width(), shown.minimumSizeHint().width()) << control->Name();
    }
  }
}

}  // namespace pantrigo
