#pragma once

#include <memory>
#include <string_view>

#include "platform/store/recordset.h"
#include "platform/store/store_state.h"

namespace pantrigo {

/// A cursor on the result of an SQL text, on its first row. Errors as `Database::OpenRecordset`.
[[nodiscard]] std::shared_ptr<Cursor> openQuery(const std::shared_ptr<Database::State>& state, std::string_view sql);

/// Runs a text that deletes rows. Errors as `Database::Execute`.
void executeDelete(Database::State& state, std::string_view sql);

}  // namespace pantrigo
