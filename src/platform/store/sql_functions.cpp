#include "platform/store/sql_functions.h"

#include <sqlite3.h>

#include <new>
#include <string_view>

#include "platform/store/like.h"
#include "platform/store/store_errors.h"
#include "platform/text/collation.h"

namespace pantrigo {

namespace {

/// A text is taken as the bytes that it is: asked for as a text, the engine would make a copy that ends in a zero.
std::string_view textOf(sqlite3_value* value) {
  const bool isText = sqlite3_value_type(value) == SQLITE_TEXT;
  const void* content = isText ? sqlite3_value_blob(value) : sqlite3_value_text(value);
  const auto* bytes = static_cast<const char*>(content);
  if (bytes == nullptr) return {};
  return {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

/// The order of texts was loaded when this was registered, so that nothing can go wrong here but memory running out.
int compareTexts(void*, int leftLength, const void* left, int rightLength, const void* right) noexcept {
  return collate({static_cast<const char*>(left), static_cast<std::size_t>(leftLength)},
                 {static_cast<const char*>(right), static_cast<std::size_t>(rightLength)});
}

void matchesPattern(sqlite3_context* context, int, sqlite3_value** arguments) noexcept {
  const auto* pattern = static_cast<const LikePattern*>(sqlite3_value_pointer(arguments[0], likePatternKind));
  if (pattern == nullptr || sqlite3_value_type(arguments[1]) == SQLITE_NULL) return sqlite3_result_null(context);
  // An exception must not pass through the engine's own frames.
  try {
    sqlite3_result_int(context, pattern->matches(textOf(arguments[1])) ? 1 : 0);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

}  // namespace

void registerSqlFunctions(sqlite3* connection) {
  // The first use loads the order of texts, and both ways through it; its failure can be reported from here.
  static_cast<void>(collate("a", "\u00E9"));
  static_cast<void>(collate("a", "b"));
  checkResult(sqlite3_create_collation_v2(connection, collationName, SQLITE_UTF8, nullptr, compareTexts, nullptr));
  checkResult(sqlite3_create_function_v2(connection, matchesFunctionName, 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                         nullptr, matchesPattern, nullptr, nullptr, nullptr));
}

}  // namespace pantrigo
