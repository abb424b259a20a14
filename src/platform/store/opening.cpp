#include "platform/store/opening.h"

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>

#include "platform/store/schema.h"
#include "platform/store/store_errors.h"
#include "platform/store/store_file_content.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

namespace fs = std::filesystem;

/// The first bytes of every file of the engine, the trailing zero byte included.
constexpr std::array<char, 16> signature{'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f',
                                         'o', 'r', 'm', 'a', 't', ' ', '3', '\0'};

/// Place in the file's header where the way of writing is noted, and its mark for the write-ahead log. A file at rest
/// only bears it after a crash.
constexpr int writeVersionPlace = 18;
constexpr char writeAheadMark = 2;

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

/// The engine's own handle of the file: another one, once closed, would take the locks of this process on the file with
/// it.
sqlite3_file* fileOf(const Connection& connection) {
  sqlite3_file* file = nullptr;
  checkResult(sqlite3_file_control(connection.handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file));
  return file;
}

struct Header {
  bool isWriteAhead;
};

Header checkSignature(const Connection& connection) {
  sqlite3_file* file = fileOf(connection);
  sqlite3_int64 size = 0;
  checkResult(file->pMethods->xFileSize(file, &size));
  std::array<char, writeVersionPlace + 1> header{};
  if (size < static_cast<sqlite3_int64>(header.size())) throw RuntimeError(store_error::notADatabase);
  checkResult(file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0));
  if (!std::equal(signature.begin(), signature.end(), header.begin())) throw RuntimeError(store_error::notADatabase);
  return {header[writeVersionPlace] == writeAheadMark};
}

void checkTables(Connection& connection) {
  std::set<std::string, std::less<>> present;
  Statement names(connection.handle(), "SELECT name FROM sqlite_schema WHERE type IN ('table', 'index')");
  while (names.step()) present.emplace(names.text(0));
  for (const TableDescription& table : storeTables()) {
    if (!present.contains(table.name)) throw RuntimeError(store_error::noSuchTable);
    for (const IndexDescription& index : table.indexes) {
      if (!present.contains(index.name)) throw RuntimeError(store_error::noSuchIndex);
    }
  }
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
  sqlite3_file* file = fileOf(connection);
  checkResult(file->pMethods->xLock(file, SQLITE_LOCK_SHARED));
  checkResult(file->pMethods->xUnlock(file, SQLITE_LOCK_NONE));
}

bool hasLog(const fs::path& file) {
  std::error_code failure;
  const auto size = fs::file_size(file.string() + "-wal", failure);
  return !failure && size > 0;
}

std::unique_ptr<Connection> openReadOnly(const fs::path& file) {
  auto connection = std::make_unique<Connection>(file.string(), SQLITE_OPEN_READONLY, Access::ReadOnly);
  setCheckpointOnClose(*connection, false);
  const Header header = checkSignature(*connection);
  if (header.isWriteAhead && !hasLog(file)) {
    // Reading under a log needs side files, but without one all there is stands in the file.
    checkNotInUse(*connection);
    connection =
        std::make_unique<Connection>(immutableName(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, Access::ReadOnly);
  }
  checkTables(*connection);
  return connection;
}

std::unique_ptr<Connection> openReadWrite(const fs::path& file) {
  auto connection = std::make_unique<Connection>(file.string(), SQLITE_OPEN_READWRITE, Access::ReadWrite);
  setCheckpointOnClose(*connection, false);
  static_cast<void>(checkSignature(*connection));
  // A setting of the connection, not of the file; it has to come before a log that a crash left is read.
  connection->execute("PRAGMA locking_mode=EXCLUSIVE");
  checkTables(*connection);
  if (connection->single("PRAGMA journal_mode=WAL") != "wal") throw RuntimeError(store_error::fileInUse);
  connection->execute(
      "PRAGMA synchronous=FULL;"
      // In KiB: the working pages of a large cookbook.
      "PRAGMA cache_size=-32768;"
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
  if (handle == nullptr) throw RuntimeError(store_error::pathFileAccess);
  std::fclose(handle);
}

}  // namespace

std::unique_ptr<Connection> openStoreFile(const std::filesystem::path& file) {
  checkFileExists(file);
  return isWritable(file) && isWritable(folderOf(file)) ? openReadWrite(file) : openReadOnly(file);
}

void createStoreFile(const std::filesystem::path& file) {
  makeEmptyFile(file);
  try {
    Connection connection(file.string(), SQLITE_OPEN_READWRITE, Access::ReadWrite);
    makeSchema(connection);
  } catch (const RuntimeError&) {
    std::error_code failure;
    fs::remove(file, failure);
    throw RuntimeError(store_error::pathFileAccess);
  }
}

}  // namespace pantrigo
