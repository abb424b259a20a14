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

void CheckBox::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  changed(Aspect::Value);
  Click();
}

void CheckBox::reset() {
  CaptionedControl::reset();
  value_ = designValue_;
}

void CheckBox::sealDesign() {
  CaptionedControl::sealDesign();
  designValue_ = value_;
}

void OptionButton::setValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  changed(Aspect::Value);
  if (!value) return;
  for (Control* control : form().controls()) {
    if (control == this || control->kind() != ControlKind::OptionButton || control->container() != container())
      continue;
    static_cast<OptionButton*>(control)->setValue(false);
  }
  Click();
}

void OptionButton::reset() {
  CaptionedControl::reset();
  value_ = designValue_;
}

void OptionButton::sealDesign() {
  CaptionedControl::sealDesign();
  designValue_ = value_;
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
