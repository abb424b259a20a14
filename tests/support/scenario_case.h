#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "program/program.h"
#include "support/case_folder.h"
#include "support/lua_values.h"
#include "support/script_toolkit.h"
#include "support/store_access.h"

namespace pantrigo {

/// A run-time error that ended the program, and the line of the script under which it did.
struct UnexpectedError {
  RuntimeError error;
  std::string place;
};

/// One case of a script: its folder, its store, the program that runs over them, and the person at the keyboard, who
/// does what the script has told in advance.
class ScenarioCase : private Person {
 public:
  explicit ScenarioCase(const StoreTemplate& storeTemplate);
  ~ScenarioCase() override = default;
  ScenarioCase(const ScenarioCase&) = delete;
  ScenarioCase& operator=(const ScenarioCase&) = delete;

  [[nodiscard]] ScriptToolkit& toolkit() { return toolkit_; }
  [[nodiscard]] const std::filesystem::path& folder() const { return folder_.path(); }

  // The run.

  void start(lua_State* lua);
  /// Closes the main window as a user does; nothing when no program runs.
  void stop(lua_State* lua);
  [[nodiscard]] bool running() const { return program_ != nullptr && !program_->ended(); }
  /// A ScriptError when no program runs.
  [[nodiscard]] Run& run();

  /// Lets something enter the program as an event. Throws LeaveFunction when it ended the run under a function that the
  /// program was waiting for, or by an error, or failed the case.
  void act(lua_State* lua, const std::function<void()>& event);
  /// The same, done by a person to a form, which is restored first when it is minimised.
  void act(lua_State* lua, Form& form, const std::function<void(Windows&)>& event);

  // The forms and controls of the run, by name; a ScriptError when there is none.

  [[nodiscard]] Form& form(const std::string& name) const;
  /// The same, of a loaded form.
  [[nodiscard]] Form& loadedForm(const std::string& name) const;
  [[nodiscard]] bool hasControl(const std::string& formName, const std::string& name) const;
  /// Of a loaded form.
  [[nodiscard]] Control& control(const std::string& formName, const std::string& name) const;
  /// A ScriptError also when a person can't reach it now.
  [[nodiscard]] Form& reachableForm(const std::string& name) const;
  [[nodiscard]] Control& reachableControl(const std::string& formName, const std::string& name) const;

  // The store and the files.

  void createStore(const RawRow& system);
  /// The run's own connection, else one that is kept until the next run or look at a file.
  [[nodiscard]] const Database& database();
  /// Nothing but a run of the program holds the store any more.
  void releaseStore() { idleStore_.release(); }

  // What the person does when the program asks.

  void onModal(const std::string& formName, LuaFunction function) { modals_[formName].push_back(std::move(function)); }
  void onTurn(LuaFunction function);
  void addAnswer(BoxAnswer answer) { answers_.push_back(answer); }

  // The result.

  void countCheck() { ++checks_; }
  /// Fails the case here and leaves the function.
  [[noreturn]] void fail(lua_State* lua, const std::string& text);
  /// The error that ended the run, once.
  [[nodiscard]] std::optional<RuntimeError> takeError();
  /// Takes the error that a function of the script ended with off the stack: the case has failed, unless it was left.
  void takeScriptError(lua_State* lua);
  /// Stops a run that is left, and looks for what is left over.
  void finish(lua_State* lua);
  [[nodiscard]] const std::optional<Failure>& failure() const { return failure_; }

 private:
  struct FormControls {
    Form* form = nullptr;
    std::unordered_map<std::string, Control*> controls;
  };

  void attend(Form& form, const std::function<bool()>& over) override;
  BoxAnswer answer(const MessageBox& box) override;
  void turn() override;

  void listControls();
  [[nodiscard]] const FormControls& entryOf(const std::string& formName) const;
  void checkReachable(const Form& form) const;
  void enter(lua_State* lua, const std::function<void()>& event);
  void leaveWhenOver(lua_State* lua);
  void callBack(const LuaFunction& function, int turn);
  [[noreturn]] void abandon(const std::string& text);
  void noteFailure(const std::string& place, const std::string& text);
  void stopQuietly(lua_State* lua);
  [[nodiscard]] std::string leftOver() const;

  CaseFolder folder_;
  const StoreTemplate& storeTemplate_;
  IdleStore idleStore_;
  ScriptToolkit toolkit_;
  std::unique_ptr<Program> program_;
  std::unordered_map<std::string, FormControls> forms_;

  /// The thread of the script that called the program last, and how many such calls are running within each other.
  lua_State* caller_ = nullptr;
  int depth_ = 0;

  std::map<std::string, std::deque<LuaFunction>> modals_;
  std::deque<BoxAnswer> answers_;
  std::shared_ptr<LuaFunction> onTurn_;
  int turns_ = 0;

  int checks_ = 0;
  std::optional<Failure> failure_;
  std::optional<UnexpectedError> error_;
  bool errorNoted_ = false;
};

}  // namespace pantrigo
