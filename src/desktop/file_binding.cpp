#include <QListWidget>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/binding.h"
#include "desktop/combo_field.h"
#include "desktop/text_conversion.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

/// How far a folder stands in from the one that holds it, in text heights.
constexpr double stepIn = 0.8;
/// Data of a row: how many folders hold it.
constexpr int depthRole = Qt::UserRole;

/// Paints a row as far from the left as folders hold it.
class IndentedDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    indented.rect.setLeft(option.rect.left() +
                          static_cast<int>(index.data(depthRole).toInt() * option.fontMetrics.height() * stepIn));
    QStyledItemDelegate::paint(painter, indented, index);
  }
};

/// What a person does to a list of names. Rows are those of the control.
struct NameActions {
  std::function<void(int row)> picks;
  std::function<void(int row)> movesTo;
  std::function<void()> doubleClicks;
};

/// A list of names on the screen. It picks nothing by itself: a person's doing goes to the actions, and what is picked
/// comes back from the control. Its first row is the control's row `firstRow`.
class NameView : public QListWidget {
 public:
  NameView(NameActions actions, QWidget* parent) : QListWidget(parent), actions_(std::move(actions)) {
    setUniformItemSizes(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new IndentedDelegate(this));
    // As with other lists, a press finds its row before the focus moves.
    setFocusPolicy(Qt::TabFocus);
  }

  /// Shows other names.
  void take(const NameList& list, const std::function<void(QListWidgetItem&, int row)>& dress) {
    const QSignalBlocker blocker(this);
    clear();
    firstRow_ = list.firstRow();
    for (int row = list.firstRow(); row < list.endRow(); ++row) {
      auto* item = new QListWidgetItem(this);
      dress(*item, row);
    }
    mark(list.ListIndex());
  }

  /// Shows which row is picked, and brings it into sight.
  void mark(int row) {
    const QSignalBlocker blocker(this);
    const bool shown = row >= firstRow_;
    setCurrentRow(shown ? row - firstRow_ : -1,
                  shown ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear);
    if (currentItem() != nullptr) scrollToItem(currentItem());
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    event->accept();
    const QModelIndex row = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row.isValid()) actions_.picks(row.row() + firstRow_);
  }
  void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
  void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    event->accept();
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) actions_.doubleClicks();
  }
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    QListWidget::currentChanged(current, previous);
    if (!signalsBlocked() && current.isValid()) actions_.movesTo(current.row() + firstRow_);
  }
  void focusInEvent(QFocusEvent* event) override {
    // The view would take its first row with the focus; only a person's move picks.
    const QSignalBlocker blocker(this);
    const QModelIndex before = currentIndex();
    QListWidget::focusInEvent(event);
    if (!before.isValid()) setCurrentRow(-1, QItemSelectionModel::Clear);
  }

 private:
  NameActions actions_;
  int firstRow_ = 0;
};

class NameBinding : public Binding {
 public:
  NameBinding(NameList& list, QWidget& parent, UserEvents& userEvents)
      : Binding(list, userEvents), list_(list), view_(new NameView(actions(), &parent)) {}

  [[nodiscard]] QWidget& widget() const override { return *view_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Rows);
  }

 protected:
  void show(Aspect aspect) override {
    if (aspect == Aspect::Rows) view_->take(list_, [this](QListWidgetItem& item, int row) { dress(item, row); });
    if (aspect == Aspect::Selection) view_->mark(list_.ListIndex());
  }

  /// Gives a row its text and picture.
  virtual void dress(QListWidgetItem& item, int row) const = 0;

 private:
  NameActions actions() {
    return {[this](int row) { events().dispatch([&](Windows& windows) { userPicks(windows, list_, row); }); },
            [this](int row) { events().dispatch([&](Windows& windows) { userMovesTo(windows, list_, row); }); },
            [this] { events().dispatch([&](Windows& windows) { userDoubleClicks(windows, list_); }); }};
  }

  NameList& list_;
  NameView* view_;
};

/// The folders above the one on show, one inside the other, that one, and the folders in it.
class FolderBinding : public NameBinding {
 public:
  FolderBinding(FolderList& folders, QWidget& parent, UserEvents& userEvents)
      : NameBinding(folders, parent, userEvents), folders_(folders) {}

 protected:
  void dress(QListWidgetItem& item, int row) const override {
    item.setText(toQt(folders_.name(row)));
    item.setData(depthRole, std::min(row, 0) - folders_.firstRow());
    const QStyle& style = *widget().style();
    item.setIcon(style.standardIcon(row < 0 ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon));
    item.setToolTip(toQt(folders_.List(row)));
  }

 private:
  FolderList& folders_;
};

class FileBinding : public NameBinding {
 public:
  FileBinding(FileList& files, QWidget& parent, UserEvents& userEvents)
      : NameBinding(files, parent, userEvents), files_(files) {}

 protected:
  void dress(QListWidgetItem& item, int row) const override {
    item.setText(toQt(files_.List(row)));
    item.setIcon(widget().style()->standardIcon(QStyle::SP_FileIcon));
    item.setToolTip(item.text());
  }

 private:
  FileList& files_;
};

class DriveBinding : public Binding {
 public:
  DriveBinding(DriveList& drives, QWidget& parent, UserEvents& userEvents)
      : Binding(drives, userEvents), drives_(drives), field_(new ComboField(&parent)) {
    QObject::connect(field_, &QComboBox::activated, field_, [this](int row) {
      events().dispatch([&](Windows& windows) { userPicks(windows, drives_, row); });
      show(Aspect::Selection);
    });
  }

  [[nodiscard]] QWidget& widget() const override { return *field_; }

  void showAll() override {
    Binding::showAll();
    show(Aspect::Rows);
  }

 protected:
  void show(Aspect aspect) override {
    const QSignalBlocker blocker(field_);
    if (aspect == Aspect::Rows) showRows();
    if (aspect != Aspect::Rows && aspect != Aspect::Selection) return;
    // A drive that isn't among the rows stands in the field all the same.
    field_->setPlaceholderText(toQt(drives_.Drive()));
    field_->setCurrentIndex(drives_.ListIndex());
  }

 private:
  void showRows() {
    field_->clear();
    for (int row = 0; row < drives_.ListCount(); ++row) {
      field_->addItem(field_->style()->standardIcon(QStyle::SP_DriveHDIcon), toQt(drives_.List(row)));
    }
  }

  DriveList& drives_;
  ComboField* field_;
};

}  // namespace

std::unique_ptr<Binding> bindDriveList(DriveList& drives, QWidget& parent, UserEvents& events) {
  return std::make_unique<DriveBinding>(drives, parent, events);
}

std::unique_ptr<Binding> bindFolderList(FolderList& folders, QWidget& parent, UserEvents& events) {
  return std::make_unique<FolderBinding>(folders, parent, events);
}

std::unique_ptr<Binding> bindFileList(FileList& files, QWidget& parent, UserEvents& events) {
  return std::make_unique<FileBinding>(files, parent, events);
}

}  // namespace pantrigo
