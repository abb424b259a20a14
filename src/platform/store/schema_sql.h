#pragma once

#include <string>

#include "platform/store/schema.h"

namespace pantrigo {

/// Name under which every table of the file shows the engine's row number. Rows in this order are in the table's
/// physical order. No field has this name.
inline constexpr const char* rowNumberColumn = "RowNumber";

/// The names that a function gives for the things of a range, with commas between them.
template <class Range, class NameOf>
[[nodiscard]] std::string nameList(const Range& range, NameOf nameOf) {
  std::string text;
  for (const auto& thing : range) {
    if (!text.empty()) text += ", ";
    text += nameOf(thing);
  }
  return text;
}

/// Texts that make a table and an index. An index that carries a field holds it behind the row number, so that rows
/// with equal keys still come in the order in which they were stored.
[[nodiscard]] std::string createTableText(const TableDescription& table);
[[nodiscard]] std::string createIndexText(const TableDescription& table, const IndexDescription& index);

/// Text that adds a row with all fields, the row number first, as parameters.
[[nodiscard]] std::string insertText(const TableDescription& table);

/// Place of a field in its table; -1 when there is none of that name.
[[nodiscard]] int findField(const TableDescription& table, std::string_view name);

}  // namespace pantrigo
