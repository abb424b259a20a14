#pragma once

#include "core/run.h"

namespace pantrigo {

/// Deletes the recipe whose title is typed, after a question: its picture files, its links, its row. The recipe that
/// takes its place in the list is shown; after the last row the first. Refused without a title. Error 75 for a picture
/// file that can't be removed; nothing else has gone then.
void subDeleteRequest(Run& run);

}  // namespace pantrigo
