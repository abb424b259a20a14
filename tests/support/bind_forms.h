#pragma once

#include "support/script.h"

namespace pantrigo {

/// A control as a script has it: by its names, so that it stands for the control of whatever run is going on.
struct ControlName {
  const std::string* form;
  const std::string* control;
};

/// The name of the form, or of the control, that stands at a place of the stack; a Lua error when it is something else.
[[nodiscard]] const std::string& formNameAt(lua_State* lua, int place);
[[nodiscard]] const ControlName& controlNameAt(lua_State* lua, int place);

/// What a person can do to a control, and what can be asked of its rows and buttons; what can be done to a form.
[[nodiscard]] const luaL_Reg* controlMethods();
[[nodiscard]] const luaL_Reg* formMethods();

}  // namespace pantrigo
