#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace pantrigo {

/// A button of a tool bar; a spacer has an empty key.
struct ToolButton {
  std::string key;
  std::string toolTip;
  bool enabled = true;
  bool visible = true;
  /// 1 when it is shown pressed, else 0.
  int value = 0;
};

/// Width of a tool bar button with the small pictures and with the large ones, in twips.
inline constexpr double smallButtonWidth = 585.0715;
inline constexpr double largeButtonWidth = 705.26;

/// A row of buttons, found by their keys.
class ToolBar : public Control {
 public:
  ToolBar(Holder holder, std::string_view name, Box box, std::vector<ToolButton> buttons);

  [[nodiscard]] const std::vector<ToolButton>& buttons() const { return buttons_; }
  /// The button with that key, null when there is none.
  [[nodiscard]] const ToolButton* button(std::string_view key) const;

  void setButtonEnabled(std::string_view key, bool enabled);
  void setButtonVisible(std::string_view key, bool visible);
  void setButtonValue(std::string_view key, int value);
  /// The value of every button at once.
  void setAllValues(int value);
  /// Shows or hides the spacer at that place (counted from 0).
  void setSpacerVisible(std::size_t place, bool visible);

  /// Width of a button in twips of the platform's tool bar, and which of its two image lists it uses (0 small, 1
  /// large).
  [[nodiscard]] double buttonWidth() const { return buttonWidth_; }
  [[nodiscard]] int imageList() const { return imageList_; }
  void setButtonSize(double width, int imageList);

  void reset() override;
  void sealDesign() override;

  /// A button was pressed; gives its key.
  Event<const std::string&> ButtonClick;

 private:
  ToolButton* find(std::string_view key);

  std::vector<ToolButton> buttons_;
  std::vector<ToolButton> designButtons_;
  double buttonWidth_ = smallButtonWidth;
  int imageList_ = 0;
};

}  // namespace pantrigo
