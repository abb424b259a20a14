#include "maintenance/options.h"

#include <algorithm>

#include "core/energy_label.h"
#include "core/layout.h"
#include "core/messages.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

void showRow(FrmOptions& form, const OptionRow& row, const Value& stored) {
  if (row.box != nullptr) {
    (form.*row.box).setValue(stored.truth());
    return;
  }
  const auto known = std::find_if(row.choices.begin(), row.choices.end(),
                                  [text = stored.text()](const OptionChoice& choice) { return choice.value == text; });
  const OptionChoice& shown = known == row.choices.end() ? row.choices[row.otherwise] : *known;
  (form.*shown.button).setValue(true);
}

Value valueOf(const FrmOptions& form, const OptionRow& row) {
  if (row.box != nullptr) return (form.*row.box).Value();
  for (const OptionChoice& choice : row.choices) {
    if ((form.*choice.button).Value()) return choice.value;
  }
  return row.choices[row.otherwise].value;
}

/// What else a key does as soon as it is written.
void apply(Run& run, std::string_view key) {
  if (key == "ShowToolBars") applyToolBarLayout(run);
  if (key == "Kilojoules") showEnergyUnit(run);
}

bool sizesAreNumbers(Run& run) {
  for (const OptionSize& size : optionSizes()) {
    TextBox& box = run.frmOptions.*size.box;
    if (IsNumeric(box.Text())) continue;
    run.loop.MsgBox(size.refusal, boxStop, captionError);
    run.windows.SetFocus(box);
    return false;
  }
  return true;
}

}  // namespace

void frmOptions_Load(Run& run) {
  FrmOptions& form = run.frmOptions;
  const Recordset& system = run.GLOBAL.gSystem;
  centreForm(run, form);
  for (const OptionRow& row : optionRows()) showRow(form, row, system.Field(row.key));
  // The choice of the measurement system has named the cup's unit, and put its standard sizes into the boxes.
  for (const OptionSize& size : optionSizes()) (form.*size.box).setText(system.Field(size.key).text());
}

void takeStandard(Run& run, const MeasurementStandard& standard) {
  FrmOptions& form = run.frmOptions;
  form.txtCup.setText(standard.cup);
  form.txtTablespoon.setText(standard.tablespoon);
  form.lblCupUnit.setCaption(standard.cupUnit);
}

void storeOptions(Run& run) {
  if (!sizesAreNumbers(run)) return;
  const FrmOptions& form = run.frmOptions;
  Recordset& system = run.GLOBAL.gSystem;
  system.Edit();
  for (const OptionRow& row : optionRows()) {
    system.Set(row.key, valueOf(form, row));
    apply(run, row.key);
  }
  for (const OptionSize& size : optionSizes()) system.Set(size.key, (form.*size.box).Text());
  system.Update();
  run.windows.Unload(run.frmOptions);
}

}  // namespace pantrigo
