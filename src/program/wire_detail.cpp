#include "core/messages.h"
#include "detail/change_tracking.h"
#include "detail/detail_window.h"
#include "detail/navigation.h"
#include "program/wiring.h"

namespace pantrigo {

namespace {

using Routine = void (*)(Run&);

struct Command {
  MenuEntry FrmDetail::*entry;
  Routine routine;
};

constexpr Command commands[] = {
    {&FrmDetail::mnuExit, leaveDetail},
    {&FrmDetail::mnuClear, clearRecipe},
    {&FrmDetail::mnuFind, subFindRecipe},
    {&FrmDetail::mnuFirst, subFirstRecipe},
    {&FrmDetail::mnuPrevious, subPreviousRecipe},
    {&FrmDetail::mnuNext, subNextRecipe},
    {&FrmDetail::mnuLast, subLastRecipe},
    {&FrmDetail::mnuMeal, subToggleMeal},
    {&FrmDetail::mnuOven, [](Run& run) { run.windows.ShowModal(run.frmOven); }},
    {&FrmDetail::mnuContents, [](Run& run) { subShowHelp(run, helpContents); }},
    {&FrmDetail::mnuSearch, showHelpSearch},
    {&FrmDetail::mnuAbout, [](Run& run) { run.windows.ShowModal(run.frmAbout); }},
};

struct Button {
  std::string_view key;
  MenuEntry FrmDetail::*entry;
};

constexpr Button buttons[] = {
    {"Clear", &FrmDetail::mnuClear},         {"Find", &FrmDetail::mnuFind},           {"Add", &FrmDetail::mnuAdd},
    {"Update", &FrmDetail::mnuUpdate},       {"Delete", &FrmDetail::mnuDelete},       {"Print", &FrmDetail::mnuPrint},
    {"First", &FrmDetail::mnuFirst},         {"Previous", &FrmDetail::mnuPrevious},   {"Next", &FrmDetail::mnuNext},
    {"Last", &FrmDetail::mnuLast},           {"Settings", &FrmDetail::mnuSettings},   {"Nutrition", &FrmDetail::mnuNutrition},
    {"Meal", &FrmDetail::mnuMeal},           {"Oven", &FrmDetail::mnuOven},           {"Exit", &FrmDetail::mnuExit},
};

void tbDetail_ButtonClick(Run& run, const std::string& key) {
  if (key == "Help") subShowHelp(run, helpDetail);
  for (const Button& button : buttons) {
    if (button.key == key) (run.frmDetail.*button.entry).Click();
  }
}

void wireChanges(Run& run) {
  FrmDetail& form = run.frmDetail;
  const auto changed = [&run] { detailChanged(run); };
  for (ComboBox* combo : {&form.cmbNationality, &form.cmbCourse, &form.cmbCooking, &form.cmbEase}) {
    combo->Change = changed;
    combo->Click = changed;
  }
  for (TextBox* box : {&form.txtServes, &form.txtPrepareTime, &form.txtCookTime}) box->Change = changed;
  form.txtComments.Change = [&run] { txtComments_Change(run); };
  form.txtMethod.Change = [&run] { txtMethod_Change(run); };
  form.lstHealth.Click = [&run] { lstHealth_Click(run); };
  form.lstOther.Click = [&run] { lstOther_Click(run); };
  form.lblServes.Click = [&run] { lblServes_Click(run); };
}

}  // namespace

void wireFrmDetail(Run& run) {
  FrmDetail& form = run.frmDetail;
  form.Load = [&run] { frmDetail_Load(run); };
  form.Activate = [&run] { frmDetail_Activate(run); };
  form.KeyDown = [&run](int key) { frmDetail_KeyDown(run, key); };
  form.KeyPress = [&run](int key) { frmDetail_KeyPress(run, key); };
  form.CloseMark = [&run] { leaveDetail(run); };
  wireChanges(run);
  for (const Command& command : commands) {
    (form.*command.entry).Click = [&run, routine = command.routine] { routine(run); };
  }
  form.tbDetail.ButtonClick = [&run](const std::string& key) { tbDetail_ButtonClick(run, key); };
  for (const Button& button : buttons) {
    if (!(form.*button.entry).Click.isWired()) form.tbDetail.setButtonEnabled(button.key, false);
  }
}

}  // namespace pantrigo
