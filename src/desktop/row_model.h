#pragma once

#include <QAbstractListModel>
#include <cstdint>

#include "platform/controls/list_box.h"

namespace pantrigo {

/// The rows of a list as a model. It holds no copies: it answers from the list, for as many rows as it last announced.
class RowModel : public QAbstractListModel {
 public:
  explicit RowModel(const ListBox& list) : list_(list) {}

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

  [[nodiscard]] const ListBox& list() const { return list_; }

  /// Announces the rows as the list has them now. Gives false when nothing had changed since the last time.
  bool refresh();
  /// Whether the list has changed since.
  [[nodiscard]] bool isStale() const { return version_ != list_.rowsVersion(); }

 private:
  const ListBox& list_;
  int rows_ = 0;
  std::uint64_t version_ = 0;
};

}  // namespace pantrigo
