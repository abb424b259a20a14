#pragma once

#include <QListView>
#include <QTimer>
#include <functional>

#include "desktop/row_model.h"

namespace pantrigo {

/// What a person does to a list. Rows count from 0.
struct ListActions {
  std::function<void(int row)> picks;
  std::function<void(int row)> movesTo;
  std::function<void(int row)> toggles;
  std::function<void()> doubleClicks;
  /// A press of a mouse button that is on no row, or not the left one.
  std::function<void(MouseButton button)> presses;
};

/// The list on the screen. It selects nothing by itself and takes no focus with the mouse: a person's doing goes to the
/// actions, and what is selected and where the focus is comes back from the list that it shows. Changed rows are taken
/// over together, no more often than a display can show them.
class RowList : public QListView {
 public:
  RowList(const ListBox& list, ListActions actions, QWidget* parent);

  /// The rows have changed; they are taken over soon.
  void rowsChanged();
  /// Colours of rows have changed; they are painted soon.
  void coloursChanged();
  /// Takes over changed rows now.
  void takeRows();
  /// Shows the selection of the list, and brings the selected row into sight.
  void showSelection();
  /// Brings the row to the top.
  void scrollToRow(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  [[nodiscard]] QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] const ListBox& list() const { return model_.list(); }

  RowModel model_;
  ListActions actions_;
  QTimer refresh_;
  bool showing_ = false;
  bool toTop_ = false;
};

}  // namespace pantrigo
