#pragma once

#include <cstddef>
#include <string_view>

namespace pantrigo {

/// Whether two names of tables, fields, indexes or words of SQL are the same: case does not count. Names are plain
/// ASCII.
[[nodiscard]] constexpr bool isSameName(std::string_view left, std::string_view right) {
  constexpr auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  if (left.size() != right.size()) return false;
  // Nearly always the names are spelled alike.
  if (left == right) return true;
  for (std::size_t place = 0; place < left.size(); ++place) {
    if (lower(left[place]) != lower(right[place])) return false;
  }
  return true;
}

}  // namespace pantrigo
