#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <vector>

#include "desktop/desktop_test.h"
#include "desktop/dialog_checks.h"

namespace pantrigo {

namespace {

class MaintenanceTest : public DesktopTest {
 protected:
  /// Opens the dialog from the entry, and does something in it; gives whether it stood open at the end of that, and
  /// leaves it by Esc then.
  bool inDialog(const Form& form, const MenuEntry& entry, const std::function<void()>& work) {
    bool shown = false;
    bool stayed = false;
    dialogs.whenShown(form.Name(), [&] {
      shown = true;
      // Access keys belong to the active window.
      EXPECT_TRUE(QTest::qWaitFor([&] { return window(form).isActiveWindow(); }));
      work();
      stayed = form.Loaded();
      if (stayed) press(form, Qt::Key_Escape);
    });
    action(entry).trigger();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(form.Loaded());
    return stayed;
  }
  bool inCourses(const std::function<void()>& work) {
    return inDialog(run().frmCategory, run().frmBrowse.mnuCategoriesCourse, work);
  }
  bool inOptions(const std::function<void()>& work) {
    return inDialog(run().frmOptions, run().frmBrowse.mnuOptions, work);
  }

  /// Presses the access key of a button that closes the dialog, and waits for that: the button shows itself pressed
  /// first.
  void leaveBy(const Form& form, Qt::Key key) {
    QTest::keyClick(&window(form), key, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !form.Loaded(); }));
  }
  [[nodiscard]] QLineEdit& box(const TextBox& control) { return widget<QLineEdit>(control); }
  [[nodiscard]] std::vector<std::string> rows(const ComboBox& control) {
    std::vector<std::string> texts;
    const auto& combo = widget<QComboBox>(control);
    for (int row = 0; row < combo.count(); ++row) texts.push_back(combo.itemText(row).toStdString());
    return texts;
  }
};

using Texts = std::vector<std::string>;

TEST_F(MaintenanceTest, NothingOfTheCategoryDialogIsCut) {
  start();
  inCourses([&] {
    expectNothingCut(window(run().frmCategory));
    EXPECT_EQ(window(run().frmCategory).windowTitle(), "Categories - Course");
    const QLineEdit& entry = box(run().frmCategory.txtCategory);
    EXPECT_LE(entry.fontMetrics().horizontalAdvance(QString(30, QLatin1Char('W'))), entry.width() - 10);
    EXPECT_EQ(entry.accessibleName(), "Enter item to be added, updated or deleted:");
  });
}

TEST_F(MaintenanceTest, TheTabKeyGoesThroughTheCategoryDialogInReadingOrder) {
  start();
  inCourses([&] {
    const Texts names = tabRound(window(run().frmCategory));
    EXPECT_EQ(names, (Texts{"txtCategory", "cmdAdd", "cmdUpdate", "cmdDelete", "cmdClear", "cmdCancel", "cmdHelp"}));
    expectReadingOrder(window(run().frmCategory), names);
  });
}

TEST_F(MaintenanceTest, AnEntryIsAddedByKeysAndShownInBothWindows) {
  start();
  open(0);
  EXPECT_FALSE(inDialog(run().frmCategory, run().frmDetail.mnuCategoriesCoarse, [&] {
    EXPECT_EQ(box(run().frmCategory.txtCategory).selectedText(), "Dessert");
    type(run().frmCategory, "Cook's snacks");
    press(run().frmCategory, Qt::Key_Return);
    EXPECT_TRUE(run().frmCategory.Visible());
    leaveBy(run().frmCategory, Qt::Key_A);
  }));
  EXPECT_EQ(rows(run().frmBrowse.cmbCourse), (Texts{"Dessert", "Main Course", "Cook's snacks"}));
  EXPECT_EQ(rows(run().frmDetail.cmbCourse), (Texts{"Dessert", "Main Course", "Cook's snacks"}));
  EXPECT_EQ(widget<QComboBox>(run().frmDetail.cmbCourse).currentText(), "Dessert");
}

TEST_F(MaintenanceTest, ARenamedEntryLeavesTheTextOfTheOpenRecipe) {
  start();
  open(0);
  inDialog(run().frmCategory, run().frmDetail.mnuCategoriesCoarse, [&] {
    type(run().frmCategory, "Pudding");
    leaveBy(run().frmCategory, Qt::Key_U);
  });
  EXPECT_EQ(rows(run().frmDetail.cmbCourse), (Texts{"Main Course", "Pudding"}));
  EXPECT_EQ(widget<QComboBox>(run().frmDetail.cmbCourse).currentText(), "Dessert");
}

TEST_F(MaintenanceTest, TheQuestionBeforeADeleteTakesItsAccessKeys) {
  start();
  const auto remove = [&](const char* button) {
    inDialog(run().frmCategory, run().frmBrowse.mnuCategoriesHealth, [&] {
      dialogs.answer(button);
      type(run().frmCategory, "low fat");
      leaveBy(run().frmCategory, Qt::Key_D);
    });
    const std::vector<SeenBox> boxes = dialogs.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Are you sure you want to delete this category?");
    EXPECT_EQ(boxes[0].caption, "Confirmation");
  };
  remove("Esc");
  remove("No");
  remove("Yes");
  Recordset& categories = run().GLOBAL.gHealth;
  categories.Index("HealthIdxDescription");
  categories.Seek("=", "Low Fat");
  EXPECT_TRUE(categories.NoMatch());
}

