#include "support/script.h"

#include <iostream>

#include "support/bindings.h"

namespace pantrigo {

namespace {

/// The short name under which the language itself puts a script's lines into its messages.
std::string shortName(const std::string& file) {
  lua_State* lua = luaL_newstate();
  luaL_loadbuffer(lua, "", 0, ("@" + file).c_str());
  lua_Debug chunk;
  lua_getinfo(lua, ">S", &chunk);
  std::string name = chunk.short_src;
  lua_close(lua);
  return name;
}

/// Holds a case in its place, for as long as it runs.
class CaseScope {
 public:
  CaseScope(std::optional<ScenarioCase>& place, const StoreTemplate& storeTemplate) : place_(place) {
    place_.emplace(storeTemplate);
  }
  ~CaseScope() { place_.reset(); }
  CaseScope(const CaseScope&) = delete;
  CaseScope& operator=(const CaseScope&) = delete;

 private:
  std::optional<ScenarioCase>& place_;
};

}  // namespace

Script::Script(std::string file, const StoreTemplate& storeTemplate)
    : file_(std::move(file)), storeTemplate_(storeTemplate), lua_(luaL_newstate()) {
  *static_cast<Script**>(lua_getextraspace(lua_)) = this;
  luaL_openlibs(lua_);
  bindAll(lua_);
}

Script::~Script() {
  case_.reset();
  lua_close(lua_);
}

Script& Script::of(lua_State* lua) {
  return **static_cast<Script**>(lua_getextraspace(lua));
}

std::filesystem::path Script::folder() const {
  return std::filesystem::absolute(file_).parent_path();
}

ScenarioCase& Script::currentCase() {
  if (!case_) throw ScriptError("only a case can do this");
  return *case_;
}

Counts Script::run() {
  const bool ran = luaL_loadfile(lua_, file_.c_str()) == LUA_OK && lua_pcall(lua_, 0, 0, 0) == LUA_OK;
  if (!ran) {
    report("outside all cases", {{}, errorText(lua_)}, file_ + ":1");
    ++counts_.failed;
  } else if (counts_.passed + counts_.failed == 0) {
    report("outside all cases", {{}, "expected at least one case, got none"}, file_ + ":1");
    ++counts_.failed;
  }
  return counts_;
}

void Script::runCase(lua_State* lua) {
  const std::string name = toText(lua, 1);
  luaL_checktype(lua, 2, LUA_TFUNCTION);
  if (case_) throw ScriptError("a case within a case");
  const CaseScope scope(case_, storeTemplate_);
  lua_pushvalue(lua, 2);
  if (lua_pcall(lua, 0, 0, 0) != LUA_OK) case_->takeScriptError(lua);
  case_->finish(lua);
  if (case_->failure()) {
    ++counts_.failed;
    report("case " + name, *case_->failure(), runningPlace(lua));
  } else {
    ++counts_.passed;
  }
}

void Script::report(const std::string& context, const Failure& failure, const std::string& place) {
  const Failure known = located(failure);
  std::cout << (known.place.empty() ? place : known.place) << ": " << context << ": " << known.text << std::endl;
}

/// Takes "NAME:LINE: " off the front of a message of the language, as the place of the failure.
Failure Script::located(const Failure& failure) const {
  const std::string prefix = shortName(file_) + ":";
  if (!failure.place.empty() || !failure.text.starts_with(prefix)) return failure;
  const std::size_t end = failure.text.find_first_not_of("0123456789", prefix.size());
  if (end == std::string::npos || failure.text.compare(end, 2, ": ") != 0) return failure;
  return {file_ + ":" + failure.text.substr(prefix.size(), end - prefix.size()), failure.text.substr(end + 2)};
}

}  // namespace pantrigo
