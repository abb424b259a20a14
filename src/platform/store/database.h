#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/store/recordset.h"

namespace pantrigo {

/// The one open store: a single file, opened for reading and writing with an exclusive lock. Copies share it.
class Database {
 public:
  /// A database that was never opened: every operation is error 3420.
  Database();

  /// Opens the file. Errors: 3024 when it is missing; 3343 when it is empty, cut off, no store, or of another program
  /// or a later version; 3078, 3265 and 3015 when a table, a field or an index is missing, which the text names; 3021
  /// when the row of options is missing; 3045 when another process has it open; 3026 when the disk is full; 7 when
  /// memory is; 3051 when it can't be read. A read-only file or folder opens, and its first write is error 3027.
  /// Nothing about the file is changed before all that was checked.
  [[nodiscard]] static Database OpenDatabase(const std::filesystem::path& file);

  /// Makes a new store file with all tables, indexes and one `System` row (every field as a new row has it, counters
  /// 0), and closes it. Errors: 75 when the file exists already or can't be made, 3026 when the disk is full. No file
  /// is left behind by a failure.
  static void createStore(const std::filesystem::path& file);

  /// Opens a cursor: on a table when the text is a table's name, else on the result of an SQL text. Errors: 3078 for an
  /// unknown table, 3075 for an SQL text that is not understood, 93 for an invalid `like` pattern. Opening `System`
  /// first raises each of its counters that lies below the highest id of its table to that id, so that an import that
  /// broke off locks no id; not in a read-only store.
  [[nodiscard]] Recordset OpenRecordset(std::string_view source);

  /// Runs a " Delete FROM ..." text. Durable when it returns. Errors: 3075 for a text that is not
  /// understood, 3078 for an unknown table, 93 for an invalid `like` pattern, 3027, 3026 disk full, 75 when the file
  /// can't be written, 3420.
  void Execute(std::string_view sql);

  /// Ends pending edits, leaves one file in rollback-journal mode, and releases it. Recordsets left open then answer
  /// error 3420. Closing a closed database does nothing. Error 75 when the file can't be written.
  void Close();

  [[nodiscard]] bool isOpen() const;

  /// During imports and list-wide loops updates are made durable together at the loop's end; this switches between
  /// the two ways, and makes a checkpoint when it goes back to `EachUpdate`. When the checkpoint fails, by error 75 or
  /// 3026, updates are durable one by one all the same.
  enum class Durability { EachUpdate, AtCheckpoint };
  void setDurability(Durability durability);

  /// The same for a scope that may lie within another: the outermost one switches. Errors of `setDurability`; the scope
  /// has ended all the same when its end fails.
  void enterCheckpointScope();
  void leaveCheckpointScope();

  struct State;

 private:
  friend class StoreAccess;

  std::shared_ptr<State> state_;
};

}  // namespace pantrigo
