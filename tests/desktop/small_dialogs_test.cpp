#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <string>
#include <vector>

#include "desktop/desktop_test.h"
#include "desktop/dialog_checks.h"

namespace pantrigo {

namespace {

class SmallDialogsTest : public DesktopTest {
 protected:
  /// Opens the dialog from the entry, and runs the doings on it; Esc closes it when they have not.
  void inDialog(const Form& form, const MenuEntry& entry, const std::function<void()>& doings) {
    bool shown = false;
    dialogs.whenShown(form.Name(), [&] {
      // Access keys belong to the active window.
      shown = QTest::qWaitFor([&] { return window(form).isActiveWindow(); });
      doings();
      if (form.Loaded()) press(form, Qt::Key_Escape);
    });
    action(entry).trigger();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(form.Loaded());
  }

  [[nodiscard]] QLineEdit& box(const TextBox& box) { return widget<QLineEdit>(box); }

  void typeOver(const TextBox& target, const char* text) {
    box(target).setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&box(target), QString::fromUtf8(text));
  }
};

TEST_F(SmallDialogsTest, NothingIsCut) {
  start();
  open(0);
  run().GLOBAL.gEnergy = 9999999;
  run().GLOBAL.gSodium = 1234.567F;
  FrmNutrition& nutrition = run().frmNutrition;
  inDialog(nutrition, run().frmDetail.mnuNutrition, [&] {
    expectNothingCut(window(nutrition));
    for (const TextBox* target : {&nutrition.txtEnergy, &nutrition.txtSodium}) {
      EXPECT_LE(box(*target).fontMetrics().horizontalAdvance(box(*target).text()), box(*target).width() - 10);
    }
  });
  inDialog(run().frmSettings, run().frmDetail.mnuSettings, [&] { expectNothingCut(window(run().frmSettings)); });
  inDialog(run().frmSource, run().frmDetail.mnuSource, [&] {
    expectNothingCut(window(run().frmSource));
    const QString longText = QStringLiteral("A little book of puddings, handed down by an aunt.");
    ASSERT_EQ(longText.size(), 50);
    EXPECT_LE(box(run().frmSource.txtSource).fontMetrics().horizontalAdvance(longText),
              box(run().frmSource.txtSource).width() - 10);
  });
}

TEST_F(SmallDialogsTest, TheTabKeyGoesInReadingOrder) {
  start();
  open(0);
  inDialog(run().frmNutrition, run().frmDetail.mnuNutrition, [&] {
    const std::vector<std::string> names = tabRound(window(run().frmNutrition));
    EXPECT_EQ(names, (std::vector<std::string>{"txtEnergy", "txtProtein", "txtCholesterol", "txtCarbohydrates",
                                               "txtSodium", "txtFibre", "txtCalcium", "txtFat", "txtIron", "cmdOK",
                                               "cmdCancel", "cmdClear", "cmdHelp"}));
    expectReadingOrder(window(run().frmNutrition), names);
  });
  inDialog(run().frmSettings, run().frmDetail.mnuSettings, [&] {
    const std::vector<std::string> names = tabRound(window(run().frmSettings));
    EXPECT_EQ(names, (std::vector<std::string>{"txtSettings", "cmdOK", "cmdCancel", "cmdClear", "cmdHelp"}));
    expectReadingOrder(window(run().frmSettings), names);
  });
  inDialog(run().frmSource, run().frmDetail.mnuSource, [&] {
    const std::vector<std::string> names = tabRound(window(run().frmSource));
    EXPECT_EQ(names, (std::vector<std::string>{"txtSource", "cmdOK", "cmdCancel", "cmdHelp"}));
    expectReadingOrder(window(run().frmSource), names);
  });
}

TEST_F(SmallDialogsTest, TheBoxesAreAnnouncedByTheirLabels) {
  start();
  open(0);
  inDialog(run().frmNutrition, run().frmDetail.mnuNutrition, [&] {
    FrmNutrition& form = run().frmNutrition;
    EXPECT_EQ(box(form.txtEnergy).accessibleName(), "Enter values applicable per serve. Energy (kilojoules)");
    EXPECT_EQ(box(form.txtCholesterol).accessibleName(), "Enter values applicable per serve. Cholesterol (mg)");
    EXPECT_EQ(box(form.txtIron).accessibleName(), "Enter values applicable per serve. Iron (mg)");
  });
  inDialog(run().frmSettings, run().frmDetail.mnuSettings, [&] {
    EXPECT_EQ(box(run().frmSettings.txtSettings).accessibleName(), "Enter number of people to cater for: Settings");
  });
  inDialog(run().frmSource, run().frmDetail.mnuSource,
           [&] { EXPECT_EQ(box(run().frmSource.txtSource).accessibleName(), "Enter recipe source:"); });
}

TEST_F(SmallDialogsTest, ARefusedEntryIsSelectedAndCanBeTypedOver) {
  start();
  open(0);
  inDialog(run().frmNutrition, run().frmDetail.mnuNutrition, [&] {
    FrmNutrition& form = run().frmNutrition;
    typeOver(form.txtIron, "abc");
    dialogs.answer("OK");
    press(form, Qt::Key_Return);
    ASSERT_EQ(dialogs.boxes().size(), 1u);
    EXPECT_EQ(window(form).focusWidget(), &box(form.txtIron));
    EXPECT_EQ(box(form.txtIron).selectedText(), "abc");
    type(form, "x");
    EXPECT_EQ(form.txtIron.Text(), "x");
    dialogs.answer("OK");
    QTest::mouseClick(&widget<QPushButton>(form.cmdOK), Qt::LeftButton);
    ASSERT_EQ(dialogs.boxes().size(), 1u);
    EXPECT_EQ(window(form).focusWidget(), &box(form.txtIron));
    EXPECT_EQ(box(form.txtIron).selectedText(), "x");
    type(form, "1.5");
    press(form, Qt::Key_Return);
    EXPECT_FALSE(form.Loaded());
  });
  EXPECT_EQ(run().GLOBAL.gIron, 1.5F);
  EXPECT_EQ(action(run().frmDetail.mnuNutrition).text(), "Nutrition~");
}

TEST_F(SmallDialogsTest, WhatIsTypedStaysTyped) {
  start();
  open(0);
  inDialog(run().frmNutrition, run().frmDetail.mnuNutrition, [&] {
    FrmNutrition& form = run().frmNutrition;
    type(form, "1234567");
    EXPECT_EQ(form.txtEnergy.Text(), "123456");
    QTest::keyClick(&window(form), Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return box(form.txtEnergy).text().isEmpty(); }));
    EXPECT_EQ(window(form).focusWidget(), &box(form.txtEnergy));
  });
}

