#include "platform/controls/unseen_controls.h"

#include "platform/controls/toolkit.h"

namespace pantrigo {

CommonDialog::CommonDialog(Holder holder, std::string_view name)
    : Control(holder, ControlKind::CommonDialog, name, {}) {
  setVisible(false);
}

void CommonDialog::setAction(DialogAction action) {
  values_.action = static_cast<int>(action);
  Toolkit* system = toolkit();
  if (system == nullptr) return;
  switch (action) {
    case DialogAction::Printer:
      system->setUpPrinter(values_.flags);
      break;
    case DialogAction::Help:
      system->showHelp({values_.helpFile, values_.helpCommand, values_.helpContext});
      break;
  }
}

void CommonDialog::reset() {
  Control::reset();
  values_ = {};
}

ImageList::ImageList(Holder holder, std::string_view name, int side, std::vector<std::string> pictures)
    : Control(holder, ControlKind::ImageList, name, {}), side_(side), pictures_(std::move(pictures)) {
  setVisible(false);
}

const std::string& ImageList::picture(int number) const {
  static const std::string none;
  return number >= 1 && number <= count() ? pictures_[static_cast<std::size_t>(number) - 1] : none;
}

}  // namespace pantrigo
