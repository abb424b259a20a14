#include "form_fixture.h"

namespace pantrigo {
namespace {

using TypingTest = FormTest;

TEST_F(TypingTest, EachCharacterIsAChangeAndTheFirstReplacesTheText) {
  form.txtTitle.setText("old");
  raised();
  userTypes(windows, form.txtTitle, "pie");
  EXPECT_EQ(raised(), (Log{"Change p", "Change pi", "Change pie"}));
}

TEST_F(TypingTest, MovesTheFocusFirst) {
  userTypes(windows, form.txtMethod, "x");
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "txtMethod GotFocus", "Change x"}));
}

TEST_F(TypingTest, TheSameTextAgainIsAChangeAtEachKeystroke) {
  form.txtTitle.setText("ab");
  raised();
  userTypes(windows, form.txtTitle, "ab");
  EXPECT_EQ(raised(), (Log{"Change a", "Change ab"}));
  userTypes(windows, form.txtTitle, "a");
  userTypes(windows, form.txtTitle, "a");
  EXPECT_EQ(raised(), (Log{"Change a", "Change a"}));
}

TEST_F(TypingTest, AnEmptyTextDeletesWithOneChange) {
  form.txtTitle.setText("ab");
  raised();
  userTypes(windows, form.txtTitle, "");
  EXPECT_EQ(raised(), Log{"Change "});
  userTypes(windows, form.txtTitle, "");
  EXPECT_EQ(raised(), Log{});
}

TEST_F(TypingTest, NoMoreCharactersAreTakenThanTheBoxHolds) {
  userTypes(windows, form.txtTitle, "crème brûlée");
  EXPECT_EQ(form.txtTitle.Text(), "crème");
  EXPECT_EQ(raised().size(), 5U);
  userTypes(windows, form.cmbUnit, "teaspoon");
  EXPECT_EQ(form.cmbUnit.Text(), "teas");
}

TEST_F(TypingTest, LineEndsAreOneKeystrokeInABoxOfSeveralLines) {
  userTypes(windows, form.txtMethod, "a\nb\r\n\r\rc");
  EXPECT_EQ(form.txtMethod.Text(), "a\r\nb\r\n\r\n\r\nc");
  EXPECT_EQ(raised().size(), 2U + 7U);
}

TEST_F(TypingTest, ABoxOfOneLineTakesNoLineEnd) {
  form.txtTitle.setText("old");
  userTypes(windows, form.txtTitle, "\na\r\nb");
  EXPECT_EQ(form.txtTitle.Text(), "ab");
}

TEST_F(TypingTest, ALineEndCountsAsTwoCharacters) {
  form.txtMethod.setMaxLength(2);
  userTypes(windows, form.txtMethod, "a\nb");
  EXPECT_EQ(form.txtMethod.Text(), "ab");
}

TEST_F(TypingTest, InAComboBoxNoRowStaysPicked) {
  userPicks(windows, form.cmbUnit, 0);
  userTypes(windows, form.cmbUnit, "cup");
  EXPECT_EQ(form.cmbUnit.ListIndex(), -1);
  EXPECT_EQ(form.cmbUnit.Text(), "cup");
}

TEST_F(TypingTest, EndsWhenTheBoxLosesTheFocus) {
  form.txtTitle.Change = [this] {
    if (form.txtTitle.Text() == "ab") windows.SetFocus(form.txtMethod);
  };
  userTypes(windows, form.txtTitle, "abc");
  EXPECT_EQ(form.txtTitle.Text(), "ab");
}

TEST_F(TypingTest, GoesNowhereWhenTheFocusDoesNotGetThere) {
  form.txtTitle.LostFocus = [this] { form.txtMethod.setEnabled(false); };
  userTypes(windows, form.txtMethod, "x");
  EXPECT_EQ(form.txtMethod.Text(), "");
}

TEST_F(TypingTest, GoesOnFromWhatCodeMadeOfTheText) {
  form.txtTitle.Change = [this] {
    if (form.txtTitle.Text() == "a") form.txtTitle.setText("A-");
  };
  userTypes(windows, form.txtTitle, "ab");
  EXPECT_EQ(form.txtTitle.Text(), "A-b");
}

TEST_F(TypingTest, AnEditOfTheWholeTextIsOneChange) {
  userEdits(windows, form.txtTitle, "pasted");
  EXPECT_EQ(raised(), Log{"Change pasted"});
  userEdits(windows, form.txtTitle, "pasted");
  EXPECT_EQ(raised(), Log{});
  userEdits(windows, form.cmbUnit, "bag");
  EXPECT_EQ(raised(), (Log{"txtTitle LostFocus", "cmbUnit GotFocus", "Change bag"}));
}

}  // namespace
}  // namespace pantrigo
