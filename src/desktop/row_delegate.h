#pragma once

#include <QStyledItemDelegate>

#include "platform/controls/list_box.h"

namespace pantrigo {

/// Paints the rows of a list: the colours that the program gave them, and, where several can be selected, a box with a
/// tick.
class RowDelegate : public QStyledItemDelegate {
 public:
  RowDelegate(const ListBox& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void paintMark(QPainter& painter, const QRect& place, bool ticked, bool enabled) const;

  const ListBox& list_;
};

}  // namespace pantrigo
