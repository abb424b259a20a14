#pragma once

#include <QHash>
#include <map>

#include "desktop/binding.h"

class QAction;
class QMenu;
class QMenuBar;

namespace pantrigo {

/// The menu bar of a form: every menu, entry and separator of it as an action.
class MenuTree {
 public:
  /// Fills the bar with the menu entries of the form.
  MenuTree(const Form& form, QMenuBar& bar, UserEvents& events);

  /// Shows a menu entry's caption, and whether it can be picked.
  void show(const MenuEntry& entry);

 private:
  void add(MenuEntry& entry, QMenuBar& bar, UserEvents& events);

  std::map<const Control*, QAction*> actions_;
  std::map<const Control*, QMenu*> menus_;
};

/// The caption as a menu shows it: a key named at the end, behind three blanks or more, stands at the right.
[[nodiscard]] QString menuCaption(std::string_view caption);

}  // namespace pantrigo
