#pragma once

#include "platform/store/connection.h"
#include "platform/store/schema.h"
#include "platform/store/value.h"

namespace pantrigo {

/// What a new row holds in a field that was not written: Yes/No False, everything else Null.
[[nodiscard]] Value defaultOf(FieldType type);

/// A value as a field keeps it after a write. Numbers into texts take the plain form; texts into numbers go by the
/// whole-text conversion, the empty one gives Null. Errors: 3421 for a text that does not convert, 3163 for a text of
/// more than 255 characters in a text field, 6 for a number out of the field's range.
[[nodiscard]] Value toFieldValue(FieldType type, const Value& value);

/// A value as it is sought in a key field. Unlike a written one it is neither rounded nor cut to a range. Error 3421.
[[nodiscard]] Value toKeyValue(FieldType type, const Value& value);

/// The value of a field in a column of the statement's present row.
[[nodiscard]] Value readValue(const Statement& statement, int column, FieldType type);

}  // namespace pantrigo
