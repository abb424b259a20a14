// What was typed over a recipe stays when something else comes to the front for a while: the text, the cursor in it,
// and the place of the keyboard.

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>

#include "desktop/desktop_test.h"
#include "desktop/help_window.h"

namespace pantrigo {

namespace {

class KeptTextTest : public DesktopTest {
 protected:
  /// Opens the first recipe and types into all its boxes, the last of them the method, in the midst of its text.
  void openAndType() {
    open(0);
    FrmDetail& form = run().frmDetail;
    typeInto(form.txtTitle, " of the house");
    typeInto(form.txtServes, "9");
    typeInto(form.txtCookTime, "55");
    auto& comments = widget<QPlainTextEdit>(form.txtComments);
    comments.setFocus(Qt::TabFocusReason);
    comments.moveCursor(QTextCursor::End);
    QTest::keyClicks(&comments, " Freezes well.");
    method().setFocus(Qt::TabFocusReason);
    method().moveCursor(QTextCursor::Start);
    for (int step = 0; step < 5; ++step) QTest::keyClick(&method(), Qt::Key_Right);
    QTest::keyClicks(&method(), "and core ");
    ASSERT_EQ(form.txtMethod.Text().substr(0, 24), "Peel and core the apples");
    ASSERT_TRUE(run().GLOBAL.gDetailChanged);
    cursor_ = method().textCursor().position();
    ASSERT_EQ(cursor_, 14);
  }

  void typeInto(const TextBox& control, const char* text) {
    auto& box = widget<QLineEdit>(control);
    box.setFocus(Qt::TabFocusReason);
    box.deselect();
    box.end(false);
    QTest::keyClicks(&box, QString::fromUtf8(text));
  }

  [[nodiscard]] QPlainTextEdit& method() { return widget<QPlainTextEdit>(run().frmDetail.txtMethod); }
  [[nodiscard]] QString shown(const TextBox& box) { return widget<QLineEdit>(box).text(); }

  /// Expects all that was typed where it was, and that the next key goes on behind the cursor.
  void expectKept(const char* occasion) {
    FrmDetail& form = run().frmDetail;
    // Without a window manager nobody gives the keyboard back after a box.
    window(form).activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window(form).isActiveWindow(); })) << occasion;
    EXPECT_EQ(shown(form.txtTitle), "Apple Pie of the house") << occasion;
    EXPECT_EQ(shown(form.txtServes), "69") << occasion;
    EXPECT_EQ(shown(form.txtPrepareTime), "30") << occasion;
    EXPECT_EQ(shown(form.txtCookTime), "55") << occasion;
    EXPECT_TRUE(form.txtComments.Text().ends_with("Keeps two days. Freezes well.")) << occasion;
    EXPECT_TRUE(widget<QPlainTextEdit>(form.txtComments).toPlainText().endsWith("Freezes well.")) << occasion;
    EXPECT_TRUE(form.txtMethod.Text().starts_with("Peel and core ")) << occasion;
    EXPECT_TRUE(run().GLOBAL.gDetailChanged) << occasion;
    EXPECT_TRUE(run().GLOBAL.gMethodChanged) << occasion;
  }
  /// And that the keyboard has stayed in the method, behind what was typed last.
  void expectPlaceKept(const char* occasion) {
    EXPECT_TRUE(method().hasFocus()) << occasion;
    EXPECT_EQ(run().frmDetail.ActiveControl(), &run().frmDetail.txtMethod) << occasion;
    EXPECT_EQ(method().textCursor().position(), cursor_) << occasion;
    EXPECT_FALSE(method().textCursor().hasSelection()) << occasion;
    type(run().frmDetail, "z");
    EXPECT_TRUE(run().frmDetail.txtMethod.Text().starts_with("Peel and core zthe apples")) << occasion;
    press(run().frmDetail, Qt::Key_Backspace);
    EXPECT_TRUE(run().frmDetail.txtMethod.Text().starts_with("Peel and core the apples")) << occasion;
  }

  /// Opens the dialog by its entry and leaves it by Esc.
  void visit(const Form& dialog, const MenuEntry& entry) {
    bool shown = false;
    dialogs.whenShown(dialog.Name(), [&] {
      shown = QTest::qWaitFor([&] { return window(dialog).isActiveWindow(); });
      press(dialog, Qt::Key_Escape);
    });
    action(entry).trigger();
    EXPECT_TRUE(shown) << dialog.Name();
    EXPECT_FALSE(dialog.Loaded()) << dialog.Name();
  }

 private:
  int cursor_ = 0;
};

TEST_F(KeptTextTest, OverAnotherProgramsWindow) {
  start();
  openAndType();
  QMainWindow other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_FALSE(window(run().frmDetail).isActiveWindow());
  EXPECT_EQ(run().windows.active(), &run().frmDetail);
  window(run().frmDetail).activateWindow();
  expectKept("another program");
  expectPlaceKept("another program");
}

TEST_F(KeptTextTest, OverAMinimisedWindow) {
  start();
  openAndType();
  window(run().frmDetail).showMinimized();
  QCoreApplication::processEvents();
  window(run().frmDetail).showNormal();
  window(run().frmDetail).activateWindow();
  expectKept("minimised");
  expectPlaceKept("minimised");
}

