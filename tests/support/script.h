#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>

#include "support/scenario_case.h"

namespace pantrigo {

struct Counts {
  int passed = 0;
  int failed = 0;
};

/// One script: a state of the language with the words of the scenarios, in which its cases run one after the other.
class Script {
 public:
  /// `file` is the path as it is to stand in messages.
  Script(std::string file, const StoreTemplate& storeTemplate);
  ~Script();
  Script(const Script&) = delete;
  Script& operator=(const Script&) = delete;

  /// Runs the script, prints what fails, and counts. A script that can't be run, or declares no case, counts as one
  /// failed case.
  Counts run();

  /// The script that a state of the language, or a thread of it, belongs to.
  [[nodiscard]] static Script& of(lua_State* lua);
  /// Runs the function at the second place of the stack as a case with the name at the first.
  void runCase(lua_State* lua);
  /// The case that is running; a ScriptError when none is.
  [[nodiscard]] ScenarioCase& currentCase();
  /// The folder in which the script lies.
  [[nodiscard]] std::filesystem::path folder() const;
  /// One and the same text for all equal names, for as long as the script lives.
  [[nodiscard]] const std::string& keptName(const std::string& name) { return *names_.insert(name).first; }

 private:
  void report(const std::string& context, const Failure& failure, const std::string& place);
  [[nodiscard]] Failure located(const Failure& failure) const;

  std::string file_;
  const StoreTemplate& storeTemplate_;
  lua_State* lua_;
  std::set<std::string> names_;
  std::optional<ScenarioCase> case_;
  Counts counts_;
};

/// A word of the scenarios: what its function is made of. It gives the number of results that it has put on the stack.
using Word = int (*)(lua_State*, ScenarioCase&);

/// The function of the language for a word that only works within a case.
template <Word word>
int withinCase(lua_State* lua) {
  return guardedCall(lua, [&] { return word(lua, Script::of(lua).currentCase()); });
}

}  // namespace pantrigo
