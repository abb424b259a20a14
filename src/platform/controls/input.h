#pragma once

#include <string_view>

#include "platform/controls/controls.h"
#include "platform/controls/windows.h"

namespace pantrigo {

/// Keys, by the platform's codes.
enum Key : int { keyReturn = 13, keyEscape = 27, keyPageUp = 33, keyPageDown = 34, keyDelete = 46 };

// What a person does to a control. Each raises the events that belong to it, in order; the caller (a view or the
// scenario runner) has gone through the dispatcher, and has seen that the control can be reached. Where the control
// takes the focus, the focus moves first.

/// Presses a button, picks a menu entry, toggles a check box, chooses an option, clicks a label, frame or image. A list
/// gets its `MouseDown` and `Click`.
void userClicks(Windows& windows, Control& control);
/// The second click of a double click; the first has raised its own events. On a list of folders it enters the picked
/// one.
void userDoubleClicks(Windows& windows, Control& control);
void userPresses(Windows& windows, Control& control, MouseButton button);

/// The text of a box becomes what the user's typing, pasting or deleting made of it: one `Change`.
void userEdits(Windows& windows, TextBox& box, std::string_view text);
void userEdits(Windows& windows, ComboBox& box, std::string_view text);

/// Selects the whole text and types another one: each character is a keystroke with a `Change` of its own, the first
/// one replaces the old text, and an empty text deletes it. A character beyond `MaxLength` is not taken. A line end is
/// one keystroke, kept as CR LF, and in a box of one line none. Typing ends when the box loses the focus.
void userTypes(Windows& windows, TextBox& box, std::string_view text);
void userTypes(Windows& windows, ComboBox& box, std::string_view text);

/// Picks a row of a combo box, or of a list with single selection (a row that is picked already raises `Click` again
/// and no `SelChange`). The row is the one that was under the mouse when it was pressed; where the focus or the press
/// has taken it away, nothing is picked.
void userPicks(Windows& windows, ComboBox& box, int row);
void userPicks(Windows& windows, ListBox& list, int row);
/// The keyboard moves the selection of a list with single selection: as a pick, without the mouse's events.
void userMovesTo(Windows& windows, ListBox& list, int row);
/// Picks a row of a list of drives, folders or files; a row that is picked already raises `Click` again, but for a
/// drive.
void userPicks(Windows& windows, NameList& list, int row);
/// The keyboard moves the pick of such a list: as a pick, without the mouse's events.
void userMovesTo(Windows& windows, NameList& list, int row);
/// Flips the mark of a row of a list with multiple selection.
void userToggles(Windows& windows, ListBox& list, int row);

/// Presses a tool bar button.
void userPressesButton(Windows& windows, ToolBar& toolBar, const std::string& key);

/// What became of a key.
enum class KeyUse { Used, Unused };

/// A key, to the focused control of the form. Esc presses the cancel button, else goes to the `KeyPress` of a form that
/// previews keys; Enter presses the focused or the default button (a multi-line box keeps it), and in a list of folders
/// enters the picked one; the other keys go to the `KeyDown` of the form, if it previews, and of the control. `Unused`
/// means that the view is to give the key its ordinary effect.
KeyUse userKey(Windows& windows, Form& form, int code);

}  // namespace pantrigo
