#include "desktop/binding.h"
#include "desktop/row_list.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

class ListBinding : public Binding {
 public:
  ListBinding(ListBox& list, QWidget& parent, UserEvents& userEvents)
      : Binding(list, userEvents), list_(list), rows_(new RowList(list, actions(), &parent)) {}

  [[nodiscard]] QWidget& widget() const override { return *rows_; }

  void showAll() override {
    Binding::showAll();
    rows_->takeRows();
    rows_->showSelection();
  }

 protected:
  void show(Aspect aspect) override {
    switch (aspect) {
      case Aspect::Rows:
        rows_->rowsChanged();
        break;
      case Aspect::Selection:
        rows_->showSelection();
        break;
      case Aspect::RowColours:
        rows_->coloursChanged();
        break;
      case Aspect::Scroll:
        rows_->scrollToRow(list_.TopIndex());
        break;
      default:
        break;
    }
  }

 private:
  ListActions actions() {
    ListActions actions;
    actions.picks = [this](int row) { events().dispatch([&](Windows& windows) { userPicks(windows, list_, row); }); };
    actions.movesTo = [this](int row) {
      events().dispatch([&](Windows& windows) { userMovesTo(windows, list_, row); });
    };
    actions.toggles = [this](int row) {
      events().dispatch([&](Windows& windows) { userToggles(windows, list_, row); });
    };
    actions.doubleClicks = [this] { events().dispatch([&](Windows& windows) { userDoubleClicks(windows, list_); }); };
    actions.presses = [this](MouseButton button) {
      events().dispatch([&](Windows& windows) { userPresses(windows, list_, button); });
    };
    return actions;
  }

  ListBox& list_;
  RowList* rows_;
};

}  // namespace

std::unique_ptr<Binding> bindListBox(ListBox& list, QWidget& parent, UserEvents& events) {
  return std::make_unique<ListBinding>(list, parent, events);
}

}  // namespace pantrigo
