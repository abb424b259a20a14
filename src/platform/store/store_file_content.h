#pragma once

#include "platform/store/connection.h"

namespace pantrigo {

/// Makes all tables and indexes, the one row of `System`, and the stamp, in an empty file.
void makeSchema(Connection& connection);

/// Rebuilds the indexes when the stamp in the file names another version of the collation than the one in use, and sets
/// it anew.
void refreshCollation(Connection& connection);

}  // namespace pantrigo
