#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "desktop/desktop_test.h"
#include "desktop/look.h"

namespace pantrigo {

namespace {

/// The pie of the small store has the rows "1 cup flour, sifted" and "500 g apples"; the stew has none.
class IngredientTest : public DesktopTest {
 protected:
  [[nodiscard]] FrmIngredient& dialog() { return run().frmIngredient; }

  /// Opens the dialog by a click on a row of the pie, does something in it, and leaves it by Esc.
  void onRow(int row, const std::function<void()>& work) {
    start();
    open(0);
    inDialog([&] { clickRow(run().frmDetail.lstIngredient, row); }, work);
  }

  void inDialog(const std::function<void()>& opening, const std::function<void()>& work) {
    bool shown = false;
    dialogs.whenShown("frmIngredient", [&, work] {
      shown = true;
      awaitActive();
      work();
      if (dialog().Visible()) press(dialog(), Qt::Key_Escape);
    });
    opening();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(dialog().Loaded());
  }

  /// The dialog has the keyboard, which a window manager would give it, also back after a box. A window counts as
  /// active already when the one below it is, so this asks the widget.
  void awaitActive() {
    window(dialog()).activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window(dialog()).isActiveWindow(); }));
  }

  [[nodiscard]] QLineEdit& box(const TextBox& control) { return widget<QLineEdit>(control); }
  [[nodiscard]] QComboBox& unit() { return widget<QComboBox>(dialog().cmbUnit); }
  [[nodiscard]] QPushButton& button(const CommandButton& control) { return widget<QPushButton>(control); }
  void click(const CommandButton& control) { QTest::mouseClick(&button(control), Qt::LeftButton); }

  /// Types over what the box with the focus holds.
  void typeOver(const char* text) {
    auto* focused = window(dialog()).focusWidget();
    if (auto* line = qobject_cast<QLineEdit*>(focused)) line->selectAll();
    if (auto* combo = qobject_cast<QComboBox*>(focused)) combo->lineEdit()->selectAll();
    type(dialog(), text);
  }
  void tab() { press(dialog(), Qt::Key_Tab); }
};

TEST_F(IngredientTest, AClickOnARowShowsItInTheBoxes) {
  onRow(1, [&] {
    EXPECT_EQ(window(dialog()).windowTitle(), "Ingredient");
    EXPECT_EQ(box(dialog().txtQuantity).text(), "500");
    EXPECT_EQ(unit().currentText(), "g");
    EXPECT_EQ(box(dialog().txtDescription).text(), "apples");
    EXPECT_TRUE(box(dialog().txtQuantity).hasFocus());
    EXPECT_EQ(widget<QListView>(run().frmDetail.lstIngredient).currentIndex().row(), 1);
    EXPECT_TRUE(window(run().frmDetail).isVisible());
  });
  EXPECT_EQ(run().windows.active(), &run().frmDetail);
}

TEST_F(IngredientTest, AKeyInTheListOpensTheRowThatItGoesTo) {
  start();
  open(0);
  widget<QListView>(run().frmDetail.lstIngredient).setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(dialog().Visible());
  for (const char* description : {"flour", "apples"}) {
    inDialog([&] { press(run().frmDetail, Qt::Key_Down); },
             [&] { EXPECT_EQ(box(dialog().txtDescription).text(), description); });
  }
}

TEST_F(IngredientTest, TheFocusByTabOnAnEmptyListOpensTheDialogOnce) {
  start();
  open(1);
  auto& list = widget<QListView>(run().frmDetail.lstIngredient);
  inDialog([&] { list.setFocus(Qt::TabFocusReason); }, [&] { EXPECT_EQ(run().GLOBAL.gIngredientLast, -1); });
  EXPECT_EQ(run().frmDetail.ActiveControl(), &run().frmDetail.lstIngredient);
  press(run().frmDetail, Qt::Key_Tab);
  list.setFocus(Qt::TabFocusReason);
  EXPECT_FALSE(dialog().Loaded());
}

TEST_F(IngredientTest, TheKeyboardAloneTypesRowsAndReturnsToTheRecipe) {
  start();
  open(1);
  auto& list = widget<QListView>(run().frmDetail.lstIngredient);
  inDialog([&] { list.setFocus(Qt::TabFocusReason); },
           [&] {
             typeOver("2");
             tab();
             typeOver("bag");
             tab();
             typeOver("flour");
             tab();
             typeOver("sifted");
             press(dialog(), Qt::Key_Return);
             EXPECT_TRUE(box(dialog().txtQuantity).hasFocus());
             tab();
             tab();
             typeOver("salt");
             press(dialog(), Qt::Key_Return);
           });
  EXPECT_EQ(run().frmDetail.lstIngredient.List(0), "2 bags flour, sifted");
  EXPECT_EQ(run().frmDetail.lstIngredient.List(1), "salt");
  QTRY_COMPARE(list.model()->rowCount(), 2);
  EXPECT_TRUE(list.hasFocus());
}