TEST_F(SmallDialogsTest, TheNumberOfPeopleIsStoredFromTheKeyboard) {
  start();
  open(0);
  inDialog(run().frmSettings, run().frmDetail.mnuSettings, [&] {
    type(run().frmSettings, "0");
    dialogs.answer("OK");
    press(run().frmSettings, Qt::Key_Return);
    const std::vector<SeenBox> boxes = dialogs.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Settings must be greater than 0.");
    EXPECT_EQ(boxes[0].caption, "Error");
    EXPECT_EQ(box(run().frmSettings.txtSettings).selectedText(), "0");
    type(run().frmSettings, "12");
    press(run().frmSettings, Qt::Key_Return);
  });
  EXPECT_EQ(run().GLOBAL.gSystem.Field("Settings").text(), "12");
}

TEST_F(SmallDialogsTest, EnterCancelsTheSourceAndTheAccessKeyOfOkTakesIt) {
  start();
  open(0);
  inDialog(run().frmSource, run().frmDetail.mnuSource, [&] {
    type(run().frmSource, "Grandma");
    press(run().frmSource, Qt::Key_Return);
    EXPECT_FALSE(run().frmSource.Loaded());
  });
  EXPECT_EQ(run().GLOBAL.gSource, "");
  inDialog(run().frmSource, run().frmDetail.mnuSource, [&] {
    EXPECT_TRUE(widget<QPushButton>(run().frmSource.cmdCancel).isDefault());
    EXPECT_FALSE(widget<QPushButton>(run().frmSource.cmdOK).isDefault());
    type(run().frmSource, "Grandma");
    QTest::keyClick(&window(run().frmSource), Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !run().frmSource.Loaded(); }));
  });
  EXPECT_EQ(run().GLOBAL.gSource, "Grandma");
  inDialog(run().frmSource, run().frmDetail.mnuSource, [&] {
    type(run().frmSource, "Aunt Mary");
    press(run().frmSource, Qt::Key_Tab);
    press(run().frmSource, Qt::Key_Space);
  });
  EXPECT_EQ(run().GLOBAL.gSource, "Aunt Mary");
}

TEST_F(SmallDialogsTest, AClickOnTheTitlesFrameAsksForTheSource) {
  start();
  open(0);
  QWidget& frame = widget<QWidget>(run().frmDetail.fmeTitle);
  bool shown = false;
  dialogs.whenShown("frmSource", [&] {
    shown = true;
    press(run().frmSource, Qt::Key_Escape);
  });
  QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(frame.width() / 2, 4));
  EXPECT_TRUE(shown);
  press(run().frmDetail, Qt::Key_PageDown);
  press(run().frmDetail, Qt::Key_PageDown);
  EXPECT_FALSE(action(run().frmDetail.mnuSource).isEnabled());
  dialogs.answer("OK");
  QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(frame.width() / 2, 4));
  const std::vector<SeenBox> boxes = dialogs.boxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "Recipe source cannot be altered.");
}

}  // namespace

}  // namespace pantrigo
