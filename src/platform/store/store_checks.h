#pragma once

#include <filesystem>

#include "platform/store/connection.h"

struct sqlite3_file;

namespace pantrigo {

/// What the first bytes of a store's file tell.
struct StoreHeader {
  /// Whether it was last written under the write-ahead log. A file at rest is so only after a crash.
  bool isWriteAhead;
};

/// The engine's own handle of the file: another one, once closed, would take the locks of this process on the file with
/// it.
[[nodiscard]] sqlite3_file* engineFileOf(const Connection& connection);

/// Whether a crash left changes beside the file that it does not hold yet.
[[nodiscard]] bool hasLog(const std::filesystem::path& file);

/// Reads the first bytes of the file, past the engine. Error 3343 when they are not those of a store, or the file is
/// shorter than they say or no whole number of pages, and no log is there to mend it.
[[nodiscard]] StoreHeader checkHeader(const Connection& connection, const std::filesystem::path& file);

/// Checks that all is there that the program goes by. Nothing is written. Errors: 3343 for the file of another program
/// or of a later version, 3078 for a missing table, 3265 for a missing field, 3015 for an index that is missing or has
/// other keys, 3021 when the row of options is missing.
void checkContent(Connection& connection);

}  // namespace pantrigo