TEST_F(IngredientTest, TabsGoInReadingOrder) {
  onRow(0, [&] {
    const Control* expected[] = {
        &dialog().cmbUnit,     &dialog().txtDescription, &dialog().txtPreparation, &dialog().chkConvertCupSpoon,
        &dialog().cmdPrevious, &dialog().cmdNext,        &dialog().cmdAdd,         &dialog().cmdUpdate,
        &dialog().cmdDelete,   &dialog().cmdClear,       &dialog().cmdCancel,      &dialog().cmdHelp,
        &dialog().txtQuantity};
    for (const Control* control : expected) {
      tab();
      EXPECT_EQ(dialog().ActiveControl(), control) << control->Name();
      EXPECT_EQ(window(dialog()).focusWidget(), window(dialog()).widgetOf(*control)) << control->Name();
    }
  });
}

TEST_F(IngredientTest, AddIsTheDefaultButtonAndKeysOfTheCaptionsPress) {
  onRow(0, [&] {
    EXPECT_TRUE(button(dialog().cmdAdd).isDefault());
    QTest::keyClick(&window(dialog()), Qt::Key_L, Qt::AltModifier);
    QTRY_COMPARE(box(dialog().txtQuantity).text(), "");
    typeOver("3");
    QTest::keyClick(&window(dialog()), Qt::Key_U, Qt::AltModifier);
    QTRY_COMPARE(run().frmDetail.lstIngredient.List(0), "3");
  });
}

TEST_F(IngredientTest, TheArrowsWalkAndMoveTheLineBehind) {
  onRow(0, [&] {
    click(dialog().cmdNext);
    EXPECT_EQ(box(dialog().txtDescription).text(), "apples");
    EXPECT_EQ(widget<QListView>(run().frmDetail.lstIngredient).currentIndex().row(), 1);
    EXPECT_FALSE(widget<QCheckBox>(dialog().chkConvertCupSpoon).isEnabled());
    click(dialog().cmdPrevious);
    EXPECT_EQ(box(dialog().txtDescription).text(), "flour");
    EXPECT_TRUE(widget<QCheckBox>(dialog().chkConvertCupSpoon).isEnabled());
  });
}

TEST_F(IngredientTest, ARefusedQuantityIsSelectedAndTheRestStays) {
  onRow(0, [&] {
    typeOver("1 1/7");
    box(dialog().txtDescription).setFocus(Qt::TabFocusReason);
    typeOver("rye");
    press(dialog(), Qt::Key_Return);
    awaitActive();
    const std::vector<SeenBox> boxes = dialogs.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Quantity must be numeric and only selected fractions are allowed.");
    EXPECT_EQ(boxes[0].caption, "Error");
    EXPECT_TRUE(box(dialog().txtQuantity).hasFocus());
    EXPECT_EQ(box(dialog().txtQuantity).selectedText(), "1 1/7");
    EXPECT_EQ(box(dialog().txtDescription).text(), "rye");
    EXPECT_EQ(unit().currentText(), "cup");
  });
}

TEST_F(IngredientTest, ARefusedTextIsSelectedAlsoWhereTheFocusNeverLeftIt) {
  onRow(0, [&] {
    typeOver("some");
    press(dialog(), Qt::Key_Return);
    awaitActive();
    EXPECT_EQ(dialogs.boxes().size(), 1u);
    EXPECT_EQ(box(dialog().txtQuantity).selectedText(), "some");
    typeOver("1");
    tab();
    typeOver("a very long unit");
    press(dialog(), Qt::Key_Return);
    awaitActive();
    const std::vector<SeenBox> boxes = dialogs.boxes();
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Unit of measure must not be greater than 15 characters.");
    EXPECT_TRUE(unit().hasFocus());
    EXPECT_EQ(unit().lineEdit()->selectedText(), "a very long unit");
  });
}

TEST_F(IngredientTest, AnotherProgramTakesNothingOfWhatWasTyped) {
  onRow(0, [&] {
    tab();
    typeOver("cl");
    QWidget elsewhere;
    elsewhere.show();
    elsewhere.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&elsewhere));
    EXPECT_EQ(dialog().cmbUnit.Text(), "cl");
    EXPECT_EQ(dialog().ActiveControl(), &dialog().cmbUnit);
    elsewhere.hide();
    awaitActive();
    EXPECT_EQ(unit().currentText(), "cl");
    EXPECT_TRUE(unit().hasFocus());
    EXPECT_TRUE(dialog().Visible());
    tab();
    EXPECT_EQ(unit().currentText(), "cL");
  });
}

