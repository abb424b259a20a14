#include "platform/store/opening.h"

#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "platform/store/store_checks.h"
#include "platform/store/store_errors.h"
#include "platform/store/store_file_content.h"
#include "platform/store/unfinished_file.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

namespace fs = std::filesystem;

fs::path folderOf(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

/// Whether the user may write, and anybody may: the second question tells for a superuser, whom no permission binds.
bool isWritable(const fs::path& path) {
  constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code failure;
  const fs::perms permissions = fs::status(path, failure).permissions();
  return !failure && (permissions & anyWrite) != fs::perms::none && access(path.c_str(), W_OK) == 0;
}

void checkFileExists(const fs::path& file) {
  std::error_code failure;
  const fs::file_status status = fs::status(file, failure);
  if (status.type() == fs::file_type::not_found) throw RuntimeError(store_error::fileNotFound);
  if (failure || !fs::is_regular_file(status)) throw RuntimeError(store_error::cannotOpen);
}

/// Keeps the engine from touching the file when the connection closes, until the file has shown to be a store.
void setCheckpointOnClose(const Connection& connection, bool allowed) {
  sqlite3_db_config(connection.handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, allowed ? 0 : 1, nullptr);
}

/// Name of a file for the engine's "immutable" way of opening, which asks for no lock and no side file.
std::string immutableName(const fs::path& file) {
  constexpr std::string_view hexDigits = "0123456789ABCDEF";
  std::string name = "file:";
  for (const char byte : fs::absolute(file).string()) {
    if (byte == '%' || byte == '?' || byte == '#') {
      const auto code = static_cast<unsigned char>(byte);
      name += {'%', hexDigits[code / 16], hexDigits[code % 16]};
    } else {
      name += byte;
    }
  }
  return name + "?immutable=1";
}

/// Error 3045 while another program has the file open.
void checkNotInUse(const Connection& connection) {
  sqlite3_file* file = engineFileOf(connection);
  checkResult(file->pMethods->xLock(file, SQLITE_LOCK_SHARED));
  checkResult(file->pMethods->xUnlock(file, SQLITE_LOCK_NONE));
}

std::unique_ptr<Connection> openReadOnly(const fs::path& file) {
  auto connection = std::make_unique<Connection>(file.string(), SQLITE_OPEN_READONLY, Access::ReadOnly);
  setCheckpointOnClose(*connection, false);
  const StoreHeader header = checkHeader(*connection, file);
  // Reading a log that a crash left, the engine makes an index of it, which a reader does not take away.
  const fs::path logIndex = file.string() + "-shm";
  std::error_code failure;
  if (header.isWriteAhead && !fs::exists(logIndex, failure)) connection->removeAtClose(logIndex);
  if (header.isWriteAhead && !hasLog(file)) {
    // Reading under a log needs side files, but without one all there is stands in the file.
    checkNotInUse(*connection);
    connection =
        std::make_unique<Connection>(immutableName(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, Access::ReadOnly);
  }
  checkContent(*connection);
  return connection;
}

std::unique_ptr<Connection> openReadWrite(const fs::path& file) {
  auto connection = std::make_unique<Connection>(file.string(), SQLITE_OPEN_READWRITE, Access::ReadWrite);
  setCheckpointOnClose(*connection, false);
  static_cast<void>(checkHeader(*connection, file));
  // A setting of the connection, not of the file; it has to come before a log that a crash left is read.
  connection->execute("PRAGMA locking_mode=EXCLUSIVE");
  checkContent(*connection);
  if (connection->single("PRAGMA journal_mode=WAL") != "wal") throw RuntimeError(store_error::fileInUse);
  connection->execute(
      "PRAGMA synchronous=FULL;"
      // In KiB: the upper pages of the indexes. The system keeps the whole file in memory anyway, and a search through
      // all recipes is the faster the fewer places its pages pass through.
      "PRAGMA cache_size=-4096;"
      // In bytes: what a burst of changes may leave of the log.
      "PRAGMA journal_size_limit=8388608;"
      // Takes the lock, and keeps it.
      "BEGIN IMMEDIATE; COMMIT");
  refreshCollation(*connection);
  setCheckpointOnClose(*connection, true);
  return connection;
}

/// Makes an empty file; fails when there is one already.
void makeEmptyFile(const fs::path& file) {
  std::FILE* handle = std::fopen(file.c_str(), "wbx");
  if (handle == nullptr) throw RuntimeError(errno == ENOSPC ? store_error::diskFull : store_error::pathFileAccess);
  std::fclose(handle);
}

std::unique_ptr<Connection> openForUse(const fs::path& file) {
  return isWritable(file) && isWritable(folderOf(file)) ? openReadWrite(file) : openReadOnly(file);
}

}  // namespace

std::unique_ptr<Connection> openStoreFile(const fs::path& file) {
  checkFileExists(file);
  try {
    return openForUse(file);
  } catch (const RuntimeError& error) {
    // While the store is being opened, a file that fails and an engine that fails are the same to the user.
    const bool isGeneral =
        error.number() == store_error::pathFileAccess || error.number() == store_error::engineFailure;
    if (isGeneral) throw RuntimeError(store_error::cannotOpen);
    throw;
  }
}

void createStoreFile(const fs::path& file) {
  makeEmptyFile(file);
  UnfinishedFile unfinished(file);
  Connection connection(file.string(), SQLITE_OPEN_READWRITE, Access::ReadWrite);
  makeSchema(connection);
  unfinished.keep();
}

}  // namespace pantrigo
