#include "desktop/pointer_filter.h"

#include <QMouseEvent>
#include <QWidget>

#include "platform/controls/input.h"

namespace pantrigo {

PointerFilter::PointerFilter(QWidget& widget, Control& control, UserEvents& events)
    : QObject(&widget), control_(control), events_(events) {
  widget.installEventFilter(this);
}

void PointerFilter::pressed(Qt::MouseButton button) {
  if (button == Qt::LeftButton) down_ = true;
  if (button == Qt::RightButton)
    events_.dispatch([this](Windows& windows) { userPresses(windows, control_, rightButton); });
}

void PointerFilter::released(bool inside) {
  if (!down_) return;
  down_ = false;
  if (inside) events_.dispatch([this](Windows& windows) { userClicks(windows, control_); });
}

bool PointerFilter::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      pressed(static_cast<QMouseEvent*>(event)->button());
      return true;
    case QEvent::MouseButtonRelease:
      released(static_cast<QWidget*>(watched)->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint()));
      return true;
    case QEvent::MouseButtonDblClick:
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        events_.dispatch([this](Windows& windows) { userDoubleClicks(windows, control_); });
      }
      return true;
    default:
      return false;
  }
}

}  // namespace pantrigo