TEST_F(MaintenanceTest, ClearGoesToTheEmptyBox) {
  start();
  EXPECT_TRUE(inCourses([&] {
    type(run().frmCategory, "Snack");
    QTest::mouseClick(&widget<QPushButton>(run().frmCategory.cmdClear), Qt::LeftButton);
    EXPECT_EQ(box(run().frmCategory.txtCategory).text(), "");
    EXPECT_TRUE(box(run().frmCategory.txtCategory).hasFocus());
  }));
}

TEST_F(MaintenanceTest, TheCloseMarkOfTheCategoryDialogKeepsTheEditsOfTheRecipe) {
  start();
  open(0);
  widget<QLineEdit>(run().frmDetail.txtServes).setFocus(Qt::TabFocusReason);
  type(run().frmDetail, "9");
  const std::string typed = run().frmDetail.txtServes.Text();
  EXPECT_FALSE(
      inDialog(run().frmCategory, run().frmDetail.mnuCategoriesEase, [&] { window(run().frmCategory).close(); }));
  EXPECT_EQ(run().frmDetail.txtServes.Text(), typed);
  EXPECT_TRUE(run().GLOBAL.gDetailChanged);
}

TEST_F(MaintenanceTest, NothingOfTheOptionsIsCutWithAnyMeasurementSystem) {
  start();
  inOptions([&] {
    FrmOptions& form = run().frmOptions;
    const QSize size = window(form).size();
    for (const OptionButton* system : {&form.optUKImperial, &form.optUSImperial, &form.optMetric}) {
      QTest::mouseClick(&widget<QRadioButton>(*system), Qt::LeftButton);
      expectNothingCut(window(form));
      EXPECT_EQ(window(form).size(), size);
    }
    EXPECT_LE(size.height(), window(form).screen()->availableGeometry().height());
    EXPECT_EQ(box(form.txtCup).accessibleName(), "Cup / Spoon details: 1 cup =");
  });
}

TEST_F(MaintenanceTest, TheTabKeyGoesThroughTheOptionsInReadingOrder) {
  start();
  inOptions([&] {
    const Texts names = tabRound(window(run().frmOptions));
    EXPECT_EQ(names, (Texts{"chkShowRecipes",
                            "chkShowToolbars",
                            "chkCentilitres",
                            "chkCentimetres",
                            "chkCentigrams",
                            "optMetric",
                            "optUKImperial",
                            "optUSImperial",
                            "optTenth",
                            "optHalf",
                            "optThird",
                            "optQuarter",
                            "optDecimals",
                            "optFractions",
                            "chkUseOriginalUOM",
                            "chkSettingsIngredients",
                            "optKilojoules",
                            "optCalories",
                            "txtCup",
                            "txtTablespoon",
                            "cmdOK",
                            "cmdCancel",
                            "cmdHelp"}));
    expectReadingOrder(window(run().frmOptions), names);
  });
}

TEST_F(MaintenanceTest, TheBlankChoosesASystemAndItsSizesAreShown) {
  start();
  inOptions([&] {
    FrmOptions& form = run().frmOptions;
    for (int stop = 0; stop < 6; ++stop) press(form, Qt::Key_Tab);
    ASSERT_TRUE(widget<QRadioButton>(form.optUKImperial).hasFocus());
    press(form, Qt::Key_Space);
    EXPECT_TRUE(widget<QRadioButton>(form.optUKImperial).isChecked());
    EXPECT_FALSE(widget<QRadioButton>(form.optMetric).isChecked());
    EXPECT_EQ(box(form.txtCup).text(), "8");
    EXPECT_EQ(box(form.txtTablespoon).text(), "3");
    EXPECT_EQ(widget<QLabel>(form.lblCupUnit).text(), "UK fluid ounces (UK fl oz)");
  });
}

TEST_F(MaintenanceTest, ARefusedSizeIsSelectedAndCanBeTypedOver) {
  start();
  EXPECT_FALSE(inOptions([&] {
    FrmOptions& form = run().frmOptions;
    box(form.txtCup).setFocus(Qt::TabFocusReason);
    type(form, "abc");
    dialogs.answer("OK");
    press(form, Qt::Key_Return);
    const std::vector<SeenBox> boxes = dialogs.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Invalid cup details.");
    EXPECT_EQ(window(form).focusWidget(), &box(form.txtCup));
    EXPECT_EQ(box(form.txtCup).selectedText(), "abc");
    type(form, "300");
    press(form, Qt::Key_Return);
  }));
  EXPECT_EQ(run().GLOBAL.gSystem.Field("Cup").text(), "300");
}

TEST_F(MaintenanceTest, ToolBarsThatAreTurnedOffGoAtOnce) {
  start();
  const QWidget& toolBar = widget<QWidget>(run().frmBrowse.tbBrowse);
  const QWidget& list = widget<QWidget>(run().frmBrowse.fmeList);
  const int height = list.height();
  ASSERT_TRUE(toolBar.isVisible());
  for (const bool shown : {false, true}) {
    inOptions([&] {
      press(run().frmOptions, Qt::Key_Tab);
      press(run().frmOptions, Qt::Key_Space);
      press(run().frmOptions, Qt::Key_Return);
    });
    EXPECT_EQ(toolBar.isVisible(), shown);
    if (shown) {
      EXPECT_EQ(list.height(), height);
    } else {
      EXPECT_GT(list.height(), height);
    }
  }
}

}  // namespace

}  // namespace pantrigo
