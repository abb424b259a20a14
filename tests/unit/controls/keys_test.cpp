#include "form_fixture.h"

namespace pantrigo {
namespace {

using KeysTest = FormTest;

TEST_F(KeysTest, EscPressesTheCancelButtonAndNothingElse) {
  EXPECT_EQ(userKey(windows, form, keyEscape), KeyUse::Used);
  EXPECT_EQ(raised(), Log{"cmdCancel Click"});
}

TEST_F(KeysTest, EscGoesToTheFormWithoutACancelButtonThatCanBeReached) {
  form.cmdCancel.setEnabled(false);
  EXPECT_EQ(userKey(windows, form, keyEscape), KeyUse::Used);
  EXPECT_EQ(raised(), Log{"KeyPress 27"});
}

TEST_F(KeysTest, EnterPressesTheDefaultButtonWithoutMovingTheFocus) {
  EXPECT_EQ(userKey(windows, form, keyReturn), KeyUse::Used);
  EXPECT_EQ(raised(), Log{"cmdOK Click"});
  EXPECT_EQ(form.ActiveControl(), &form.txtTitle);
}

TEST_F(KeysTest, EnterPressesTheFocusedButtonFirst) {
  windows.SetFocus(form.cmdCancel);
  raised();
  userKey(windows, form, keyReturn);
  EXPECT_EQ(raised(), Log{"cmdCancel Click"});
}

TEST_F(KeysTest, EnterIsLeftToABoxOfSeveralLines) {
  windows.SetFocus(form.txtMethod);
  raised();
  EXPECT_EQ(userKey(windows, form, keyReturn), KeyUse::Unused);
  EXPECT_EQ(raised(), Log{});
}

TEST_F(KeysTest, EnterGoesToTheControlWhereNoButtonTakesIt) {
  form.cmdOK.setVisible(false);
  windows.SetFocus(form.lstTitles);
  raised();
  userKey(windows, form, keyReturn);
  EXPECT_EQ(raised(), Log{"lstTitles KeyDown 13"});
}

TEST_F(KeysTest, OtherKeysGoToTheFormAndThenToTheControl) {
  windows.SetFocus(form.lstTitles);
  raised();
  for (const int key : {keyPageUp, keyPageDown, keyDelete}) EXPECT_EQ(userKey(windows, form, key), KeyUse::Unused);
  EXPECT_EQ(raised(), (Log{"KeyDown 33", "lstTitles KeyDown 33", "KeyDown 34", "lstTitles KeyDown 34", "KeyDown 46",
                           "lstTitles KeyDown 46"}));
}

TEST_F(KeysTest, NothingGoesToTheControlOnceTheFormIsNoLongerActive) {
  form.KeyDown = [this](int) { windows.Hide(form); };
  userKey(windows, form, keyPageUp);
  EXPECT_EQ(raised(), (Log{"frmOther Activate", "frmOther.txtTitle GotFocus"}));
}

TEST_F(KeysTest, AKeyActivatesItsFormFirst) {
  userKey(windows, other, keyPageUp);
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "frmOther Activate", "frmOther.txtTitle GotFocus",
                           "frmOther.KeyDown 33", "frmOther.txtTitle KeyDown 33"}));
}

}  // namespace
}  // namespace pantrigo
