#include <algorithm>
#include <fstream>
#include <iterator>

#include "support/bindings.h"
#include "support/bitmap_file.h"
#include "support/script.h"

namespace pantrigo {

namespace {

namespace fs = std::filesystem;

/// The path of a file of the case; the store is at rest when it is looked at.
fs::path caseFile(lua_State* lua, ScenarioCase& scenario, int place) {
  scenario.releaseStore();
  return scenario.folder() / toText(lua, place);
}

void writeBytes(const fs::path& file, const std::string& bytes) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream << bytes;
  stream.close();
  if (!stream) throw ScriptError("can't write " + file.string());
}

int writeFile(lua_State* lua, ScenarioCase& scenario) {
  writeBytes(caseFile(lua, scenario, 1), toText(lua, 2));
  return 0;
}

int readFile(lua_State* lua, ScenarioCase& scenario) {
  const fs::path file = caseFile(lua, scenario, 1);
  std::ifstream stream(file, std::ios::binary);
  if (!stream || !fs::is_regular_file(file)) {
    lua_pushnil(lua);
    return 1;
  }
  pushText(lua, std::string(std::istreambuf_iterator<char>(stream), {}));
  return 1;
}

int fileExists(lua_State* lua, ScenarioCase& scenario) {
  lua_pushboolean(lua, fs::exists(caseFile(lua, scenario, 1)) ? 1 : 0);
  return 1;
}

int removeFile(lua_State* lua, ScenarioCase& scenario) {
  fs::remove_all(caseFile(lua, scenario, 1));
  return 0;
}

int listFiles(lua_State* lua, ScenarioCase& scenario) {
  scenario.releaseStore();
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(scenario.folder())) {
    std::string name = entry.path().filename().string();
    if (!isSideFile(name)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  lua_newtable(lua);
  lua_Integer place = 0;
  for (const std::string& name : names) {
    pushText(lua, name);
    lua_rawseti(lua, -2, ++place);
  }
  return 1;
}

int filePath(lua_State* lua, ScenarioCase& scenario) {
  pushText(lua, (scenario.folder() / toText(lua, 1)).string());
  return 1;
}

int makeFolder(lua_State* lua, ScenarioCase& scenario) {
  fs::create_directories(caseFile(lua, scenario, 1));
  return 0;
}

int copyFile(lua_State* lua, ScenarioCase& scenario) {
  const fs::path source = Script::of(lua).folder() / toText(lua, 1);
  fs::copy_file(source, caseFile(lua, scenario, 2), fs::copy_options::overwrite_existing);
  return 0;
}

std::uint8_t colourPart(lua_State* lua, int place) {
  const int part = toWhole(lua, place);
  if (part < 0 || part > 255) throw ScriptError("a colour's part from 0 to 255 expected, got " + shown(lua, place));
  return static_cast<std::uint8_t>(part);
}

int writeBitmap(lua_State* lua, ScenarioCase& scenario) {
  const BitmapSize size{toWhole(lua, 2), toWhole(lua, 3)};
  if (size.width <= 0 || size.height <= 0) throw ScriptError("a bitmap has a width and a height");
  const BitmapColour colour{colourPart(lua, 4), colourPart(lua, 5), colourPart(lua, 6)};
  writeBytes(caseFile(lua, scenario, 1), makeBitmap(size, colour));
  return 0;
}

constexpr luaL_Reg words[] = {
    {"write", withinCase<writeFile>},   {"read", withinCase<readFile>},
    {"exists", withinCase<fileExists>}, {"remove", withinCase<removeFile>},
    {"list", withinCase<listFiles>},    {"path", withinCase<filePath>},
    {"mkdir", withinCase<makeFolder>},  {"copy", withinCase<copyFile>},
    {"bmp", withinCase<writeBitmap>},   {nullptr, nullptr},
};

}  // namespace

void bindFiles(lua_State* lua) {
  luaL_newlib(lua, words);
  lua_setglobal(lua, "file");
}

}  // namespace pantrigo