TEST_F(KeptTextTest, OverAnAccessKeyThatNothingAnswersTo) {
  start();
  openAndType();
  FrmDetail& form = run().frmDetail;
  for (const Control* control :
       {static_cast<const Control*>(&form.cmbCourse), static_cast<const Control*>(&form.txtCookTime),
        static_cast<const Control*>(&form.txtMethod)}) {
    auto& box = widget<QWidget>(*control);
    box.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&box, Qt::Key_Z, Qt::AltModifier);
  }
  EXPECT_EQ(form.cmbCourse.Text(), "Dessert");
  expectKept("Alt+Z");
  expectPlaceKept("Alt+Z");
}

TEST_F(KeptTextTest, OverTheHelp) {
  start();
  openAndType();
  action(run().frmDetail.mnuContents).trigger();
  HelpWindow* help = desktop().toolkit().helpWindow();
  ASSERT_NE(help, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(help));
  QTest::keyClick(help, Qt::Key_Escape);
  window(run().frmDetail).activateWindow();
  expectKept("help");
  expectPlaceKept("help");
}

TEST_F(KeptTextTest, OverTheQuestionWhetherToGiveItUp) {
  start();
  openAndType();
  for (const MenuEntry* entry : {&run().frmDetail.mnuNext, &run().frmDetail.mnuLast, &run().frmDetail.mnuExit}) {
    dialogs.answer("No");
    action(*entry).trigger();
    EXPECT_EQ(dialogs.boxes().size(), 1u) << entry->Name();
    expectKept(entry->Name().c_str());
    expectPlaceKept(entry->Name().c_str());
  }
}

TEST_F(KeptTextTest, OverARefusedUpdate) {
  start();
  openAndType();
  FrmDetail& form = run().frmDetail;
  widget<QLineEdit>(form.txtServes).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&widget<QLineEdit>(form.txtServes), Qt::Key_End);
  QTest::keyClicks(&widget<QLineEdit>(form.txtServes), "x");
  method().setFocus(Qt::TabFocusReason);
  dialogs.answer("OK");
  action(form.mnuUpdate).trigger();
  const std::vector<SeenBox> boxes = dialogs.boxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "Value entered must be numeric.");
  EXPECT_EQ(form.ActiveControl(), &form.txtServes);
  EXPECT_EQ(window(form).focusWidget(), &widget<QLineEdit>(form.txtServes));
  EXPECT_EQ(shown(form.txtServes), "69x");
  press(form, Qt::Key_End);
  press(form, Qt::Key_Backspace);
  expectKept("a refused update");
  method().setFocus(Qt::TabFocusReason);
  expectPlaceKept("a refused update");
}

TEST_F(KeptTextTest, OverTheDialogsOfTheMenu) {
  start();
  openAndType();
  FrmDetail& form = run().frmDetail;
  const std::pair<const Form*, const MenuEntry*> dialogsOfMenu[] = {
      {&run().frmNutrition, &form.mnuNutrition},
      {&run().frmSettings, &form.mnuSettings},
      {&run().frmSource, &form.mnuSource},
      {&run().frmCategory, &form.mnuCategoriesCoarse},
      {&run().frmCategory, &form.mnuCategoriesOther},
      {&run().frmOven, &form.mnuOven},
  };
  for (const auto& [dialog, entry] : dialogsOfMenu) {
    visit(*dialog, *entry);
    expectKept(entry->Name().c_str());
    expectPlaceKept(entry->Name().c_str());
  }
}

TEST_F(KeptTextTest, OverTheIngredientsButNotThePlaceWhichIsTheList) {
  start();
  openAndType();
  FrmIngredient& dialog = run().frmIngredient;
  bool shown = false;
  dialogs.whenShown(dialog.Name(), [&] {
    shown = QTest::qWaitFor([&] { return window(dialog).isActiveWindow(); });
    press(dialog, Qt::Key_Escape);
  });
  clickRow(run().frmDetail.lstIngredient, 1);
  EXPECT_TRUE(shown);
  EXPECT_FALSE(dialog.Loaded());
  EXPECT_EQ(run().frmDetail.ActiveControl(), &run().frmDetail.lstIngredient);
  expectKept("ingredients");
  method().setFocus(Qt::TabFocusReason);
  expectPlaceKept("ingredients");
}

TEST_F(KeptTextTest, ButNotOverAVisitToTheListOrTheAboutBox) {
  start();
  openAndType();
  visit(run().frmAbout, run().frmDetail.mnuAbout);
  EXPECT_EQ(shown(run().frmDetail.txtTitle), "Apple Pie");
  EXPECT_EQ(run().frmDetail.txtMethod.Text(), "Peel the apples.\r\n\r\nBake.\nCool.");
  EXPECT_FALSE(run().GLOBAL.gDetailChanged);
  QTest::keyClick(&window(run().frmDetail), Qt::Key_Escape);
  openAndType();
  visit(run().frmOptions, run().frmBrowse.mnuOptions);
  QTest::mouseClick(&window(run().frmDetail), Qt::LeftButton, {}, QPoint(1, 1));
  EXPECT_EQ(run().windows.active(), &run().frmDetail);
  EXPECT_EQ(shown(run().frmDetail.txtTitle), "Apple Pie");
  EXPECT_FALSE(run().GLOBAL.gDetailChanged);
}

}  // namespace

}  // namespace pantrigo
