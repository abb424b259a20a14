#include "platform/controls/tool_bar.h"

#include <algorithm>

namespace pantrigo {

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

void ToolBar::setButtonSize(double width, int imageList) {
  buttonWidth_ = width;
  imageList_ = imageList;
  changed(Aspect::Buttons);
}

void ToolBar::reset() {
  Control::reset();
  buttons_ = designButtons_;
  buttonWidth_ = smallButtonWidth;
  imageList_ = 0;
}

void ToolBar::sealDesign() {
  Control::sealDesign();
  designButtons_ = buttons_;
}

}  // namespace pantrigo
