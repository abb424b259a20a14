#pragma once

#include <functional>
#include <memory>

#include "platform/controls/controls.h"
#include "platform/controls/windows.h"

class QWidget;

namespace pantrigo {

/// The way in for everything that a person does to a window.
class UserEvents {
 public:
  virtual ~UserEvents() = default;

  /// Runs one event of a person's through the program's dispatcher. Nothing that is thrown inside leaves it.
  virtual void dispatch(const std::function<void(Windows&)>& event) = 0;
};

/// Ties one control to one widget: shows what the control holds, and hands on what a person does to the widget. It sets
/// the widget only where the two differ, so that cursor and selection stay.
class Binding {
 public:
  Binding(Control& control, UserEvents& events) : control_(control), events_(events) {}
  virtual ~Binding() = default;
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  [[nodiscard]] Control& control() const { return control_; }
  [[nodiscard]] virtual QWidget& widget() const = 0;

  /// An aspect of the control has changed.
  void changed(Aspect aspect);
  /// Shows all that the control holds.
  virtual void showAll();

  /// The widget has its place and font now. Gives the pixels to a twip of the design.
  virtual void placed(double) {}

 protected:
  /// Shows an aspect that the kinds do not share.
  virtual void show(Aspect aspect) = 0;
  [[nodiscard]] UserEvents& events() const { return events_; }

 private:
  void showPointer();

  Control& control_;
  UserEvents& events_;
};

/// Property of a picture's widget: name of the icon that it shows while it has no picture.
inline constexpr const char* signProperty = "sign";
/// Property of a label's widget: size of its text, in sizes of its parent's.
inline constexpr const char* textSizeProperty = "textSize";

/// The widget and binding of a control, inside the given parent. Null for the kinds that a form's window shows by
/// itself (menu entries) or that nobody sees.
[[nodiscard]] std::unique_ptr<Binding> makeBinding(Control& control, QWidget& parent, UserEvents& events);

// One function a kind, for `makeBinding`.
[[nodiscard]] std::unique_ptr<Binding> bindLineBox(TextBox& box, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindMultiLineBox(TextBox& box, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindComboBox(ComboBox& combo, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindListBox(ListBox& list, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindLabel(Label& label, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindFrame(Frame& frame, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindCheckBox(CheckBox& box, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindOptionButton(OptionButton& option, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindCommandButton(CommandButton& button, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindToolBar(ToolBar& toolBar, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindDriveList(DriveList& drives, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindFolderList(FolderList& folders, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindFileList(FileList& files, QWidget& parent, UserEvents& events);
[[nodiscard]] std::unique_ptr<Binding> bindImage(Image& image, QWidget& parent, UserEvents& events);

}  // namespace pantrigo
