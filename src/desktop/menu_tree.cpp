#include "desktop/menu_tree.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "desktop/text_conversion.h"
#include "platform/controls/input.h"

namespace pantrigo {

namespace {

bool hasEntries(const MenuEntry& menu) {
  const auto& controls = menu.form().controls();
  return std::any_of(controls.begin(), controls.end(),
                     [&](const Control* control) { return control->container() == &menu; });
}

}  // namespace

QString menuCaption(std::string_view caption) {
  const std::size_t gap = caption.find("   ");
  if (gap == std::string_view::npos) return toQt(caption);
  const std::size_t key = caption.find_first_not_of(' ', gap);
  if (key == std::string_view::npos) return toQt(caption.substr(0, gap));
  return toQt(caption.substr(0, gap)) + QLatin1Char('\t') + toQt(caption.substr(key));
}

MenuTree::MenuTree(const Form& form, QMenuBar& bar, UserEvents& events) {
  for (Control* control : form.controls()) {
    if (control->kind() == ControlKind::MenuEntry) add(static_cast<MenuEntry&>(*control), bar, events);
  }
}

void MenuTree::add(MenuEntry& entry, QMenuBar& bar, UserEvents& events) {
  QMenu* parent = entry.container() == nullptr ? nullptr : menus_.at(entry.container());
  QAction* action = nullptr;
  if (entry.isSeparator()) {
    action = parent != nullptr ? parent->addSeparator() : bar.addSeparator();
  } else if (hasEntries(entry)) {
    QMenu* menu = parent != nullptr ? parent->addMenu(QString()) : bar.addMenu(QString());
    menus_[&entry] = menu;
    action = menu->menuAction();
  } else {
    action = parent != nullptr ? parent->addAction(QString()) : bar.addAction(QString());
    QObject::connect(action, &QAction::triggered, action, [&entry, &bar, &events] {
      // The bar would stay marked for as long as a dialog of the entry is open.
      bar.setActiveAction(nullptr);
      events.dispatch([&](Windows& windows) { userClicks(windows, entry); });
    });
  }
  action->setObjectName(toQt(entry.Name()));
  actions_[&entry] = action;
  show(entry);
}

void MenuTree::show(const MenuEntry& entry) {
  QAction* action = actions_.at(&entry);
  action->setVisible(entry.Visible());
  if (entry.isSeparator()) return;
  action->setText(menuCaption(entry.Caption()));
  action->setEnabled(entry.Enabled() && (hasEntries(entry) || entry.Click.isWired()));
}

}  // namespace pantrigo
