#include "form_fixture.h"

namespace pantrigo {
namespace {

using PointingTest = FormTest;

TEST_F(PointingTest, AClickIsFocusThenPressThenClick) {
  userClicks(windows, form.cmdOK);
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "cmdOK GotFocus", "cmdOK MouseDown 1", "cmdOK Click"}));
}

TEST_F(PointingTest, ALabelTakesNoFocus) {
  userClicks(windows, form.lblTitle);
  EXPECT_EQ(raised(), (Log{"lblTitle MouseDown 1", "lblTitle Click"}));
}

TEST_F(PointingTest, ACheckBoxFlips) {
  userClicks(windows, form.chkMeal);
  EXPECT_TRUE(form.chkMeal.Value());
  userClicks(windows, form.chkMeal);
  EXPECT_FALSE(form.chkMeal.Value());
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "chkMeal GotFocus", "chkMeal MouseDown 1", "chkMeal Click",
                           "chkMeal MouseDown 1", "chkMeal Click"}));
}

TEST_F(PointingTest, AnOptionIsChosenOnce) {
  userClicks(windows, form.optOne);
  raised();
  userClicks(windows, form.optTwo);
  EXPECT_FALSE(form.optOne.Value());
  EXPECT_TRUE(form.optTwo.Value());
  EXPECT_EQ(raised(), (Log{"optOne LostFocus", "optTwo GotFocus", "optTwo MouseDown 1", "optTwo Click"}));
  userClicks(windows, form.optTwo);
  EXPECT_EQ(raised(), Log{"optTwo MouseDown 1"});
}

TEST_F(PointingTest, APickIsFocusThenPressThenSelection) {
  userPicks(windows, form.lstTitles, 1);
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "lstTitles GotFocus", "lstTitles MouseDown 1", "lstTitles Click",
                           "lstTitles SelChange"}));
  EXPECT_EQ(form.lstTitles.ListIndex(), 1);
}

TEST_F(PointingTest, ThePickedRowAgainIsAClickAlone) {
  userPicks(windows, form.lstTitles, 1);
  raised();
  userPicks(windows, form.lstTitles, 1);
  EXPECT_EQ(raised(), (Log{"lstTitles MouseDown 1", "lstTitles Click"}));
}

TEST_F(PointingTest, ARowThatTheFocusHasTakenAwayIsNotPicked) {
  form.lstTitles.GotFocus = [this] { form.lstTitles.RemoveItem(2); };
  form.lstHealth.GotFocus = [this] { form.lstHealth.RemoveItem(2); };
  userPicks(windows, form.lstTitles, 2);
  userToggles(windows, form.lstHealth, 2);
  EXPECT_EQ(form.lstTitles.ListIndex(), -1);
  EXPECT_EQ(raised(),
            (Log{"txtTitle LostFocus", "lstTitles MouseDown 1", "lstTitles LostFocus", "lstHealth MouseDown 1"}));
}

TEST_F(PointingTest, APressOnAListWithoutRowsStaysOneWhenTheFocusAddsARow) {
  form.lstTitles.Clear();
  form.lstTitles.GotFocus = [this] { form.lstTitles.AddItem("flour"); };
  userPresses(windows, form.lstTitles, leftButton);
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "lstTitles MouseDown 1"}));
  EXPECT_EQ(form.lstTitles.ListIndex(), -1);
}

TEST_F(PointingTest, ARowOfAComboBoxRaisesClickAndNoChange) {
  userPicks(windows, form.cmbUnit, 2);
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "cmbUnit GotFocus", "cmbUnit MouseDown 1", "cmbUnit Click"}));
  EXPECT_EQ(form.cmbUnit.Text(), "bag");
}

TEST_F(PointingTest, ATogglePutsTheMarkBeforeTheClick) {
  bool marked = false;
  form.lstHealth.Click = [&] { marked = form.lstHealth.Selected(2); };
  userToggles(windows, form.lstHealth, 2);
  EXPECT_TRUE(marked);
  userToggles(windows, form.lstHealth, 2);
  EXPECT_FALSE(marked);
}

TEST_F(PointingTest, TheSecondClickOfADoubleClickIsTheDoubleClickAlone) {
  userPicks(windows, form.lstTitles, 0);
  raised();
  userDoubleClicks(windows, form.lstTitles);
  EXPECT_EQ(raised(), Log{"lstTitles DblClick"});
}

TEST_F(PointingTest, ThereIsNoDoubleClickOnWhatTheFirstClickTookAway) {
  form.lstTitles.SelChange = [this] { windows.Hide(form); };
  userPicks(windows, form.lstTitles, 0);
  raised();
  userDoubleClicks(windows, form.lstTitles);
  EXPECT_EQ(raised(), Log{});
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(windows.active(), &other);
}

TEST_F(PointingTest, ThePressSaysWhichButton) {
  userPresses(windows, form.lblTitle, rightButton);
  userPresses(windows, form.lblTitle, leftButton);
  EXPECT_EQ(raised(), (Log{"lblTitle MouseDown 2", "lblTitle MouseDown 1"}));
}

TEST_F(PointingTest, NothingIsClickedThatLostFocusHasDisabled) {
  form.txtTitle.LostFocus = [this] { form.cmdOK.setEnabled(false); };
  userClicks(windows, form.cmdOK);
  for (const std::string& event : raised()) EXPECT_EQ(event.find("cmdOK Click"), std::string::npos);
}

TEST_F(PointingTest, NothingIsClickedThatThePressHasTakenAway) {
  form.chkMeal.MouseDown = [this](int) { windows.Hide(form); };
  userClicks(windows, form.chkMeal);
  EXPECT_FALSE(form.chkMeal.Value());
}

TEST_F(PointingTest, AnActionOnAnotherFormActivatesItFirst) {
  userClicks(windows, other.chkMeal);
  EXPECT_EQ(raised(),
            (Log{"txtTitle LostFocus", "frmOther Activate", "frmOther.txtTitle GotFocus", "frmOther.txtTitle LostFocus",
                 "frmOther.chkMeal GotFocus", "frmOther.chkMeal MouseDown 1", "frmOther.chkMeal Click"}));
}

}  // namespace
}  // namespace pantrigo
