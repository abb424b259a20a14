#pragma once

#include <string>
#include <string_view>

#include "platform/controls/event.h"

namespace pantrigo {

class Form;
class Control;
class Toolkit;

/// A place and a size in twips (1440 to the inch, 15 to the pixel of a plain screen).
struct Box {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

enum class ControlKind {
  TextBox,
  ComboBox,
  ListBox,
  Label,
  Frame,
  CheckBox,
  OptionButton,
  CommandButton,
  MenuEntry,
  ToolBar,
  Image,
  DriveList,
  FolderList,
  FileList,
  CommonDialog,
  ImageList
};

/// What a listener is told has changed.
enum class Aspect {
  Geometry,
  Visible,
  Enabled,
  Text,
  Caption,
  Value,
  Colour,
  Pointer,
  Rows,
  RowColours,
  Selection,
  Scroll,
  Buttons,
  Picture,
  Order,
  State
};

/// Mouse pointers, by the platform's numbers.
enum Pointer : int { pointerDefault = 0, pointerHourglass = 11, pointerCustom = 99 };

/// Mouse buttons, by the platform's numbers.
enum MouseButton : int { leftButton = 1, rightButton = 2 };

/// Where a control is made: in a form, or in a frame or menu of one.
struct Holder {
  Form& form;
  Control* container;
};

/// What all controls share. A control holds values, raises events and tells the view about changes; it knows twips and
/// no pixels, and nothing of the cookbook. Making one enters it into its form, in tab order.
class Control {
 public:
  Control(Holder holder, ControlKind kind, std::string_view name, Box box);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] ControlKind kind() const { return kind_; }
  [[nodiscard]] Form& form() const { return form_; }
  /// The frame or menu that holds it; null when the form itself does.
  [[nodiscard]] Control* container() const { return container_; }

  [[nodiscard]] bool Enabled() const { return common_.enabled; }
  void setEnabled(bool enabled);
  [[nodiscard]] bool Visible() const { return common_.visible; }
  void setVisible(bool visible);
  [[nodiscard]] int MousePointer() const { return common_.pointer; }
  void setMousePointer(int pointer);

  /// Place in the form or frame, and size, in twips.
  [[nodiscard]] const Box& box() const { return common_.box; }
  [[nodiscard]] double Left() const { return common_.box.left; }
  [[nodiscard]] double Top() const { return common_.box.top; }
  [[nodiscard]] double Width() const { return common_.box.width; }
  [[nodiscard]] double Height() const { return common_.box.height; }
  void setBox(const Box& box);
  void setLeft(double left);
  void setTop(double top);
  void setWidth(double width);
  void setHeight(double height);

  /// Multiplies place and size.
  void scale(double factor);

  /// Drawing order among its neighbours: positive in front, negative at the back, 0 as made.
  [[nodiscard]] int order() const { return common_.order; }
  void bringToFront();
  void sendToBack();

  /// Whether controls of this kind take the keyboard focus.
  [[nodiscard]] virtual bool takesFocus() const { return false; }

  /// Whether it and each frame or menu above it is visible and enabled.
  [[nodiscard]] bool reachable() const;

  /// Sets all values back to those of the design, without events.
  virtual void reset();
  /// Takes the present values as those of the design.
  virtual void sealDesign();

  Event<> GotFocus;
  Event<> LostFocus;
  Event<int> MouseDown;
  Event<int> KeyDown;
  Event<> Click;
  Event<> DblClick;

 protected:
  void changed(Aspect aspect);
  /// What the form is shown by; null while it was never loaded.
  [[nodiscard]] Toolkit* toolkit() const;

 private:
  struct Common {
    Box box;
    bool enabled = true;
    bool visible = true;
    int pointer = pointerDefault;
    int order = 0;
  };

  Form& form_;
  Control* container_;
  ControlKind kind_;
  std::string name_;
  Common common_;
  Common design_;
};

}  // namespace pantrigo
