#pragma once

#include "platform/store/database.h"
#include "platform/text/errors.h"

namespace pantrigo {

/// Makes the updates of a scope durable together, with a checkpoint at its end: for imports and list-wide loops.
class CheckpointAtEnd {
 public:
  /// Error 3420 when the database is closed.
  explicit CheckpointAtEnd(Database database) : database_(std::move(database)) {
    database_.setDurability(Database::Durability::AtCheckpoint);
  }
  /// Goes back to durable updates also when the scope ends by an error; one of its own is then dropped, and so is that
  /// of a database which was closed in the scope.
  ~CheckpointAtEnd() {
    guarded([this] { database_.setDurability(Database::Durability::EachUpdate); });
  }
  CheckpointAtEnd(const CheckpointAtEnd&) = delete;
  CheckpointAtEnd& operator=(const CheckpointAtEnd&) = delete;

  /// Ends the scope early and reports what goes wrong: errors 75, 3026 and 3420.
  void finish() { database_.setDurability(Database::Durability::EachUpdate); }

 private:
  Database database_;
};

}  // namespace pantrigo
