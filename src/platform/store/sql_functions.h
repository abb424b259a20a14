#pragma once

struct sqlite3;

namespace pantrigo {

/// Name of the store's collation in the engine. It stands in the definition of every text column.
inline constexpr const char* collationName = "PANTRIGO";

/// Name of the SQL function `matches(pattern, text)`, which takes a `LikePattern` object of this kind. Null for a Null
/// text.
inline constexpr const char* matchesFunctionName = "matches_pattern";
inline constexpr const char* likePatternKind = "pantrigo like pattern";

/// Gives a connection the collation and the function. Error 51 when the order of texts is not available.
void registerSqlFunctions(sqlite3* connection);

}  // namespace pantrigo
