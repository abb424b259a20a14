#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/binding.h"
#include "desktop/text_conversion.h"
#include "platform/controls/form.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// A check box or an option: two-valued, with a caption. The widget flips by itself when it is clicked; what the
/// control makes of the click is shown after it.
template <class Value, class Widget>
class SwitchBinding : public Binding {
 public:
  SwitchBinding(Value& value, QWidget& parent, UserEvents& userEvents)
      : Binding(value, userEvents), value_(value), widget_(new Widget(&parent)) {
    widget_->setAutoExclusive(false);
    QObject::connect(widget_, &QAbstractButton::clicked, widget_, [this] {
      events().dispatch([this](Windows& windows) { userClicks(windows, value_); });
      show(Aspect::Value);
    });
  }

  [[nodiscard]] QWidget& widget() const override { return *widget_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Caption);
    show(Aspect::Value);
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Caption) widget_->setText(toQt(value_.Caption()));
    if (aspect == Aspect::Value) {
      const QSignalBlocker blocker(widget_);
      widget_->setChecked(value_.Value());
    }
  }

 private:
  Value& value_;
  Widget* widget_;
};

class CommandButtonBinding : public Binding {
 public:
  CommandButtonBinding(CommandButton& button, QWidget& parent, UserEvents& userEvents)
      : Binding(button, userEvents), button_(button), widget_(new QPushButton(&parent)) {
    widget_->setAutoDefault(false);
    widget_->setDefault(button.form().defaultButton() == &button);
    QObject::connect(widget_, &QPushButton::clicked, widget_,
                     [this] { events().dispatch([this](Windows& windows) { userClicks(windows, button_); }); });
  }

  [[nodiscard]] QWidget& widget() const override { return *widget_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Caption);
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Caption) widget_->setText(toQt(button_.Caption()));
  }

 private:
  CommandButton& button_;
  QPushButton* widget_;
};

}  // namespace

std::unique_ptr<Binding> bindCheckBox(CheckBox& box, QWidget& parent, UserEvents& events) {
  return std::make_unique<SwitchBinding<CheckBox, QCheckBox>>(box, parent, events);
}

std::unique_ptr<Binding> bindOptionButton(OptionButton& option, QWidget& parent, UserEvents& events) {
  return std::make_unique<SwitchBinding<OptionButton, QRadioButton>>(option, parent, events);
}

std::unique_ptr<Binding> bindCommandButton(CommandButton& button, QWidget& parent, UserEvents& events) {
  return std::make_unique<CommandButtonBinding>(button, parent, events);
}

}  // namespace pantrigo
