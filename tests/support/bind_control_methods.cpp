#include "platform/controls/input.h"
#include "support/bind_forms.h"

namespace pantrigo {

namespace {

std::string fullName(const Control& control) {
  return control.form().Name() + "." + control.Name();
}

/// The control at the first place of the stack, which a person can reach.
Control& reached(lua_State* lua, ScenarioCase& scenario) {
  const ControlName& names = controlNameAt(lua, 1);
  return scenario.reachableControl(*names.form, *names.control);
}

/// The control at the first place of the stack, of a loaded form.
const Control& named(lua_State* lua, ScenarioCase& scenario) {
  const ControlName& names = controlNameAt(lua, 1);
  return scenario.control(*names.form, *names.control);
}

[[noreturn]] void refuse(const Control& control, const std::string& what) {
  throw ScriptError(fullName(control) + " " + what);
}

/// What a person does to a control: enters as one event.
void act(lua_State* lua, ScenarioCase& scenario, Control& control, const std::function<void(Windows&)>& event) {
  scenario.act(lua, control.form(), event);
}

/// The row that a number or a text at a place of the stack names; -1 when there is none.
template <class Rows>
int rowAt(lua_State* lua, int place, const Rows& rows) {
  if (lua_type(lua, place) != LUA_TSTRING) {
    const int row = toWhole(lua, place);
    return row < rows.ListCount() ? row : -1;
  }
  const std::string text = toText(lua, place);
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (rows.List(row) == text) return row;
  }
  return -1;
}

/// The same, for a row that has to be there.
template <class Rows>
int givenRow(lua_State* lua, int place, const Rows& rows) {
  const int row = rowAt(lua, place, rows);
  if (row < 0) refuse(rows, "has no row " + shown(lua, place));
  return row;
}

bool isNameList(const Control& control) {
  return control.kind() == ControlKind::DriveList || control.kind() == ControlKind::FolderList ||
         control.kind() == ControlKind::FileList;
}

/// The row of a list of drives, folders or files. A folder is named by its path or its name, and those above the folder
/// on show have numbers below 0.
int givenName(lua_State* lua, int place, const NameList& list) {
  if (lua_type(lua, place) != LUA_TSTRING) {
    const int row = toWhole(lua, place);
    if (row >= list.firstRow() && row < list.endRow()) return row;
    refuse(list, "has no row " + shown(lua, place));
  }
  const std::string text = toText(lua, place);
  for (int row = list.endRow() - 1; row >= list.firstRow(); --row) {
    const bool named = list.kind() == ControlKind::FolderList && static_cast<const FolderList&>(list).name(row) == text;
    if (named || list.List(row) == text) return row;
  }
  refuse(list, "has no row " + shown(lua, place));
}

ListBox& singleList(Control& control) {
  if (control.kind() != ControlKind::ListBox) refuse(control, "has no rows to pick");
  auto& list = static_cast<ListBox&>(control);
  if (list.multiple()) refuse(control, "takes several rows: they are toggled");
  return list;
}

int click(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  if (control.kind() == ControlKind::ToolBar) refuse(control, "is pressed by the keys of its buttons");
  act(lua, scenario, control, [&](Windows& windows) { userClicks(windows, control); });
  return 0;
}

int doubleClick(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  std::function<void(Windows&)> first;
  const bool onRow = !lua_isnoneornil(lua, 2);
  if (onRow && isNameList(control)) {
    auto& list = static_cast<NameList&>(control);
    first = [&list, row = givenName(lua, 2, list)](Windows& windows) { userPicks(windows, list, row); };
  } else if (onRow) {
    ListBox& list = singleList(control);
    first = [&list, row = givenRow(lua, 2, list)](Windows& windows) { userPicks(windows, list, row); };
  } else if (control.kind() == ControlKind::ListBox || isNameList(control)) {
    first = [&](Windows& windows) { userPresses(windows, control, leftButton); };
  } else {
    first = [&](Windows& windows) { userClicks(windows, control); };
  }
  act(lua, scenario, control, [&](Windows& windows) {
    first(windows);
    userDoubleClicks(windows, control);
  });
  return 0;
}

int rightClick(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  act(lua, scenario, control, [&](Windows& windows) { userPresses(windows, control, rightButton); });
  return 0;
}

int mouseDown(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  act(lua, scenario, control, [&](Windows& windows) { userPresses(windows, control, leftButton); });
  return 0;
}

int type(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  const std::string text = toText(lua, 2);
  if (control.kind() == ControlKind::TextBox) {
    act(lua, scenario, control, [&](Windows& windows) { userTypes(windows, static_cast<TextBox&>(control), text); });
  } else if (control.kind() == ControlKind::ComboBox) {
    act(lua, scenario, control, [&](Windows& windows) { userTypes(windows, static_cast<ComboBox&>(control), text); });
  } else {
    refuse(control, "can't be typed into");
  }
  return 0;
}

int focus(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  if (!control.takesFocus()) refuse(control, "takes no focus");
  act(lua, scenario, control, [&](Windows& windows) { windows.userFocuses(control); });
  return 0;
}

int pick(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  if (control.kind() == ControlKind::ComboBox) {
    auto& combo = static_cast<ComboBox&>(control);
    const int row = givenRow(lua, 2, combo);
    act(lua, scenario, control, [&](Windows& windows) { userPicks(windows, combo, row); });
  } else if (isNameList(control)) {
    auto& list = static_cast<NameList&>(control);
    const int row = givenName(lua, 2, list);
    act(lua, scenario, control, [&](Windows& windows) { userPicks(windows, list, row); });
  } else {
    ListBox& list = singleList(control);
    const int row = givenRow(lua, 2, list);
    act(lua, scenario, control, [&](Windows& windows) { userPicks(windows, list, row); });
  }
  return 0;
}

int toggle(lua_State* lua, ScenarioCase& scenario) {
  Control& control = reached(lua, scenario);
  const bool several = control.kind() == ControlKind::ListBox && static_cast<ListBox&>(control).multiple();
  if (!several) refuse(control, "is no list of which several rows can be taken");
  auto& list = static_cast<ListBox&>(control);
  const int row = givenRow(lua, 2, list);
  act(lua, scenario, control, [&](Windows& windows) { userToggles(windows, list, row); });
  return 0;
}

ToolBar& toolBar(Control& control) {
  if (control.kind() != ControlKind::ToolBar) refuse(control, "is no tool bar");
  return static_cast<ToolBar&>(control);
}

const ToolButton& givenButton(const ToolBar& bar, const std::string& key) {
  const ToolButton* button = bar.button(key);
  if (button == nullptr) refuse(bar, "has no button " + key);
  return *button;
}

int press(lua_State* lua, ScenarioCase& scenario) {
  ToolBar& bar = toolBar(reached(lua, scenario));
  const std::string key = toText(lua, 2);
  const ToolButton& button = givenButton(bar, key);
  if (!button.visible) refuse(bar, "can't be pressed: its button " + key + " is invisible");
  if (!button.enabled) refuse(bar, "can't be pressed: its button " + key + " is disabled");
  act(lua, scenario, bar, [&](Windows& windows) { userPressesButton(windows, bar, key); });
  return 0;
}

// What can be asked.

int rowText(lua_State* lua, ScenarioCase& scenario) {
  const Control& control = named(lua, scenario);
  if (control.kind() == ControlKind::ComboBox) {
    pushText(lua, static_cast<const ComboBox&>(control).List(toWhole(lua, 2)));
  } else if (control.kind() == ControlKind::ListBox) {
    pushText(lua, static_cast<const ListBox&>(control).List(toWhole(lua, 2)));
  } else if (isNameList(control)) {
    pushText(lua, static_cast<const NameList&>(control).List(toWhole(lua, 2)));
  } else {
    refuse(control, "has no rows");
  }
  return 1;
}

const ListBox& namedList(lua_State* lua, ScenarioCase& scenario) {
  const Control& control = named(lua, scenario);
  if (control.kind() != ControlKind::ListBox) refuse(control, "is no list");
  return static_cast<const ListBox&>(control);
}

int selected(lua_State* lua, ScenarioCase& scenario) {
  if (const Control& control = named(lua, scenario); isNameList(control)) {
    const auto& list = static_cast<const NameList&>(control);
    lua_pushboolean(lua, givenName(lua, 2, list) == list.ListIndex() ? 1 : 0);
    return 1;
  }
  const ListBox& list = namedList(lua, scenario);
  lua_pushboolean(lua, list.Selected(rowAt(lua, 2, list)) ? 1 : 0);
  return 1;
}

int colours(lua_State* lua, ScenarioCase& scenario) {
  const ListBox& list = namedList(lua, scenario);
  const RowColours row = list.Colours(rowAt(lua, 2, list));
  lua_createtable(lua, 0, 3);
  setField(lua, "ForeColor", row.foreColor);
  setField(lua, "SelForeColor", row.selForeColor);
  setField(lua, "SelBackColor", row.selBackColor);
  return 1;
}

const ToolBar& namedToolBar(lua_State* lua, ScenarioCase& scenario) {
  const Control& control = named(lua, scenario);
  if (control.kind() != ControlKind::ToolBar) refuse(control, "is no tool bar");
  return static_cast<const ToolBar&>(control);
}

int buttons(lua_State* lua, ScenarioCase& scenario) {
  const ToolBar& bar = namedToolBar(lua, scenario);
  lua_newtable(lua);
  lua_Integer place = 0;
  for (const ToolButton& button : bar.buttons()) {
    pushText(lua, button.key);
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

int button(lua_State* lua, ScenarioCase& scenario) {
  const ToolButton& found = givenButton(namedToolBar(lua, scenario), toText(lua, 2));
  lua_createtable(lua, 0, 4);
  setField(lua, "Enabled", found.enabled);
  setField(lua, "Visible", found.visible);
  setField(lua, "Value", found.value);
  setField(lua, "ToolTip", found.toolTip);
  return 1;
}

constexpr luaL_Reg methods[] = {
    {"Click", withinCase<click>},
    {"DblClick", withinCase<doubleClick>},
    {"RightClick", withinCase<rightClick>},
    {"MouseDown", withinCase<mouseDown>},
    {"Type", withinCase<type>},
    {"Focus", withinCase<focus>},
    {"Pick", withinCase<pick>},
    {"Toggle", withinCase<toggle>},
    {"Press", withinCase<press>},
    {"List", withinCase<rowText>},
    {"Selected", withinCase<selected>},
    {"Colours", withinCase<colours>},
    {"Buttons", withinCase<buttons>},
    {"Button", withinCase<button>},
    {nullptr, nullptr},
};

}  // namespace

const luaL_Reg* controlMethods() {
  return methods;
}

}  // namespace pantrigo
