#include "form_fixture.h"
#include "platform/text/errors.h"

namespace pantrigo {
namespace {

class ActivationTest : public FormTest {
 protected:
  ActivationTest() {
    record(dialog);
    dialog.Unload = note("frmDialog Unload");
  }

  SampleForm dialog{"frmDialog"};
};

TEST_F(ActivationTest, ShowOfAFormThatIsNotActiveActivatesIt) {
  windows.Show(other);
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "frmOther Activate", "frmOther.txtTitle GotFocus"}));
  windows.Show(other);
  EXPECT_EQ(raised(), Log{});
}

TEST_F(ActivationTest, AClickOnTheActiveFormActivatesNothing) {
  windows.userActivates(form);
  EXPECT_EQ(raised(), Log{});
}

TEST_F(ActivationTest, HidingTheActiveFormActivatesTheOneBelow) {
  windows.Hide(form);
  EXPECT_EQ(raised(), (Log{"frmOther Activate", "frmOther.txtTitle GotFocus"}));
  EXPECT_EQ(windows.active(), &other);
}

TEST_F(ActivationTest, HidingAnotherFormActivatesNothing) {
  windows.Hide(other);
  EXPECT_EQ(raised(), Log{});
}

TEST_F(ActivationTest, AFormKeepsItsFocusWhileItIsHidden) {
  windows.SetFocus(form.lstTitles);
  windows.Hide(form);
  windows.Show(form);
  EXPECT_EQ(form.ActiveControl(), &form.lstTitles);
  EXPECT_EQ(raised().back(), "lstTitles GotFocus");
}

TEST_F(ActivationTest, TheOpenerIsActivatedBeforeTheModalShowReturns) {
  toolkit.whileModal = [this] {
    EXPECT_EQ(windows.active(), &dialog);
    EXPECT_TRUE(windows.blocked(form));
    EXPECT_FALSE(windows.blocked(dialog));
    raised();
    windows.Unload(dialog);
  };
  windows.ShowModal(dialog);
  EXPECT_EQ(raised(), (Log{"frmDialog Unload", "frmSample Activate", "txtTitle GotFocus"}));
  EXPECT_FALSE(dialog.Loaded());
  EXPECT_FALSE(windows.blocked(other));
}

TEST_F(ActivationTest, ASecondModalShowIsError400) {
  int number = 0;
  toolkit.whileModal = [&] {
    try {
      windows.ShowModal(dialog);
    } catch (const RuntimeError& error) {
      number = error.number();
    }
    windows.Unload(dialog);
  };
  windows.ShowModal(dialog);
  EXPECT_EQ(number, 400);
}

TEST_F(ActivationTest, ACloseMarkPressesTheCancelButton) {
  toolkit.whileModal = [this] {
    raised();
    windows.userCloses(dialog);
    EXPECT_EQ(raised(), Log{"frmDialog.cmdCancel Click"});
    windows.Unload(dialog);
  };
  windows.ShowModal(dialog);
}

TEST_F(ActivationTest, ACloseMarkUnloadsAFormWithoutSuchAButton) {
  windows.userCloses(other);
  EXPECT_FALSE(other.Loaded());
}

TEST_F(ActivationTest, ANewLoadBringsTheValuesOfTheDesignBack) {
  windows.Unload(other);
  other.txtTitle.setText("left");
  other.setCaption("left");
  windows.Load(other);
  EXPECT_EQ(other.txtTitle.Text(), "");
  EXPECT_EQ(other.Caption(), "frmOther");
  EXPECT_EQ(other.lstTitles.ListCount(), 0);
  EXPECT_FALSE(other.Visible());
}

TEST_F(ActivationTest, TheFocusLeavesAControlThatIsDisabledOrHidden) {
  form.txtTitle.setEnabled(false);
  EXPECT_EQ(form.ActiveControl(), &form.txtMethod);
  form.txtMethod.setVisible(false);
  EXPECT_EQ(form.ActiveControl(), &form.cmbUnit);
}

TEST_F(ActivationTest, AFocusSetByCodeMustBeReachable) {
  form.cmdOK.setEnabled(false);
  for (Control* control : {static_cast<Control*>(&form.cmdOK), static_cast<Control*>(&form.lblTitle),
                           static_cast<Control*>(&dialog.txtTitle)}) {
    try {
      windows.SetFocus(*control);
      ADD_FAILURE() << control->Name();
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), 5);
    }
  }
}

}  // namespace
}  // namespace pantrigo
