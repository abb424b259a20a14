#pragma once

#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// The last row of that very title, letter for letter; -1 when there is none.
[[nodiscard]] int lastRowOf(const ListBox& titles, std::string_view title);

/// Removes that row; nothing when there is none.
void removeTitle(ListBox& titles, std::string_view title);

}  // namespace pantrigo
