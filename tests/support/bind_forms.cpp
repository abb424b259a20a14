#include "support/bind_forms.h"

#include "support/bindings.h"
#include "support/properties.h"

namespace pantrigo {

namespace {

// Names of the kinds of objects that scripts get.
constexpr char formKind[] = "form";
constexpr char controlKind[] = "control";

/// Writes a property as the code of a form would, the value at the third place of the stack.
template <class Owner>
void writeProperty(lua_State* lua, ScenarioCase& scenario, Owner& owner, const Property<Owner>& property,
                   const std::string& name) {
  if (const auto* truth = std::get_if<void (*)(Owner&, bool)>(&property.set)) {
    const bool value = toTruth(lua, 3);
    scenario.act(lua, [&] { (*truth)(owner, value); });
  } else if (const auto* number = std::get_if<void (*)(Owner&, double)>(&property.set)) {
    const double value = toNumber(lua, 3);
    scenario.act(lua, [&] { (*number)(owner, value); });
  } else if (const auto* text = std::get_if<void (*)(Owner&, const std::string&)>(&property.set)) {
    const std::string value = toText(lua, 3);
    scenario.act(lua, [&] { (*text)(owner, value); });
  } else {
    throw ScriptError(name + " can only be read");
  }
}

/// Puts the method that the metatable of the first place has on the stack; gives whether there is one.
bool pushMethod(lua_State* lua, const std::string& name) {
  lua_getiuservalue(lua, 1, 1);
  return lua_getfield(lua, -1, name.c_str()) != LUA_TNIL;
}

/// A new object with the methods of its kind at hand.
void* newObject(lua_State* lua, std::size_t size, const char* kind) {
  void* object = lua_newuserdatauv(lua, size, 1);
  luaL_getmetatable(lua, kind);
  lua_getfield(lua, -1, "methods");
  lua_setiuservalue(lua, -3, 1);
  lua_setmetatable(lua, -2);
  return object;
}

void pushControl(lua_State* lua, const std::string& form, const std::string& name) {
  auto* object = static_cast<ControlName*>(newObject(lua, sizeof(ControlName), controlKind));
  *object = {&form, &Script::of(lua).keptName(name)};
}

/// `Loaded` and `Visible` of a form can be read at all times, also while no program runs.
bool stateOf(ScenarioCase& scenario, const std::string& form, bool (Form::*state)() const) {
  return scenario.running() && (scenario.form(form).*state)();
}

int readForm(lua_State* lua, ScenarioCase& scenario) {
  const std::string& form = formNameAt(lua, 1);
  const std::string name = toText(lua, 2);
  if (name == "Loaded" || name == "Visible") {
    lua_pushboolean(lua, stateOf(scenario, form, name == "Loaded" ? &Form::Loaded : &Form::Visible) ? 1 : 0);
  } else if (const Property<Form>* property = findProperty(name)) {
    pushValue(lua, property->get(scenario.loadedForm(form)));
  } else if (pushMethod(lua, name)) {
    return 1;
  } else {
    if (!scenario.hasControl(form, name)) throw ScriptError(form + " has nothing named " + name);
    pushControl(lua, form, name);
  }
  return 1;
}

void showOrHide(lua_State* lua, ScenarioCase& scenario, Form& form) {
  const bool visible = toTruth(lua, 3);
  Windows& windows = scenario.run().windows;
  scenario.act(lua, [&] { visible ? windows.Show(form) : windows.Hide(form); });
}

int writeForm(lua_State* lua, ScenarioCase& scenario) {
  const std::string& form = formNameAt(lua, 1);
  const std::string name = toText(lua, 2);
  if (name == "Visible") {
    showOrHide(lua, scenario, scenario.form(form));
    return 0;
  }
  const Property<Form>* property = findProperty(name);
  if (property == nullptr) throw ScriptError(form + "." + name + " can't be set");
  writeProperty(lua, scenario, scenario.loadedForm(form), *property, form + "." + name);
  return 0;
}

int readControl(lua_State* lua, ScenarioCase& scenario) {
  const ControlName& names = controlNameAt(lua, 1);
  const std::string name = toText(lua, 2);
  if (pushMethod(lua, name)) return 1;
  const Control& control = scenario.control(*names.form, *names.control);
  const Property<Control>* property = findProperty(control, name);
  if (property == nullptr) throw ScriptError(*names.form + "." + *names.control + " has nothing named " + name);
  pushValue(lua, property->get(control));
  return 1;
}

int writeControl(lua_State* lua, ScenarioCase& scenario) {
  const ControlName& names = controlNameAt(lua, 1);
  const std::string name = toText(lua, 2);
  Control& control = scenario.control(*names.form, *names.control);
  const Property<Control>* property = findProperty(control, name);
  const std::string fullName = *names.form + "." + *names.control + "." + name;
  if (property == nullptr) throw ScriptError(fullName + " can't be set");
  writeProperty(lua, scenario, control, *property, fullName);
  return 0;
}

int showForm(lua_State* lua) {
  pushText(lua, formNameAt(lua, 1));
  return 1;
}

int showControl(lua_State* lua) {
  const ControlName& names = controlNameAt(lua, 1);
  pushText(lua, *names.form + "." + *names.control);
  return 1;
}

struct KindOfObject {
  const char* name;
  lua_CFunction read;
  lua_CFunction write;
  lua_CFunction show;
  const luaL_Reg* methods;
};

void makeKind(lua_State* lua, const KindOfObject& kind) {
  luaL_newmetatable(lua, kind.name);
  lua_pushcfunction(lua, kind.read);
  lua_setfield(lua, -2, "__index");
  lua_pushcfunction(lua, kind.write);
  lua_setfield(lua, -2, "__newindex");
  lua_pushcfunction(lua, kind.show);
  lua_setfield(lua, -2, "__tostring");
  lua_newtable(lua);
  luaL_setfuncs(lua, kind.methods, 0);
  lua_setfield(lua, -2, "methods");
  lua_pop(lua, 1);
}

/// The names of all forms that the program has.
std::vector<std::string> formNames() {
  class Nobody : public Person {
    void attend(Form&, const std::function<bool()>&) override {}
    BoxAnswer answer(const MessageBox&) override { return BoxAnswer::OK; }
    void turn() override {}
  };
  Nobody nobody;
  ScriptToolkit toolkit(nobody);
  Run run(toolkit, std::filesystem::temp_directory_path());
  std::vector<std::string> names;
  for (const Form* form : run.forms()) names.push_back(form->Name());
  return names;
}

}  // namespace

const std::string& formNameAt(lua_State* lua, int place) {
  return **static_cast<const std::string**>(luaL_checkudata(lua, place, formKind));
}

const ControlName& controlNameAt(lua_State* lua, int place) {
  return *static_cast<const ControlName*>(luaL_checkudata(lua, place, controlKind));
}

void bindForms(lua_State* lua) {
  makeKind(lua, {formKind, withinCase<readForm>, withinCase<writeForm>, showForm, formMethods()});
  makeKind(lua, {controlKind, withinCase<readControl>, withinCase<writeControl>, showControl, controlMethods()});
  for (const std::string& name : formNames()) {
    auto* object = static_cast<const std::string**>(newObject(lua, sizeof(const std::string*), formKind));
    *object = &Script::of(lua).keptName(name);
    lua_setglobal(lua, name.c_str());
  }
}

}  // namespace pantrigo
