#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace pantrigo {

class CommandButton;

/// What the view of a form listens to.
class FormListener {
 public:
  virtual ~FormListener() = default;
  virtual void controlChanged(Control& control, Aspect aspect) = 0;
  virtual void formChanged(Aspect aspect) = 0;
  /// The focus of the form is on another control now, or was given by code to the control that had it.
  virtual void focusChanged() = 0;
  /// The form, or one of its controls, asks to be painted at once.
  virtual void refresh() = 0;
};

/// A window: its controls in tab order, its own values, its events. Forms live as long as the run; unloading one lets
/// its view go, and its values are those of the design again at the next load.
class Form {
 public:
  Form(std::string_view name, std::string_view caption, double width, double height);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  [[nodiscard]] operator Holder() { return {*this, nullptr}; }

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void setCaption(std::string_view caption);
  [[nodiscard]] bool Visible() const { return visible_; }
  [[nodiscard]] bool Loaded() const { return loaded_; }
  [[nodiscard]] bool minimised() const { return minimised_; }
  [[nodiscard]] int MousePointer() const { return pointer_; }
  void setMousePointer(int pointer);

  /// Place on the screen and size of the client area, in twips.
  [[nodiscard]] const Box& box() const { return box_; }
  [[nodiscard]] double Left() const { return box_.left; }
  [[nodiscard]] double Top() const { return box_.top; }
  [[nodiscard]] double Width() const { return box_.width; }
  [[nodiscard]] double Height() const { return box_.height; }
  void setBox(const Box& box);

  /// Whether the form sees keys before its focused control does.
  [[nodiscard]] bool KeyPreview() const { return keyPreview_; }
  /// The buttons that Enter and Esc press; null when there is none.
  [[nodiscard]] CommandButton* defaultButton() const { return defaultButton_; }
  [[nodiscard]] CommandButton* cancelButton() const { return cancelButton_; }

  /// All controls, menus and entries too, in the order in which they were made: the tab order.
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that name, without regard to case; null when there is none.
  [[nodiscard]] Control* control(std::string_view name) const;

  /// The control that has the focus, or will have it when the form is next active; null for none.
  [[nodiscard]] Control* ActiveControl() const { return focus_; }
  /// The first reachable control that takes the focus, in tab order from the given one on; null when there is none.
  [[nodiscard]] Control* nextReachable(const Control* from) const;

  /// Asks for a repaint at once, without waiting for the event pump.
  void Refresh() const;

  void setListener(FormListener* listener) { listener_ = listener; }
  [[nodiscard]] FormListener* listener() const { return listener_; }

  Event<> Load;
  Event<> Activate;
  Event<> Resize;
  Event<int> KeyDown;
  Event<int> KeyPress;
  Event<> Unload;
  /// The close mark of the window, where it does something else than pressing `cmdCancel` or unloading.
  Event<> CloseMark;

 protected:
  /// Ends the making of a form: what it holds now is its design. `start` has the focus first.
  void sealDesign(Control* start = nullptr);
  void setKeyPreview(bool preview) { keyPreview_ = preview; }
  void setDefaultButton(CommandButton& button) { defaultButton_ = &button; }
  void setCancelButton(CommandButton& button) { cancelButton_ = &button; }

 private:
  friend class Control;
  friend class Windows;
  void enter(Control& control) { controls_.push_back(&control); }
  void reset();

  std::string name_;
  std::string caption_;
  std::string designCaption_;
  Box box_;
  Box designBox_;
  bool visible_ = false;
  bool loaded_ = false;
  bool minimised_ = false;
  bool keyPreview_ = false;
  int pointer_ = pointerDefault;
  CommandButton* defaultButton_ = nullptr;
  CommandButton* cancelButton_ = nullptr;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  Control* start_ = nullptr;
  FormListener* listener_ = nullptr;
  class Windows* windows_ = nullptr;
};

}  // namespace pantrigo
