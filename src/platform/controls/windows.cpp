#include "platform/controls/windows.h"

#include <algorithm>

#include "platform/controls/simple_controls.h"

namespace pantrigo {

void Windows::Load(Form& form) {
  if (form.loaded_) return;
  form.windows_ = this;
  form.reset();
  form.loaded_ = true;
  form.Load();
}

void Windows::Show(Form& form) {
  Load(form);
  if (!form.visible_) {
    form.visible_ = true;
    loop_.toolkit().showView(form, Modality::Modeless);
  }
  activate(form);
}

void Windows::ShowModal(Form& form) {
  if (form.visible_) throw RuntimeError(400);
  Load(form);
  form.visible_ = true;
  modal_.push_back(&form);
  loop_.toolkit().showView(form, Modality::Modal);
  activate(form);
  loop_.waitModal(form, [&] { return !form.visible_; });
}

void Windows::takeOff(Form& form) {
  if (!form.visible_) return;
  form.visible_ = false;
  std::erase(modal_, &form);
  std::erase(order_, &form);
  loop_.toolkit().hideView(form);
}

void Windows::Hide(Form& form) {
  const bool wasActive = active_ == &form;
  takeOff(form);
  if (wasActive) activateBelow();
}

void Windows::Unload(Form& form) {
  if (!form.loaded_) return;
  form.Unload();
  const bool wasActive = active_ == &form;
  takeOff(form);
  form.loaded_ = false;
  loop_.toolkit().dropView(form);
  if (wasActive) activateBelow();
}

void Windows::activateBelow() {
  active_ = nullptr;
  if (!order_.empty()) activate(*order_.back());
}

void Windows::activate(Form& form) {
  if (active_ == &form) return;
  Form* left = active_;
  active_ = &form;
  std::erase(order_, &form);
  order_.push_back(&form);
  if (left != nullptr && left->visible_ && left->focus_ != nullptr) left->focus_->LostFocus();
  loop_.toolkit().activateView(form);
  activating_ = &form;
  form.Activate();
  activating_ = nullptr;
  if (active_ != &form) return;
  if (form.focus_ == nullptr || !form.focus_->reachable()) form.focus_ = form.nextReachable(form.focus_);
  if (form.listener_ != nullptr) form.listener_->focusChanged();
  if (form.focus_ != nullptr) form.focus_->GotFocus();
}

void Windows::moveFocus(Control& control) {
  Form& form = control.form();
  Control* left = form.focus_;
  if (left == &control) return;
  form.focus_ = &control;
  // A focus set while the form is being activated is told once, behind `Form_Activate`.
  if (active_ != &form || activating_ == &form) return;
  if (left != nullptr) left->LostFocus();
  if (form.focus_ != &control) return;
  if (form.listener_ != nullptr) form.listener_->focusChanged();
  control.GotFocus();
}

void Windows::SetFocus(Control& control) {
  if (!control.form().Visible() || !control.takesFocus() || !control.reachable()) throw RuntimeError(5);
  Form& form = control.form();
  if (active_ == &form) {
    const bool hadIt = form.focus_ == &control;
    moveFocus(control);
    if (hadIt && activating_ != &form && form.listener_ != nullptr) form.listener_->focusChanged();
    return;
  }
  form.focus_ = &control;
  activate(form);
}

void Windows::focusLost(Form& form) {
  if (active_ != &form || form.focus_ == nullptr || form.focus_->reachable()) return;
  if (Control* next = form.nextReachable(form.focus_)) {
    moveFocus(*next);
  } else {
    form.focus_ = nullptr;
  }
}

bool Windows::blocked(const Form& form) const {
  return !modal_.empty() && modal_.back() != &form;
}

void Windows::userActivates(Form& form) {
  activate(form);
}

void Windows::userFocuses(Control& control) {
  Form& form = control.form();
  if (active_ != &form) activate(form);
  if (control.takesFocus() && control.reachable()) moveFocus(control);
}

void Windows::userCloses(Form& form) {
  activate(form);
  if (form.CloseMark.isWired()) {
    form.CloseMark();
  } else if (CommandButton* cancel = form.cancelButton(); cancel != nullptr && cancel->reachable()) {
    cancel->Click();
  } else {
    Unload(form);
  }
}

void Windows::userMinimises(Form& form, bool minimised) {
  if (form.minimised_ == minimised) return;
  if (minimised) activate(form);
  form.minimised_ = minimised;
  form.Resize();
}

}  // namespace pantrigo
