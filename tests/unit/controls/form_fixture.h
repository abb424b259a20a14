#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/input.h"
#include "support/quiet_toolkit.h"

namespace pantrigo {

using Log = std::vector<std::string>;

/// A form with a control of each kind.
struct SampleForm : Form {
  explicit SampleForm(std::string_view name = "frmSample", bool withButtons = true) : Form(name, name, 3000, 2000) {
    setKeyPreview(true);
    if (withButtons) {
      setDefaultButton(cmdOK);
      setCancelButton(cmdCancel);
    }
    sealDesign();
  }

  Label lblTitle{*this, "lblTitle", "Title", {}};
  TextBox txtTitle{*this, "txtTitle", {}, 5};
  TextBox txtMethod{*this, "txtMethod", {}, 0, Lines::Many};
  ComboBox cmbUnit{*this, "cmbUnit", {}, 4};
  ListBox lstTitles{*this, "lstTitles", {}};
  ListBox lstHealth{*this, "lstHealth", {}, Selection::Multiple};
  Frame fmeChoice{*this, "fmeChoice", "Choice", {}};
  OptionButton optOne{fmeChoice, "optOne", "One", {}};
  OptionButton optTwo{fmeChoice, "optTwo", "Two", {}};
  CheckBox chkMeal{*this, "chkMeal", "Meal", {}};
  CommandButton cmdOK{*this, "cmdOK", "OK", {}};
  CommandButton cmdCancel{*this, "cmdCancel", "Cancel", {}};
};

/// A toolkit whose person does one thing while a form is up modally.
class AttendedToolkit : public QuietToolkit {
 public:
  void waitModal(Form&, const std::function<bool()>& over) override {
    if (!over() && whileModal) whileModal();
  }
  std::function<void()> whileModal;
};

/// Two forms on show, of which the first is active, and a log of the events that are raised.
class FormTest : public testing::Test {
 protected:
  FormTest() {
    for (SampleForm* shown : {&other, &form}) {
      windows.Load(*shown);
      for (const char* row : {"cup", "tbsp", "bag"}) {
        shown->cmbUnit.AddItem(row);
        shown->lstTitles.AddItem(row);
        shown->lstHealth.AddItem(row);
      }
      windows.Show(*shown);
    }
    record(form);
    record(other);
  }

  void record(SampleForm& recorded) {
    const std::string prefix = &recorded == &form ? "" : recorded.Name() + ".";
    recorded.Activate = note(recorded.Name() + " Activate");
    recorded.KeyPress = [this, prefix](int key) { log.push_back(prefix + "KeyPress " + std::to_string(key)); };
    recorded.KeyDown = [this, prefix](int key) { log.push_back(prefix + "KeyDown " + std::to_string(key)); };
    for (Control* control : recorded.controls()) {
      const std::string name = prefix + control->Name();
      control->GotFocus = note(name + " GotFocus");
      control->LostFocus = note(name + " LostFocus");
      control->Click = note(name + " Click");
      control->DblClick = note(name + " DblClick");
      control->MouseDown = [this, name](int button) { log.push_back(name + " MouseDown " + std::to_string(button)); };
      control->KeyDown = [this, name](int key) { log.push_back(name + " KeyDown " + std::to_string(key)); };
    }
    recorded.lstTitles.SelChange = note(prefix + "lstTitles SelChange");
    recorded.txtTitle.Change = [this, &recorded] { log.push_back("Change " + recorded.txtTitle.Text()); };
    recorded.txtMethod.Change = [this, &recorded] { log.push_back("Change " + recorded.txtMethod.Text()); };
    recorded.cmbUnit.Change = [this, &recorded] { log.push_back("Change " + recorded.cmbUnit.Text()); };
  }

  std::function<void()> note(std::string text) {
    return [this, text = std::move(text)] { log.push_back(text); };
  }

  /// What was raised since the last call.
  Log raised() { return std::exchange(log, {}); }

  AttendedToolkit toolkit;
  EventLoop loop{toolkit};
  Windows windows{loop};
  SampleForm other{"frmOther", false};
  SampleForm form;
  Log log;
};

}  // namespace pantrigo
