#pragma once

#include <memory>
#include <string>

#include "platform/controls/control.h"

namespace pantrigo {

/// A control whose one own value is its caption. "&" marks the access key, "&&" is one "&".
class CaptionedControl : public Control {
 public:
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void setCaption(std::string_view caption);
  void reset() override;
  void sealDesign() override;

 protected:
  CaptionedControl(Holder holder, ControlKind kind, std::string_view name, std::string_view caption, Box box);

 private:
  std::string caption_;
  std::string designCaption_;
};

class Label : public CaptionedControl {
 public:
  Label(Holder holder, std::string_view name, std::string_view caption, Box box)
      : CaptionedControl(holder, ControlKind::Label, name, caption, box) {}
};

/// A frame with a caption; other controls lie in it, at places relative to it.
class Frame : public CaptionedControl {
 public:
  Frame(Holder holder, std::string_view name, std::string_view caption, Box box)
      : CaptionedControl(holder, ControlKind::Frame, name, caption, box) {}
  [[nodiscard]] operator Holder() { return {form(), this}; }
};

class CommandButton : public CaptionedControl {
 public:
  CommandButton(Holder holder, std::string_view name, std::string_view caption, Box box)
      : CaptionedControl(holder, ControlKind::CommandButton, name, caption, box) {}
  [[nodiscard]] bool takesFocus() const override { return true; }
};

/// A menu, a menu entry (in a menu) or, with the caption "-", a separator.
class MenuEntry : public CaptionedControl {
 public:
  MenuEntry(Holder holder, std::string_view name, std::string_view caption)
      : CaptionedControl(holder, ControlKind::MenuEntry, name, caption, {}) {}
  [[nodiscard]] operator Holder() { return {form(), this}; }
  [[nodiscard]] bool isSeparator() const { return Caption() == "-"; }
  /// Whether it holds entries of its own.
  [[nodiscard]] bool isMenu() const;
};

/// A captioned control that is on or off.
class SwitchControl : public CaptionedControl {
 public:
  [[nodiscard]] bool Value() const { return value_; }
  [[nodiscard]] bool takesFocus() const override { return true; }
  void reset() override;
  void sealDesign() override;

 protected:
  using CaptionedControl::CaptionedControl;
  /// Takes the value and tells the view; gives whether it was another one.
  bool changeValue(bool value);

 private:
  bool value_ = false;
  bool designValue_ = false;
};

/// A check box; a change of its value, also by code, raises `Click`.
class CheckBox : public SwitchControl {
 public:
  CheckBox(Holder holder, std::string_view name, std::string_view caption, Box box)
      : SwitchControl(holder, ControlKind::CheckBox, name, caption, box) {}
  void setValue(bool value);
};

/// One of the options of a frame, of which at most one is chosen. Turning one on raises its `Click` and turns its
/// neighbours off, which raises nothing.
class OptionButton : public SwitchControl {
 public:
  OptionButton(Holder holder, std::string_view name, std::string_view caption, Box box)
      : SwitchControl(holder, ControlKind::OptionButton, name, caption, box) {}
  void setValue(bool value);
};

/// A picture as the toolkit loaded it: the name it was asked for, its size in pixels, and the file's bytes, which the
/// view decodes. Without bytes it is no picture.
struct PictureFile {
  std::string name;
  int width = 0;
  int height = 0;
  std::shared_ptr<const std::string> bytes;
};

/// A picture stretched into its box.
class Image : public Control {
 public:
  Image(Holder holder, std::string_view name, Box box) : Control(holder, ControlKind::Image, name, box) {}
  [[nodiscard]] const PictureFile& Picture() const { return picture_; }
  void setPicture(PictureFile picture);
  void reset() override;

 private:
  PictureFile picture_;
};

}  // namespace pantrigo
