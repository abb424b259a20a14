#include "detail/title_rows.h"

namespace pantrigo {

int lastRowOf(const ListBox& titles, std::string_view title) {
  int row = titles.ListCount() - 1;
  while (row >= 0 && titles.List(row) != title) --row;
  return row;
}

void removeTitle(ListBox& titles, std::string_view title) {
  const int row = lastRowOf(titles, title);
  if (row >= 0) titles.RemoveItem(row);
}

}  // namespace pantrigo
