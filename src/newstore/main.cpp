#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "newstore/make_store.h"
#include "platform/text/errors.h"

namespace {

constexpr const char* usage =
    "usage: newstore STORE [--units FILE] [EXCHANGE-FILE]\n"
    "Makes a new store, puts the unit words of FILE into it, and loads the recipes of the exchange file.\n"
    "An existing file is never overwritten.\n";

std::optional<pantrigo::NewStore> readArguments(int count, char** values) {
  pantrigo::NewStore task;
  std::vector<std::string> names;
  for (int place = 1; place < count; ++place) {
    const std::string word = values[place];
    if (word == "--units") {
      if (++place == count) return std::nullopt;
      task.unitWords = values[place];
    } else if (word.starts_with("--")) {
      return std::nullopt;
    } else {
      names.push_back(word);
    }
  }
  if (names.empty() || names.size() > 2) return std::nullopt;
  task.store = names[0];
  if (names.size() == 2) task.exchangeFile = names[1];
  return task;
}

}  // namespace

int main(int argumentCount, char** argumentValues) {
  const std::optional<pantrigo::NewStore> task = readArguments(argumentCount, argumentValues);
  if (!task) {
    std::cerr << usage;
    return 2;
  }
  try {
    const pantrigo::NewStoreResult result = pantrigo::makeStore(*task);
    for (const std::string& warning : result.warnings) std::cerr << warning << '\n';
    std::cout << task->store.string() << ": " << result.counts.added << " recipes of " << result.counts.read
              << " read, " << result.unitWords << " unit words, " << result.counts.warnings << " warnings\n";
  } catch (const pantrigo::RuntimeError& error) {
    std::cerr << "newstore: error " << error.number() << ": " << error.text() << '\n';
    return 1;
  } catch (const std::exception& error) {
    std::cerr << "newstore: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