TEST_F(IngredientTest, ARowPickedInTheUnitBoxIsTaken) {
  onRow(1, [&] {
    tab();
    EXPECT_EQ(unit().count(), 3);
    QTest::keyClick(&unit(), Qt::Key_Down);
    EXPECT_EQ(dialog().cmbUnit.Text(), "cup");
    tab();
    EXPECT_TRUE(widget<QCheckBox>(dialog().chkConvertCupSpoon).isEnabled());
  });
}

TEST_F(IngredientTest, EachHeadingStandsAboveItsBoxAndNamesIt) {
  onRow(0, [&] {
    const std::pair<const char*, const Control*> columns[] = {{"Quantity", &dialog().txtQuantity},
                                                              {"Unit", &dialog().cmbUnit},
                                                              {"Description", &dialog().txtDescription},
                                                              {"Preparation", &dialog().txtPreparation}};
    EXPECT_FALSE(widget<QLabel>(dialog().lblIngredient).isVisible());
    for (const auto& [text, control] : columns) {
      const QWidget& below = widget<QWidget>(*control);
      EXPECT_EQ(below.accessibleName(), text);
      const QLabel* heading = nullptr;
      for (const QLabel* label : window(dialog()).findChildren<QLabel*>()) {
        if (label->isVisible() && label->text() == QLatin1String(text)) heading = label;
      }
      ASSERT_NE(heading, nullptr) << text;
      EXPECT_EQ(heading->x(), below.x()) << text;
      EXPECT_LE(heading->geometry().bottom(), below.geometry().top()) << text;
    }
  });
}

TEST_F(IngredientTest, TheMessageHasTwoLinesAndMovesNothing) {
  onRow(0, [&] {
    const QLabel& message = widget<QLabel>(dialog().lblMessage);
    const QSize size = window(dialog()).size();
    const QRect buttonPlace = button(dialog().cmdAdd).geometry();
    for (int round = 0; round < 2; ++round) {
      EXPECT_FALSE(message.text().isEmpty());
      const QFont whole = message.parentWidget()->font();
      EXPECT_EQ(message.font().pixelSize(), whole.pixelSize()) << "shrunk to fit";
      const QRect room(0, 0, message.width(), 10000);
      EXPECT_LE(QFontMetrics(whole).boundingRect(room, Qt::TextWordWrap, message.text()).height(), message.height());
      tab();
    }
    dialog().lblMessage.setCaption("");
    QTest::qWait(10);
    EXPECT_EQ(window(dialog()).size(), size);
    EXPECT_EQ(button(dialog().cmdAdd).geometry(), buttonPlace);
  });
}

TEST_F(IngredientTest, NothingIsCut) {
  onRow(0, [&] {
    for (const QWidget* part : window(dialog()).findChildren<QWidget*>()) {
      const bool checked = qobject_cast<const QAbstractButton*>(part) != nullptr ||
                           (qobject_cast<const QLabel*>(part) != nullptr && part->isVisible());
      if (!checked || part->objectName() == QLatin1String("lblMessage")) continue;
      EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString();
      EXPECT_GE(part->height(), part->minimumSizeHint().height()) << part->objectName().toStdString();
      EXPECT_TRUE(part->parentWidget()->rect().contains(part->geometry())) << part->objectName().toStdString();
    }
  });
}

TEST_F(IngredientTest, TheCloseMarkLeavesTheDialogAndTheRecipeAsTyped) {
  start();
  open(0);
  box(run().frmDetail.txtServes).setFocus(Qt::TabFocusReason);
  type(run().frmDetail, "9");
  const std::string typed = run().frmDetail.txtServes.Text();
  inDialog([&] { clickRow(run().frmDetail.lstIngredient, 0); },
           [&] {
             typeOver("2");
             click(dialog().cmdUpdate);
             window(dialog()).close();
           });
  EXPECT_EQ(run().frmDetail.txtServes.Text(), typed);
  EXPECT_EQ(run().frmDetail.lstIngredient.List(0), "2 cups flour, sifted");
  EXPECT_TRUE(dialogs.boxes().empty());
}

TEST_F(IngredientTest, ChangesKeepTheListBehindInStep) {
  onRow(0, [&] {
    const QListView& list = widget<QListView>(run().frmDetail.lstIngredient);
    typeOver("2");
    click(dialog().cmdUpdate);
    QTRY_COMPARE(list.model()->index(0, 0).data().toString(), "2 cups flour, sifted");
    QTRY_COMPARE(list.currentIndex().row(), 0);
    click(dialog().cmdDelete);
    QTRY_COMPARE(list.model()->rowCount(), 1);
    QTRY_COMPARE(list.currentIndex().row(), 0);
    EXPECT_EQ(box(dialog().txtDescription).text(), "apples");
    click(dialog().cmdDelete);
    QTRY_COMPARE(list.model()->rowCount(), 0);
    EXPECT_EQ(box(dialog().txtDescription).text(), "");
  });
}

}  // namespace

}  // namespace pantrigo
