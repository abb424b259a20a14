#include "platform/controls/tool_bar.h"

#include <algorithm>

namespace pantrigo {

std::vector<std::string> pictureNames(const std::vector<ToolButton>& buttons) {
  std::vector<std::string> names;
  for (const ToolButton& button : buttons) {
    if (!button.key.empty()) names.push_back(button.key);
  }
  return names;
}

ToolBar::ToolBar(Holder holder, std::string_view name, Box box, std::vector<ToolButton> buttons)
    : Control(holder, ControlKind::ToolBar, name, box), buttons_(std::move(buttons)) {}

ToolButton* ToolBar::find(std::string_view key) {
  const auto found = std::find_if(buttons_.begin(), buttons_.end(),
                                  [&](const ToolButton& button) { return !key.empty() && button.key == key; });
  return found == buttons_.end() ? nullptr : &*found;
}

const ToolButton* ToolBar::button(std::string_view key) const {
  return const_cast<ToolBar*>(this)->find(key);
}

void ToolBar::setButtonEnabled(std::string_view key, bool enabled) {
  if (ToolButton* button = find(key)) button->enabled = enabled;
  changed(Aspect::Buttons);
}

void ToolBar::setButtonVisible(std::string_view key, bool visible) {
  if (ToolButton* button = find(key)) button->visible = visible;
  changed(Aspect::Buttons);
}

void ToolBar::setButtonValue(std::string_view key, int value) {
  if (ToolButton* button = find(key)) button->value = value;
  changed(Aspect::Buttons);
}

void ToolBar::setAllValues(int value) {
  for (ToolButton& button : buttons_) button.value = value;
  changed(Aspect::Buttons);
}

void ToolBar::setSpacerVisible(std::size_t place, bool visible) {
  if (place < buttons_.size()) buttons_[place].visible = visible;
  changed(Aspect::Buttons);
}

void ToolBar::setButtonWidth(double width) {
  buttonWidth_ = width;
  changed(Aspect::Buttons);
}

void ToolBar::setImageList(const ImageList& list) {
  imageList_ = &list;
  for (ToolButton& button : buttons_) button.image = 0;
  changed(Aspect::Buttons);
}

void ToolBar::setButtonImage(std::size_t place, int number) {
  if (place < buttons_.size()) buttons_[place].image = number;
  changed(Aspect::Buttons);
}

void ToolBar::reset() {
  Control::reset();
  buttons_ = designButtons_;
  buttonWidth_ = smallButtonWidth;
  imageList_ = nullptr;
}

void ToolBar::sealDesign() {
  Control::sealDesign();
  designButtons_ = buttons_;
}

}  // namespace pantrigo
