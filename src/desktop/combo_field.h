#pragma once

#include <QComboBox>
#include <QWheelEvent>

namespace pantrigo {

/// A combo box that leaves the wheel to the window unless the person is in it.
class ComboField : public QComboBox {
 public:
  explicit ComboField(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(16);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  }

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace pantrigo
