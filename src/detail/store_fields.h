#pragma once

#include "core/run.h"

namespace pantrigo {

/// Writes the form into the row that `gRecipe` adds or edits; the caller updates it. Memos and links are written only
/// when their mark says so, which is cleared then; everything else always. The links are durable at once, so those of a
/// new recipe stand before its row does. Errors: those of the store; 13 for an ingredient whose quantity does not
/// convert, before anything but fields of the row is written.
void subStoreRecipeFields(Run& run);

}  // namespace pantrigo
