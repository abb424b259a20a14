#include "desktop/row_model.h"

#include "desktop/look.h"
#include "desktop/text_conversion.h"

namespace pantrigo {

namespace {

QString spokenText(const ListBox& list, int row) {
  QString text = toQt(list.List(row));
  if (!list.multiple() && isMarkColour(list.Colours(row).foreColor)) text += markWords();
  if (list.multiple() && list.Selected(row)) text += QStringLiteral(", selected");
  return text;
}

}  // namespace

QVariant RowModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= list_.ListCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return toQt(list_.List(index.row()));
    case Qt::ToolTipRole:
      return toQt(list_.List(index.row()));
    case Qt::AccessibleTextRole:
      return spokenText(list_, index.row());
    default:
      return {};
  }
}

bool RowModel::refresh() {
  if (!isStale()) return false;
  version_ = list_.rowsVersion();
  beginResetModel();
  rows_ = list_.ListCount();
  endResetModel();
  return true;
}

}  // namespace pantrigo
