#pragma once

#include <lua.hpp>

namespace pantrigo {

/// The shared routines that scripts can call by name. In-out arguments come back as results, in order.
[[nodiscard]] const luaL_Reg* globalRoutines();

}  // namespace pantrigo
