#pragma once

#include "core/run.h"

namespace pantrigo {

/// The store's name, in the folder of the run.
inline constexpr std::string_view storeName = "PANTRIGO.MDB";

/// Start-up: the splash screen, the store with a recordset on each table that stands open for the whole run, the filter
/// lists, by option the list of titles, the tool bars, the hidden detail window, and the main window on show. Nothing
/// is trapped.
void subOpenStore(Run& run);

/// Closes what is open of the store in its fixed order, ignoring errors.
void closeStore(Run& run);

/// The caption that counts the listed recipes, with thousands marks.
[[nodiscard]] std::string listCountCaption(const Run& run);

}  // namespace pantrigo
