#include "platform/controls/input.h"

namespace pantrigo {

namespace {

void raiseMouseDown(Windows& windows, Control& control, MouseButton button) {
  windows.userFocuses(control);
  if (control.reachable()) control.MouseDown(button);
}

void invokeClick(Control& control) {
  switch (control.kind()) {
    case ControlKind::CheckBox: {
      auto& box = static_cast<CheckBox&>(control);
      box.setValue(!box.Value());
      break;
    }
    case ControlKind::OptionButton:
      static_cast<OptionButton&>(control).setValue(true);
      break;
    default:
      control.Click();
  }
}

}  // namespace

void userClicks(Windows& windows, Control& control) {
  windows.userFocuses(control);
  if (!control.reachable()) return;
  control.MouseDown(leftButton);
  invokeClick(control);
}

void userDoubleClicks(Windows& windows, Control& control) {
  raiseMouseDown(windows, control, leftButton);
  control.DblClick();
}

void userPresses(Windows& windows, Control& control, MouseButton button) { raiseMouseDown(windows, control, button); }

void userEdits(Windows& windows, TextBox& box, std::string_view text) {
  windows.userFocuses(box);
  box.setText(text);
}

void userEdits(Windows& windows, ComboBox& box, std::string_view text) {
  windows.userFocuses(box);
  box.typeText(text);
}

void userPicks(Windows& windows, ComboBox& box, int row) {
  raiseMouseDown(windows, box, leftButton);
  box.setListIndex(row);
}

void userPicks(Windows& windows, ListBox& list, int row) {
  raiseMouseDown(windows, list, leftButton);
  userMovesTo(windows, list, row);
}

void userMovesTo(Windows& windows, ListBox& list, int row) {
  windows.userFocuses(list);
  if (row == list.ListIndex()) {
    list.Click();
  } else {
    list.setListIndex(row);
  }
}

void userToggles(Windows& windows, ListBox& list, int row) {
  raiseMouseDown(windows, list, leftButton);
  list.setSelected(row, !list.Selected(row));
  list.Click();
}

void userPressesButton(Windows& windows, ToolBar& toolBar, const std::string& key) {
  windows.userFocuses(toolBar);
  toolBar.ButtonClick(key);
}

namespace {

KeyUse escapeKey(Form& form) {
  CommandButton* cancel = form.cancelButton();
  if (cancel != nullptr && cancel->reachable()) {
    cancel->Click();
    return KeyUse::Used;
  }
  if (!form.KeyPreview()) return KeyUse::Unused;
  form.KeyPress(keyEscape);
  return KeyUse::Used;
}

KeyUse enterKey(Form& form, Control* focused) {
  if (focused != nullptr && focused->kind() == ControlKind::CommandButton) {
    focused->Click();
    return KeyUse::Used;
  }
  const bool multiLine = focused != nullptr && focused->kind() == ControlKind::TextBox &&
                         static_cast<TextBox*>(focused)->lines() == Lines::Many;
  if (multiLine) return KeyUse::Unused;
  if (CommandButton* button = form.defaultButton(); button != nullptr && button->reachable()) {
    button->Click();
    return KeyUse::Used;
  }
  if (focused != nullptr) focused->KeyDown(keyReturn);
  return KeyUse::Used;
}

}  // namespace

KeyUse userKey(Windows& windows, Form& form, int code) {
  windows.userActivates(form);
  if (code == keyEscape) return escapeKey(form);
  Control* focused = form.ActiveControl();
  if (code == keyReturn) return enterKey(form, focused);
  if (form.KeyPreview()) form.KeyDown(code);
  if (windows.active() == &form && focused != nullptr && focused->reachable()) focused->KeyDown(code);
  return KeyUse::Unused;
}

}  // namespace pantrigo
