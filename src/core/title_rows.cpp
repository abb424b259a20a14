#include "core/title_rows.h"

#include "core/colours.h"

namespace pantrigo {

void subAddListRow(Run& run, std::string_view title, bool meal, long row) {
  ListBox& titles = run.frmBrowse.lstTitles;
  titles.AddItem(title);
  titles.setRow(static_cast<int>(row));
  titles.setForeColor(titles.Row(), titleRowColours(meal).foreColor);
}

}  // namespace pantrigo
