#pragma once

#include <utility>

#include "platform/store/database.h"
#include "platform/text/errors.h"

namespace pantrigo {

/// Makes the updates of a scope durable together, with a checkpoint at its end: for imports and list-wide loops. Of
/// scopes that lie in each other the outermost counts, so a routine with a scope may call one that has its own.
class CheckpointAtEnd {
 public:
  /// Error 3420 when the database is closed.
  explicit CheckpointAtEnd(Database database) : database_(std::move(database)) { database_.enterCheckpointScope(); }
  /// Goes back to durable updates also when the scope ends by an error; one of its own is then dropped, and so is that
  /// of a database which was closed in the scope.
  ~CheckpointAtEnd() {
    guarded([this] { finish(); });
  }
  CheckpointAtEnd(const CheckpointAtEnd&) = delete;
  CheckpointAtEnd& operator=(const CheckpointAtEnd&) = delete;

  /// Ends the scope early and reports what goes wrong: errors 75, 3026 and 3420. Nothing when it has ended.
  void finish() {
    if (!std::exchange(isFinished_, true)) database_.leaveCheckpointScope();
  }

 private:
  Database database_;
  bool isFinished_ = false;
};

}  // namespace pantrigo
