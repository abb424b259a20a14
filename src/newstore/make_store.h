#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "exchange/exchange_reader.h"

namespace pantrigo {

/// What a new store is made of.
struct NewStore {
  std::filesystem::path store;
  /// Lines of a type letter, a tab and a unit word; empty for a store without unit words.
  std::filesystem::path unitWords;
  /// Recipes to load; empty for none.
  std::filesystem::path exchangeFile;
};

struct NewStoreResult {
  ImportCounts counts;
  long unitWords = 0;
  std::vector<std::string> warnings;
};

/// Makes the store, with the options of a new cookbook. Pictures of the exchange file go beside the store. Error 75
/// when the file exists already, 3026 when the disk is full; errors of the files and of the exchange file. After any
/// error no store is left behind.
NewStoreResult makeStore(const NewStore& task);

/// Puts the unit words of a file into the open store; gives their number. Error 3421 for a line that is none: a letter
/// (m, i, u or a), a tab, and a word of 1 to 15 characters.
long loadUnitWords(Database& database, const Files& files, const std::filesystem::path& file);

/// The options of a new cookbook, written into the one row of `System`.
void writeShippedOptions(Database& database);

}  // namespace pantrigo
