#include "platform/controls/input.h"
#include "platform/text/utf8.h"
#include "support/bind_forms.h"

namespace pantrigo {

namespace {

/// Enter in a box of several lines breaks the line where the typing stands: at the end.
void breakLine(Windows& windows, const Form& form) {
  Control* focused = form.ActiveControl();
  if (focused == nullptr || focused->kind() != ControlKind::TextBox) return;
  auto& box = static_cast<TextBox&>(*focused);
  const std::string text = box.Text() + "\r\n";
  if (box.MaxLength() == 0 || Len(text) <= box.MaxLength()) userEdits(windows, box, text);
}

int key(lua_State* lua, ScenarioCase& scenario) {
  Form& form = scenario.reachableForm(formNameAt(lua, 1));
  const int code = toWhole(lua, 2);
  scenario.act(lua, form, [&](Windows& windows) {
    if (userKey(windows, form, code) == KeyUse::Unused && code == keyReturn) breakLine(windows, form);
  });
  return 0;
}

int activate(lua_State* lua, ScenarioCase& scenario) {
  Form& form = scenario.reachableForm(formNameAt(lua, 1));
  scenario.act(lua, form, [&](Windows& windows) { windows.userActivates(form); });
  return 0;
}

int close(lua_State* lua, ScenarioCase& scenario) {
  Form& form = scenario.reachableForm(formNameAt(lua, 1));
  scenario.act(lua, form, [&](Windows& windows) { windows.userCloses(form); });
  return 0;
}

int minimise(lua_State* lua, ScenarioCase& scenario) {
  Form& form = scenario.reachableForm(formNameAt(lua, 1));
  Windows& windows = scenario.run().windows;
  scenario.act(lua, [&] { windows.userMinimises(form, true); });
  return 0;
}

constexpr luaL_Reg methods[] = {
    {"Key", withinCase<key>},     {"Activate", withinCase<activate>},
    {"Close", withinCase<close>}, {"Minimise", withinCase<minimise>},
    {nullptr, nullptr},
};

}  // namespace

const luaL_Reg* formMethods() {
  return methods;
}

}  // namespace pantrigo
