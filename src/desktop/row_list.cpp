#include "desktop/row_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "desktop/row_delegate.h"

namespace pantrigo {

namespace {

/// Time between two looks at changing rows, in milliseconds: a frame of a usual display.
constexpr int frameTime = 16;

}  // namespace

RowList::RowList(const ListBox& list, ListActions actions, QWidget* parent)
    : QListView(parent), model_(list), actions_(std::move(actions)) {
  setModel(&model_);
  setItemDelegate(new RowDelegate(list, this));
  setUniformItemSizes(true);
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setFrameShape(QFrame::NoFrame);
  // A press finds its row before the focus moves: what the focus raises may change the rows.
  setFocusPolicy(Qt::TabFocus);
  refresh_.setSingleShot(true);
  refresh_.setInterval(frameTime);
  QObject::connect(&refresh_, &QTimer::timeout, this, [this] {
    takeRows();
    viewport()->update();
  });
  takeRows();
}

void RowList::rowsChanged() {
  if (list().ListCount() == 0) toTop_ = true;
  if (!refresh_.isActive()) refresh_.start();
}

void RowList::coloursChanged() {
  if (!refresh_.isActive()) refresh_.start();
}

void RowList::takeRows() {
  refresh_.stop();
  if (!model_.isStale()) return;
  const int place = verticalScrollBar()->value();
  {
    const QScopedValueRollback guard(showing_, true);
    model_.refresh();
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(toTop_ ? 0 : place);
  }
  toTop_ = false;
  if (!list().multiple()) showSelection();
}

void RowList::showSelection() {
  if (model_.isStale()) return;
  viewport()->update();
  if (list().multiple()) return;
  const QScopedValueRollback guard(showing_, true);
  const QModelIndex row = model_.index(list().ListIndex(), 0);
  if (row == currentIndex()) return;
  setCurrentIndex(row);
  if (row.isValid()) scrollTo(row);
}

void RowList::scrollToRow(int row) {
  takeRows();
  scrollTo(model_.index(row, 0), QAbstractItemView::PositionAtTop);
}

void RowList::mousePressEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::RightButton) actions_.presses(rightButton);
  if (event->button() != Qt::LeftButton) return;
  takeRows();
  const QModelIndex row = indexAt(event->position().toPoint());
  if (!row.isValid()) {
    actions_.presses(leftButton);
  } else if (list().multiple()) {
    {
      const QScopedValueRollback guard(showing_, true);
      setCurrentIndex(row);
    }
    actions_.toggles(row.row());
  } else {
    actions_.picks(row.row());
  }
}

void RowList::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void RowList::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void RowList::mouseDoubleClickEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() != Qt::LeftButton) return;
  // A double click on the empty space of a list counts too: it is the list's own event and not a row's.
  if (!list().multiple()) {
    actions_.doubleClicks();
  } else if (const QModelIndex row = indexAt(event->position().toPoint()); row.isValid()) {
    actions_.toggles(row.row());
  }
}

void RowList::keyPressEvent(QKeyEvent* event) {
  takeRows();
  if (list().multiple() && event->key() == Qt::Key_Space) {
    if (currentIndex().isValid()) actions_.toggles(currentIndex().row());
    return;
  }
  QListView::keyPressEvent(event);
}

QModelIndex RowList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  // The view would go to its first row by any key while no row is selected.
  if (action == MoveEnd && !currentIndex().isValid()) return model_.index(model_.rowCount() - 1, 0);
  return QListView::moveCursor(action, modifiers);
}

void RowList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  if (showing_ || list().multiple() || !current.isValid()) return;
  actions_.movesTo(current.row());
}

void RowList::focusInEvent(QFocusEvent* event) {
  // The view would take its first row as current with the focus; here only a person's move selects.
  const QScopedValueRollback guard(showing_, true);
  QListView::focusInEvent(event);
  if (!list().multiple()) setCurrentIndex(model_.index(list().ListIndex(), 0));
}

void RowList::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange) scheduleDelayedItemsLayout();
}

void RowList::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  takeRows();
  if (currentIndex().isValid()) scrollTo(currentIndex());
}

}  // namespace pantrigo
