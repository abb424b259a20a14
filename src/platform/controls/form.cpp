#include "platform/controls/form.h"

#include <algorithm>

#include "platform/controls/simple_controls.h"
#include "platform/text/letters.h"

namespace pantrigo {

Form::Form(std::string_view name, std::string_view caption, double width, double height)
    : name_(name), caption_(caption), box_{0, 0, width, height} {}

void Form::setCaption(std::string_view caption) {
  caption_ = caption;
  if (listener_ != nullptr) listener_->formChanged(Aspect::Caption);
}

void Form::setMousePointer(int pointer) {
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  if (listener_ != nullptr) listener_->formChanged(Aspect::Pointer);
}

void Form::setBox(const Box& box) {
  box_ = box;
  if (listener_ != nullptr) listener_->formChanged(Aspect::Geometry);
}

Control* Form::control(std::string_view name) const {
  const std::string sought = LCase(name);
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return LCase(control->Name()) == sought; });
  return found == controls_.end() ? nullptr : *found;
}

Control* Form::nextReachable(const Control* from) const {
  const auto start = std::find(controls_.begin(), controls_.end(), from);
  const std::size_t first = start == controls_.end() ? 0 : static_cast<std::size_t>(start - controls_.begin());
  for (std::size_t step = 0; step < controls_.size(); ++step) {
    Control* control = controls_[(first + step) % controls_.size()];
    if (control->takesFocus() && control->reachable()) return control;
  }
  return nullptr;
}

void Form::Refresh() const {
  if (listener_ != nullptr) listener_->refresh();
}

void Form::sealDesign(Control* start) {
  designCaption_ = caption_;
  designBox_ = box_;
  start_ = start;
  for (Control* control : controls_) control->sealDesign();
}

void Form::reset() {
  caption_ = designCaption_;
  box_ = designBox_;
  minimised_ = false;
  pointer_ = pointerDefault;
  focus_ = start_;
  for (Control* control : controls_) control->reset();
}

}  // namespace pantrigo
