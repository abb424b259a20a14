#pragma once

#include <filesystem>
#include <memory>

#include "platform/store/connection.h"

namespace pantrigo {

/// Opens the file of a store and makes it ready: signature, length and content are checked first, then an exclusive
/// lock is taken, the log is switched on, and the indexes are rebuilt when they were made under another collation. A
/// file or a folder that can't be written opens only for reading, and the file is left as it is. Errors as
/// `Database::OpenDatabase`.
[[nodiscard]] std::unique_ptr<Connection> openStoreFile(const std::filesystem::path& file);

/// Makes a new store file, closed again when this returns; none is left behind when it fails. Errors: 75 when the file
/// exists or can't be made, 3026 when the disk is full.
void createStoreFile(const std::filesystem::path& file);

}  // namespace pantrigo
