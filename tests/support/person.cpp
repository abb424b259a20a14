// What the person of a case does when the program waits for one.

#include "support/scenario_case.h"

namespace pantrigo {

void ScenarioCase::attend(Form& form, const std::function<bool()>& over) {
  if (over()) return;
  std::deque<LuaFunction>& functions = modals_[form.Name()];
  if (functions.empty()) abandon(form.Name() + " was shown modally, and no function waits for it");
  const LuaFunction function = std::move(functions.front());
  functions.pop_front();
  callBack(function, 0);
  if (over()) return;
  Run& live = program_->run();
  live.loop.dispatch([&] { live.windows.userCloses(form); });
  if (!over()) abandon(form.Name() + " stays open after a click on its close mark");
}

BoxAnswer ScenarioCase::answer(const MessageBox& box) {
  const bool plainWaits = !answers_.empty() && answers_.front() == BoxAnswer::OK;
  if (!asksYesNo(box.style)) {
    if (plainWaits) answers_.pop_front();
    return BoxAnswer::OK;
  }
  if (answers_.empty()) abandon("no answer waits for the question \"" + box.text + "\"");
  if (plainWaits) abandon("the answer OK waits for the question \"" + box.text + "\"");
  const BoxAnswer pressed = answers_.front();
  answers_.pop_front();
  return pressed;
}

void ScenarioCase::onTurn(LuaFunction function) {
  onTurn_ = function.isSet() ? std::make_shared<LuaFunction>(std::move(function)) : nullptr;
  turns_ = 0;
}

void ScenarioCase::turn() {
  // The function may name another one for the next turn, or none.
  const std::shared_ptr<LuaFunction> function = onTurn_;
  if (function != nullptr) callBack(*function, ++turns_);
}

/// Calls a function of the script from within the program. When it fails, the run ends, and the caller unwinds.
void ScenarioCase::callBack(const LuaFunction& function, int turn) {
  lua_State* lua = caller_;
  luaL_checkstack(lua, 4, "too many calls within each other");
  function.push(lua);
  if (turn > 0) lua_pushinteger(lua, turn);
  if (lua_pcall(lua, turn > 0 ? 1 : 0, 0, 0) == LUA_OK) return;
  takeScriptError(lua);
  if (failure_ && running()) program_->run().loop.End();
}

/// Fails the case at the line that called the program, and ends the run.
void ScenarioCase::abandon(const std::string& text) {
  noteFailure(runningPlace(caller_), text);
  program_->run().loop.End();
}

}  // namespace pantrigo
