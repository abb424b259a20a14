#pragma once

#include <string>
#include <vector>

#include "platform/controls/unseen_controls.h"

namespace pantrigo {

/// A button of a tool bar; a spacer has an empty key.
struct ToolButton {
  std::string key;
  std::string toolTip;
  bool enabled = true;
  bool visible = true;
  /// 1 when it is shown pressed, else 0.
  int value = 0;
  /// Number of its picture in the bar's image list, counted from 1; 0 for none.
  int image = 0;
};

/// The names of the pictures that the buttons show, in order: those of their keys. Spacers have none.
[[nodiscard]] std::vector<std::string> pictureNames(const std::vector<ToolButton>& buttons);

/// Width of a tool bar button with the small pictures and with the large ones, in twips.
inline constexpr double smallButtonWidth = 585.0715;
inline constexpr double largeButtonWidth = 705.26;
/// Width and height of the small pictures and of the large ones, in pixels of a plain screen.
inline constexpr int smallPicture = 32;
inline constexpr int largePicture = 40;

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

  /// Width of a button in twips of the platform's tool bar.
  [[nodiscard]] double ButtonWidth() const { return buttonWidth_; }
  void setButtonWidth(double width);
  /// Where the buttons have their pictures from; null before one is set.
  [[nodiscard]] const ImageList* imageList() const { return imageList_; }
  /// Takes another image list; no button has a picture then.
  void setImageList(const ImageList& list);
  /// Gives the button at that place (counted from 0) the picture of that number.
  void setButtonImage(std::size_t place, int number);

  void reset() override;
  void sealDesign() override;

  /// A button was pressed; gives its key.
  Event<const std::string&> ButtonClick;

 private:
  ToolButton* find(std::string_view key);

  std::vector<ToolButton> buttons_;
  std::vector<ToolButton> designButtons_;
  double buttonWidth_ = smallButtonWidth;
  const ImageList* imageList_ = nullptr;
};

}  // namespace pantrigo
