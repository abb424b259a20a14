#include "support/scenario_case.h"

#include "core/start_up.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

constexpr const char* notRunning = "the program doesn't run";

}  // namespace

ScenarioCase::ScenarioCase(const StoreTemplate& storeTemplate)
    : storeTemplate_(storeTemplate), idleStore_(folder_.path() / storeName), toolkit_(*this) {}

// The run.

void ScenarioCase::start(lua_State* lua) {
  if (running()) throw ScriptError("the program runs already");
  if (depth_ > 0) throw ScriptError("the run that ended is still being left");
  releaseStore();
  forms_.clear();
  program_ = std::make_unique<Program>(toolkit_, folder());
  errorNoted_ = false;
  listControls();
  toolkit_.beginRun();
  enter(lua, [this] { program_->start(); });
}

void ScenarioCase::stop(lua_State* lua) {
  if (!running()) return;
  Run& live = run();
  act(lua, [&] { live.windows.userCloses(live.frmBrowse); });
  if (running()) act(lua, [&] { live.loop.End(); });
}

Run& ScenarioCase::run() {
  if (!running()) throw ScriptError(notRunning);
  return program_->run();
}

void ScenarioCase::act(lua_State* lua, const std::function<void()>& event) {
  Run& live = run();
  enter(lua, [&] { live.loop.dispatch(event); });
}

void ScenarioCase::act(lua_State* lua, Form& form, const std::function<void(Windows&)>& event) {
  Windows& windows = run().windows;
  act(lua, [&] {
    windows.userMinimises(form, false);
    event(windows);
  });
}

void ScenarioCase::enter(lua_State* lua, const std::function<void()>& event) {
  if (failure_) throw LeaveFunction();
  lua_State* caller = std::exchange(caller_, lua);
  ++depth_;
  event();
  --depth_;
  caller_ = caller;
  leaveWhenOver(lua);
}

void ScenarioCase::leaveWhenOver(lua_State* lua) {
  if (running()) return;
  const std::optional<RuntimeError>& error = program_->run().loop.error();
  if (error && !errorNoted_) {
    errorNoted_ = true;
    error_ = {*error, runningPlace(lua)};
  }
  // The end of a program sends a print job that is still open.
  if (depth_ == 0) toolkit_.recorder().EndDoc();
  if (depth_ > 0 || failure_ || error_) throw LeaveFunction();
}

// The forms and controls.

void ScenarioCase::listControls() {
  for (Form* listed : program_->run().forms()) {
    FormControls& entry = forms_[listed->Name()];
    entry.form = listed;
    for (Control* control : listed->controls()) entry.controls[control->Name()] = control;
  }
}

const ScenarioCase::FormControls& ScenarioCase::entryOf(const std::string& formName) const {
  if (!running()) throw ScriptError(notRunning);
  const auto found = forms_.find(formName);
  if (found == forms_.end()) throw ScriptError("there is no form " + formName);
  return found->second;
}

Form& ScenarioCase::form(const std::string& name) const {
  return *entryOf(name).form;
}

Form& ScenarioCase::loadedForm(const std::string& name) const {
  Form& found = form(name);
  if (!found.Loaded()) throw ScriptError(name + " isn't loaded");
  return found;
}

bool ScenarioCase::hasControl(const std::string& formName, const std::string& name) const {
  return entryOf(formName).controls.contains(name);
}

Control& ScenarioCase::control(const std::string& formName, const std::string& name) const {
  const auto& controls = entryOf(formName).controls;
  const auto found = controls.find(name);
  if (found == controls.end()) throw ScriptError(formName + " has nothing named " + name);
  if (!found->second->form().Loaded()) throw ScriptError(formName + " isn't loaded");
  return *found->second;
}

Form& ScenarioCase::reachableForm(const std::string& name) const {
  Form& found = loadedForm(name);
  checkReachable(found);
  return found;
}

void ScenarioCase::checkReachable(const Form& form) const {
  if (!form.Visible()) throw ScriptError(form.Name() + " isn't on show");
  if (program_->run().windows.blocked(form))
    throw ScriptError(form.Name() + " can't be reached: another form is modal");
}

Control& ScenarioCase::reachableControl(const std::string& formName, const std::string& name) const {
  Control& found = control(formName, name);
  checkReachable(found.form());
  for (const Control* at = &found; at != nullptr; at = at->container()) {
    const char* reason = !at->Visible() ? "invisible" : !at->Enabled() ? "disabled" : nullptr;
    if (reason != nullptr)
      throw ScriptError(formName + "." + name + " can't be reached: " + at->Name() + " is " + reason);
  }
  return found;
}

// The store.

void ScenarioCase::createStore(const RawRow& system) {
  if (running()) throw ScriptError("the program runs");
  releaseStore();
  storeTemplate_.copyTo(idleStore_.file());
  if (!system.empty()) changeSystem(database(), system);
}

const Database& ScenarioCase::database() {
  // A run that ended by an error under a modal function still holds the store until it has unwound.
  if (program_ != nullptr && program_->run().GLOBAL.gDatabase.isOpen()) return program_->run().GLOBAL.gDatabase;
  return idleStore_.database();
}

// The result.

void ScenarioCase::noteFailure(const std::string& place, const std::string& text) {
  if (!failure_) failure_ = {place, text};
}

void ScenarioCase::fail(lua_State* lua, const std::string& text) {
  noteFailure(runningPlace(lua), text);
  throw LeaveFunction();
}

std::optional<RuntimeError> ScenarioCase::takeError() {
  if (!error_) return std::nullopt;
  const RuntimeError error = error_->error;
  error_.reset();
  return error;
}

void ScenarioCase::takeScriptError(lua_State* lua) {
  if (!isLeaveMark(lua, -1)) noteFailure({}, errorText(lua));
  lua_pop(lua, 1);
}

void ScenarioCase::stopQuietly(lua_State* lua) {
  try {
    stop(lua);
  } catch (const LeaveFunction&) {
    // What there is to say of it stands in the failure or the error.
  }
  if (!running()) return;
  EventLoop& loop = program_->run().loop;
  loop.dispatch([&] { loop.End(); });
}

void ScenarioCase::finish(lua_State* lua) {
  stopQuietly(lua);
  if (error_) {
    noteFailure(error_->place, "expected no run-time error, got error " +
                                   plainText(static_cast<long>(error_->error.number())) + ": " + error_->error.text());
  }
  if (const std::string text = leftOver(); !text.empty()) noteFailure(runningPlace(lua), text);
}

std::string ScenarioCase::leftOver() const {
  for (const auto& [name, functions] : modals_) {
    if (!functions.empty()) return "expected " + name + " to be shown modally, but it was not, or not that often";
  }
  if (!answers_.empty())
    return "expected all answers to be asked for, but " + plainText(static_cast<long>(answers_.size())) +
           " are left over";
  if (checks_ == 0) return "expected at least one check, got none";
  return {};
}

}  // namespace pantrigo
