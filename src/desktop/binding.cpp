#include "desktop/binding.h"

#include <QWidget>

namespace pantrigo {

void Binding::changed(Aspect aspect) {
  switch (aspect) {
    case Aspect::Visible:
      widget().setVisible(control_.Visible());
      break;
    case Aspect::Enabled:
      widget().setEnabled(control_.Enabled());
      break;
    case Aspect::Pointer:
      showPointer();
      break;
    default:
      show(aspect);
  }
}

void Binding::showAll() {
  for (const Aspect aspect : {Aspect::Visible, Aspect::Enabled, Aspect::Pointer}) changed(aspect);
}

void Binding::showPointer() {
  switch (control_.MousePointer()) {
    case pointerHourglass:
      widget().setCursor(Qt::WaitCursor);
      break;
    case pointerCustom:
      widget().setCursor(Qt::PointingHandCursor);
      break;
    default:
      widget().unsetCursor();
  }
  show(Aspect::Pointer);
}

std::unique_ptr<Binding> makeBinding(Control& control, QWidget& parent, UserEvents& events) {
  switch (control.kind()) {
    case ControlKind::TextBox: {
      auto& box = static_cast<TextBox&>(control);
      return box.lines() == Lines::Many ? bindMultiLineBox(box, parent, events) : bindLineBox(box, parent, events);
    }
    case ControlKind::ComboBox:
      return bindComboBox(static_cast<ComboBox&>(control), parent, events);
    case ControlKind::ListBox:
      return bindListBox(static_cast<ListBox&>(control), parent, events);
    case ControlKind::Label:
      return bindLabel(static_cast<Label&>(control), parent, events);
    case ControlKind::Frame:
      return bindFrame(static_cast<Frame&>(control), parent, events);
    case ControlKind::CheckBox:
      return bindCheckBox(static_cast<CheckBox&>(control), parent, events);
    case ControlKind::OptionButton:
      return bindOptionButton(static_cast<OptionButton&>(control), parent, events);
    case ControlKind::CommandButton:
      return bindCommandButton(static_cast<CommandButton&>(control), parent, events);
    case ControlKind::ToolBar:
      return bindToolBar(static_cast<ToolBar&>(control), parent, events);
    case ControlKind::Image:
      return bindImage(static_cast<Image&>(control), parent, events);
    case ControlKind::DriveList:
      return bindDriveList(static_cast<DriveList&>(control), parent, events);
    case ControlKind::FolderList:
      return bindFolderList(static_cast<FolderList&>(control), parent, events);
    case ControlKind::FileList:
      return bindFileList(static_cast<FileList&>(control), parent, events);
    case ControlKind::MenuEntry:
    case ControlKind::CommonDialog:
    case ControlKind::ImageList:
      break;
  }
  return nullptr;
}

}  // namespace pantrigo
