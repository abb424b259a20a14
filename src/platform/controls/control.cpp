#include "platform/controls/control.h"

#include "platform/controls/form.h"
#include "platform/controls/windows.h"

namespace pantrigo {

Control::Control(Holder holder, ControlKind kind, std::string_view name, Box box)
    : form_(holder.form), container_(holder.container), kind_(kind), name_(name) {
  common_.box = box;
  form_.enter(*this);
}

void Control::changed(Aspect aspect) {
  if (FormListener* listener = form_.listener()) listener->controlChanged(*this, aspect);
}

Toolkit* Control::toolkit() const {
  return form_.windows_ == nullptr ? nullptr : &form_.windows_->loop().toolkit();
}

void Control::setEnabled(bool enabled) {
  if (common_.enabled == enabled) return;
  common_.enabled = enabled;
  changed(Aspect::Enabled);
  if (!enabled && form_.windows_ != nullptr) form_.windows_->focusLost(form_);
}

void Control::setVisible(bool visible) {
  if (common_.visible == visible) return;
  common_.visible = visible;
  changed(Aspect::Visible);
  if (!visible && form_.windows_ != nullptr) form_.windows_->focusLost(form_);
}

void Control::setMousePointer(int pointer) {
  if (common_.pointer == pointer) return;
  common_.pointer = pointer;
  changed(Aspect::Pointer);
}

void Control::setBox(const Box& box) {
  common_.box = box;
  changed(Aspect::Geometry);
}

void Control::setLeft(double left) {
  setBox({left, Top(), Width(), Height()});
}
void Control::setTop(double top) {
  setBox({Left(), top, Width(), Height()});
}
void Control::setWidth(double width) {
  setBox({Left(), Top(), width, Height()});
}
void Control::setHeight(double height) {
  setBox({Left(), Top(), Width(), height});
}

void Control::scale(double factor) {
  setBox({Left() * factor, Top() * factor, Width() * factor, Height() * factor});
}

void Control::bringToFront() {
  common_.order = 1;
  changed(Aspect::Order);
}

void Control::sendToBack() {
  common_.order = -1;
  changed(Aspect::Order);
}

bool Control::reachable() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->Visible() || !control->Enabled()) return false;
  }
  return true;
}

void Control::reset() {
  common_ = design_;
}
void Control::sealDesign() {
  design_ = common_;
}

}  // namespace pantrigo
