#include "platform/controls/input.h"

#include <vector>

#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

/// Whether the events before have left the control where a person can reach it.
bool stillThere(const Control& control) {
  return control.form().Visible() && control.reachable();
}

/// The press of a mouse button. Gives whether the control is there for what the press goes on to do.
bool pressed(Windows& windows, Control& control, MouseButton button) {
  windows.userFocuses(control);
  if (!stillThere(control)) return false;
  control.MouseDown(button);
  return stillThere(control);
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

void enterPickedFolder(Control& control) {
  if (control.kind() != ControlKind::FolderList || !stillThere(control)) return;
  auto& folders = static_cast<FolderList&>(control);
  folders.enter(folders.ListIndex());
}

}  // namespace

void userClicks(Windows& windows, Control& control) {
  if (pressed(windows, control, leftButton)) invokeClick(control);
}

void userDoubleClicks(Windows& windows, Control& control) {
  if (stillThere(control)) windows.userFocuses(control);
  if (!stillThere(control)) return;
  control.DblClick();
  enterPickedFolder(control);
}

void userPresses(Windows& windows, Control& control, MouseButton button) {
  pressed(windows, control, button);
}

void userEdits(Windows& windows, TextBox& box, std::string_view text) {
  windows.userFocuses(box);
  box.setText(text);
}

void userEdits(Windows& windows, ComboBox& box, std::string_view text) {
  windows.userFocuses(box);
  box.setText(text);
}

namespace {

/// What each keystroke of a typed text puts into a box: a character, or a whole line end.
std::vector<std::string> keystrokes(std::string_view text, Lines lines) {
  std::vector<std::string> keys;
  bool afterReturn = false;
  for (std::string& character : characters(text)) {
    const bool lineFeed = character == "\n";
    const bool lineEnd = lineFeed || character == "\r";
    if (!lineEnd) {
      keys.push_back(std::move(character));
    } else if (lines == Lines::Many && !(lineFeed && afterReturn)) {
      keys.emplace_back("\r\n");
    }
    afterReturn = lineEnd && !lineFeed;
  }
  return keys;
}

bool takesKeys(const Windows& windows, const Control& control) {
  return windows.active() == &control.form() && control.form().ActiveControl() == &control && stillThere(control);
}

template <class Box>
void typeInto(Windows& windows, Box& box, std::string_view text, Lines lines) {
  windows.userFocuses(box);
  if (text.empty() && takesKeys(windows, box) && !box.Text().empty()) box.typeText("");
  std::string typed;
  for (const std::string& key : keystrokes(text, lines)) {
    if (!takesKeys(windows, box)) return;
    std::string after = typed + key;
    if (box.MaxLength() > 0 && Len(after) > box.MaxLength()) continue;
    box.typeText(after);
    typed = box.Text();
  }
}

}  // namespace

void userTypes(Windows& windows, TextBox& box, std::string_view text) {
  typeInto(windows, box, text, box.lines());
}

void userTypes(Windows& windows, ComboBox& box, std::string_view text) {
  typeInto(windows, box, text, Lines::One);
}

void userPicks(Windows& windows, ComboBox& box, int row) {
  if (pressed(windows, box, leftButton)) box.setListIndex(row);
}

void userPicks(Windows& windows, ListBox& list, int row) {
  if (pressed(windows, list, leftButton) && row < list.ListCount()) userMovesTo(windows, list, row);
}

void userMovesTo(Windows& windows, ListBox& list, int row) {
  windows.userFocuses(list);
  if (row == list.ListIndex()) {
    list.Click();
  } else {
    list.setListIndex(row);
  }
}

void userPicks(Windows& windows, NameList& list, int row) {
  if (pressed(windows, list, leftButton)) userMovesTo(windows, list, row);
}

void userMovesTo(Windows& windows, NameList& list, int row) {
  windows.userFocuses(list);
  const bool again = row == list.ListIndex() && list.kind() != ControlKind::DriveList;
  if (again) {
    list.Click();
  } else {
    list.setListIndex(row);
  }
}

void userToggles(Windows& windows, ListBox& list, int row) {
  if (!pressed(windows, list, leftButton) || row >= list.ListCount()) return;
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
  if (focused == nullptr) return KeyUse::Used;
  focused->KeyDown(keyReturn);
  enterPickedFolder(*focused);
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
