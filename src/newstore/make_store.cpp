#include "newstore/make_store.h"

#include <string_view>

#include "platform/store/durability.h"
#include "platform/store/unfinished_file.h"
#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

struct Option {
  std::string_view key;
  Value value;
};

/// Metric measures, quarters as fractions, no centi units on volumes and weights; all recipes listed at start.
const std::vector<Option>& shippedOptions() {
  static const std::vector<Option> options{
      {"Measurement", "m"},   {"PartialFractions", "4"},      {"Fractions", true},  {"UseOriginalUOM", false},
      {"Centilitres", true},  {"Centimetres", false},         {"Centigrams", true}, {"Cup", 250},
      {"Tablespoon", 4},      {"SettingsIngredients", false}, {"Kilojoules", true}, {"ShowRecipes", true},
      {"ShowToolBars", true},
  };
  return options;
}

/// The letters of the measurement systems, and of the words valid in all of them.
constexpr std::string_view unitTypes = "miua";

/// Most characters of a unit word.
constexpr std::size_t longestUnitWord = 15;

struct UnitWord {
  std::string type;
  std::string description;
};

UnitWord toUnitWord(const std::string& line) {
  const auto refuse = [&line](const std::string& reason) {
    throw RuntimeError(3421, "Not a unit word, " + reason + ": " + line);
  };
  const std::size_t tab = line.find('\t');
  if (tab == std::string::npos) refuse("no tab behind its letter");
  UnitWord word{line.substr(0, tab), line.substr(tab + 1)};
  if (word.type.size() != 1 || unitTypes.find(word.type) == std::string_view::npos) {
    refuse("its letter is none of m, i, u and a");
  }
  if (Trim(word.description).empty()) refuse("no word behind its letter");
  if (Len(word.description) > longestUnitWord) refuse("it has more than 15 characters");
  return word;
}

void openRecordsets(Global& global) {
  for (const CategoryKind& kind : categoryKinds()) global.*kind.cursor = global.gDatabase.OpenRecordset(kind.name);
  global.gSystem = global.gDatabase.OpenRecordset("System");
  global.gRecipe = global.gDatabase.OpenRecordset("Recipe");
}

void loadRecipes(Global& global, const Files& files, const std::filesystem::path& exchangeFile,
                 NewStoreResult& result) {
  openRecordsets(global);
  CheckpointAtEnd updates(global.gDatabase);
  TextReader file(files, exchangeFile.string());
  ImportEvents events;
  events.warning = [&](const std::string& line) { result.warnings.push_back(line); };
  const std::string pictures = std::filesystem::absolute(exchangeFile).parent_path().string();
  ExchangeReader reader(global, files, pictures, DuplicateTitles::CreateUnique, std::move(events));
  reader.walk(file);
  reader.saveCounters();
  updates.finish();
  result.counts = reader.counts();
}

}  // namespace

void writeShippedOptions(Database& database) {
  Recordset system = database.OpenRecordset("System");
  system.Edit();
  for (const Option& option : shippedOptions()) system.Set(option.key, option.value);
  system.Update();
  system.Close();
}

long loadUnitWords(Database& database, const Files& files, const std::filesystem::path& file) {
  Recordset units = database.OpenRecordset("Unit");
  TextReader lines(files, file.string());
  long count = 0;
  while (!lines.Eof()) {
    const std::string line = lines.LineInput();
    if (Trim(line).empty()) continue;
    const UnitWord word = toUnitWord(line);
    units.AddNew();
    units.Set("Type", word.type);
    units.Set("Description", word.description);
    units.Update();
    ++count;
  }
  units.Close();
  return count;
}

namespace {

NewStoreResult fillStore(const NewStore& task, const Files& files) {
  NewStoreResult result;
  Global global;
  global.gDatabase = Database::OpenDatabase(task.store);
  global.gStartDir = std::filesystem::absolute(task.store).parent_path().string();
  writeShippedOptions(global.gDatabase);
  if (!task.unitWords.empty()) result.unitWords = loadUnitWords(global.gDatabase, files, task.unitWords);
  if (!task.exchangeFile.empty()) loadRecipes(global, files, task.exchangeFile, result);
  global.gDatabase.Close();
  return result;
}

}  // namespace

NewStoreResult makeStore(const NewStore& task) {
  const Files files(std::filesystem::current_path());
  Database::createStore(task.store);
  // A store that could not be filled would stand in the way of the next try.
  UnfinishedFile unfinished(task.store);
  NewStoreResult result = fillStore(task, files);
  unfinished.keep();
  return result;
}

}  // namespace pantrigo
