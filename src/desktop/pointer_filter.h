#pragma once

#include <QObject>

#include "desktop/binding.h"

namespace pantrigo {

/// Makes mouse presses on a widget that takes no focus (a label, a frame, a picture) a person's presses, clicks and
/// double clicks on its control. They end here, so that a label's click is not its frame's too.
class PointerFilter : public QObject {
 public:
  PointerFilter(QWidget& widget, Control& control, UserEvents& events);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void pressed(Qt::MouseButton button);
  void released(bool inside);

  Control& control_;
  UserEvents& events_;
  bool down_ = false;
};

}  // namespace pantrigo
