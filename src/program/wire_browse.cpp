#include "browse/browse_window.h"
#include "browse/recipe_commands.h"
#include "browse/title_list.h"
#include "core/messages.h"
#include "program/wiring.h"

namespace pantrigo {

namespace {

using Routine = void (*)(Run&);

/// A menu entry and its routine; nothing of the kind runs while the window is busy.
struct Command {
  MenuEntry FrmBrowse::*entry;
  Routine routine;
};

constexpr Command commands[] = {
    {&FrmBrowse::mnuAdd, subOpenBlankDetail},
    {&FrmBrowse::mnuUpdate, subOpenSelected},
    {&FrmBrowse::mnuDelete, subDeleteSelected},
    {&FrmBrowse::mnuFirst, subListFirst},
    {&FrmBrowse::mnuPrevious, subListPrevious},
    {&FrmBrowse::mnuNext, subListNext},
    {&FrmBrowse::mnuLast, subListLast},
    {&FrmBrowse::mnuMeal, subListToggleMeal},
    {&FrmBrowse::mnuContents, [](Run& run) { subShowHelp(run, helpContents); }},
    {&FrmBrowse::mnuSearch, showHelpSearch},
    {&FrmBrowse::mnuAbout, [](Run& run) { run.windows.ShowModal(run.frmAbout); }},
};

/// A tool bar button and the menu entry that it stands for.
struct Button {
  std::string_view key;
  MenuEntry FrmBrowse::*entry;
};

constexpr Button buttons[] = {
    {"Options", &FrmBrowse::mnuOptions},   {"Clear", &FrmBrowse::mnuClear},       {"Filter", &FrmBrowse::mnuFilter},
    {"Add", &FrmBrowse::mnuAdd},           {"Update", &FrmBrowse::mnuUpdate},     {"Delete", &FrmBrowse::mnuDelete},
    {"Print", &FrmBrowse::mnuPrint},       {"First", &FrmBrowse::mnuFirst},       {"Previous", &FrmBrowse::mnuPrevious},
    {"Next", &FrmBrowse::mnuNext},         {"Last", &FrmBrowse::mnuLast},         {"Settings", &FrmBrowse::mnuSettings},
    {"Meal", &FrmBrowse::mnuMeal},         {"Exit", &FrmBrowse::mnuExit},
};

void tbBrowse_ButtonClick(Run& run, const std::string& key) {
  if (key == "Stop") {
    run.frmBrowse.mbStop = true;
    return;
  }
  if (run.frmBrowse.mbBusy) return;
  if (key == "Help") subShowHelp(run, helpBrowse);
  for (const Button& button : buttons) {
    if (button.key == key) (run.frmBrowse.*button.entry).Click();
  }
}

}  // namespace

void wireFrmBrowse(Run& run) {
  FrmBrowse& form = run.frmBrowse;
  form.Load = [&run] { frmBrowse_Load(run); };
  form.Activate = [&run] { frmBrowse_Activate(run); };
  form.Resize = [&run] { frmBrowse_Resize(run); };
  form.KeyPress = [&run](int key) { frmBrowse_KeyPress(run, key); };
  form.Unload = [&run] { frmBrowse_Unload(run); };

  form.lstTitles.DblClick = [&run] {
    if (!run.frmBrowse.mbBusy) lstTitles_DblClick(run);
  };
  form.lstTitles.KeyDown = [&run](int key) {
    if (!run.frmBrowse.mbBusy) lstTitles_KeyDown(run, key);
  };
  form.lstTitles.SelChange = [&run] { lstTitles_SelChange(run); };

  for (const Command& command : commands) {
    (form.*command.entry).Click = [&run, routine = command.routine] {
      if (!run.frmBrowse.mbBusy) routine(run);
    };
  }
  // Exit alone works while the window is busy.
  form.mnuExit.Click = [&run] { run.loop.End(); };
  form.tbBrowse.ButtonClick = [&run](const std::string& key) { tbBrowse_ButtonClick(run, key); };

  for (const Button& button : buttons) {
    if (!(form.*button.entry).Click.isWired()) form.tbBrowse.setButtonEnabled(button.key, false);
  }
}

}  // namespace pantrigo
