#pragma once

#include "core/run.h"

namespace pantrigo {

/// Builds the list of titles from the filters: by an index when one category alone is set, by a query when anything
/// else is, by the titles when nothing is. Leaves the text of the query in `gSqlText`, and the first row selected with
/// the focus. Long work that Stop ends, with the rows that are there. Nothing when a number is not valid. The store's
/// errors are not trapped; 93 for an invalid pattern in a text, 6 for energy in calories that is no single in
/// kilojoules.
void subBuildList(Run& run);

}  // namespace pantrigo
