#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "core/run.h"

namespace pantrigo {

/// A menu entry of a form and the routine that it runs.
template <class FormType>
struct MenuCommand {
  MenuEntry FormType::*entry;
  void (*routine)(Run&);
};

/// A tool bar button, by its key, and the menu entry that it stands for.
template <class FormType>
struct ToolCommand {
  std::string_view key;
  MenuEntry FormType::*entry;
};

/// Presses what the button stands for; nothing for a key that is in no row.
template <class FormType>
void pressToolButton(FormType& form, std::span<const ToolCommand<FormType>> commands, std::string_view key) {
  const auto found =
      std::find_if(commands.begin(), commands.end(), [&](const auto& command) { return command.key == key; });
  if (found != commands.end()) (form.*found->entry).Click();
}

/// Greys the buttons of entries that nothing is wired to.
template <class FormType>
void disableUnwiredButtons(FormType& form, ToolBar& toolBar, std::span<const ToolCommand<FormType>> commands) {
  for (const ToolCommand<FormType>& command : commands) {
    if (!(form.*command.entry).Click.isWired()) toolBar.setButtonEnabled(command.key, false);
  }
}

/// The printer set-up dialog with the platform's flags: set-up box, without page numbers, selection and print-to-file.
inline void setUpPrinter(CommonDialog& dialog) {
  dialog.setFlags(0x1000CC);
  dialog.setAction(DialogAction::Printer);
}

}  // namespace pantrigo
