#pragma once

#include <string_view>

#include "platform/store/sql_syntax.h"

namespace pantrigo {

// The part of the store's SQL that the program uses:
//
//   select    = SELECT [DISTINCT] ("*" | field {"," field}) FROM table {"," table} [WHERE any]
//   delete    = DELETE FROM table [WHERE any]
//   any       = all {OR all}
//   all       = condition {AND condition}
//   condition = "(" any ")" | operand sign operand | field LIKE text | literal IN "(" select ")"
//   operand   = field | literal
//   field     = table ("." | "!") name
//   literal   = text | [sign] number | TRUE | FALSE
//
// Words and names go without regard to case, and blanks count for nothing. Anything else is error 3075.

[[nodiscard]] SqlSelect parseSelect(std::string_view sql);
[[nodiscard]] SqlDelete parseDelete(std::string_view sql);

}  // namespace pantrigo
