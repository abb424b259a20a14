#include "platform/controls/simple_controls.h"

#include <algorithm>

#include "platform/controls/form.h"

namespace pantrigo {

CaptionedControl::CaptionedControl(Holder holder, ControlKind kind, std::string_view name, std::string_view caption,
                                   Box box)
    : Control(holder, kind, name, box), caption_(caption) {}

void CaptionedControl::setCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(Aspect::Caption);
}

void CaptionedControl::reset() {
  Control::reset();
  caption_ = designCaption_;
}

void CaptionedControl::sealDesign() {
  Control::sealDesign();
  designCaption_ = caption_;
}

bool MenuEntry::isMenu() const {
  const std::vector<Control*>& all = form().controls();
  return std::any_of(all.begin(), all.end(), [this](const Control* control) { return control->container() == this; });
}

bool SwitchControl::changeValue(bool value) {
  if (value_ == value) return false;
  value_ = value;
  changed(Aspect::Value);
  return true;
}

void SwitchControl::reset() {
  CaptionedControl::reset();
  value_ = designValue_;
}

void SwitchControl::sealDesign() {
  CaptionedControl::sealDesign();
  designValue_ = value_;
}

void CheckBox::setValue(bool value) {
  if (changeValue(value)) Click();
}

void OptionButton::setValue(bool value) {
  if (!changeValue(value) || !value) return;
  for (Control* control : form().controls()) {
    const bool neighbour = control != this && control->kind() == ControlKind::OptionButton;
    if (neighbour && control->container() == container()) static_cast<OptionButton*>(control)->changeValue(false);
  }
  Click();
}

void Image::setPicture(PictureFile picture) {
  picture_ = std::move(picture);
  changed(Aspect::Picture);
}

void Image::reset() {
  Control::reset();
  picture_ = {};
}

}  // namespace pantrigo
