#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWheelEvent>

#include "desktop/desktop_test.h"
#include "platform/text/utf8.h"

namespace pantrigo {

namespace {

using TextBoxesTest = DesktopTest;

TEST_F(TextBoxesTest, ABoxThatNobodyTypedInNeverWritesBack) {
  start();
  open(0);
  run().GLOBAL.gMethodChanged = false;
  run().GLOBAL.gCommentsChanged = false;
  for (int tab = 0; tab < 30; ++tab) press(run().frmDetail, Qt::Key_Tab);
  EXPECT_EQ(run().frmDetail.txtComments.Text(), pieComment);
  EXPECT_EQ(run().frmDetail.txtMethod.Text(), pieMethod);
  EXPECT_FALSE(run().GLOBAL.gDetailChanged);
  EXPECT_FALSE(run().GLOBAL.gMethodChanged);
  EXPECT_FALSE(run().GLOBAL.gCommentsChanged);
}

TEST_F(TextBoxesTest, TypingKeepsNoBreakBlanksAndBreaks) {
  start();
  open(0);
  auto& comments = widget<QPlainTextEdit>(run().frmDetail.txtComments);
  comments.setFocus(Qt::TabFocusReason);
  comments.moveCursor(QTextCursor::End);
  press(run().frmDetail, Qt::Key_Return);
  type(run().frmDetail, "More");
  EXPECT_EQ(run().frmDetail.txtComments.Text(), std::string(pieComment) + "\r\nMore");
  EXPECT_TRUE(run().GLOBAL.gCommentsChanged);
}

TEST_F(TextBoxesTest, ALoadedTextLeavesNothingToUndo) {
  start();
  open(0);
  auto& method = widget<QPlainTextEdit>(run().frmDetail.txtMethod);
  method.setFocus(Qt::TabFocusReason);
  type(run().frmDetail, "x");
  dialogs.answer("Yes");
  press(run().frmDetail, Qt::Key_PageDown);
  EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Beef Stew");
  EXPECT_FALSE(method.document()->isUndoAvailable());
}

TEST_F(TextBoxesTest, TheLimitCountsCharacters) {
  start();
  open(0);
  auto& title = widget<QLineEdit>(run().frmDetail.txtTitle);
  title.setFocus(Qt::TabFocusReason);
  title.selectAll();
  QString pasted;
  for (int count = 0; count < 90; ++count) pasted += QString::fromUtf8("🍏");
  QGuiApplication::clipboard()->setText(pasted);
  title.paste();
  EXPECT_EQ(Len(run().frmDetail.txtTitle.Text()), 80u);
  EXPECT_EQ(title.text(), toQt(run().frmDetail.txtTitle.Text()));
}

TEST_F(TextBoxesTest, TypingBeyondTheLimitIsNotTaken) {
  start();
  open(0);
  auto& serves = widget<QLineEdit>(run().frmDetail.txtServes);
  serves.setFocus(Qt::TabFocusReason);
  serves.selectAll();
  type(run().frmDetail, "12345");
  EXPECT_EQ(run().frmDetail.txtServes.Text(), "123");
  EXPECT_EQ(serves.text(), "123");
}

TEST_F(TextBoxesTest, ATextSetByCodeIsNeverCut) {
  start();
  open(0);
  run().frmDetail.txtServes.setText("123456");
  auto& serves = widget<QLineEdit>(run().frmDetail.txtServes);
  EXPECT_EQ(serves.text(), "123456");
  serves.setFocus(Qt::TabFocusReason);
  serves.end(false);
  QTest::keyClick(&serves, Qt::Key_Backspace);
  EXPECT_EQ(run().frmDetail.txtServes.Text(), "12345");
}

TEST_F(TextBoxesTest, ACharacterTypedInTheMiddleLeavesTheCursorThere) {
  start();
  auto& title = widget<QLineEdit>(run().frmBrowse.txtTitle);
  type(run().frmBrowse, "ab");
  title.setCursorPosition(1);
  type(run().frmBrowse, "x");
  EXPECT_EQ(run().frmBrowse.txtTitle.Text(), "axb");
  EXPECT_EQ(title.cursorPosition(), 2);
}

TEST_F(TextBoxesTest, LeavingAComboBoxPicksNothing) {
  start();
  auto& course = widget<QComboBox>(run().frmBrowse.cmbCourse);
  course.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&course, "dessert");
  EXPECT_EQ(run().frmBrowse.cmbCourse.Text(), "dessert");
  press(run().frmBrowse, Qt::Key_Tab);
  EXPECT_NE(run().frmBrowse.ActiveControl(), &run().frmBrowse.cmbCourse);
  EXPECT_EQ(run().frmBrowse.cmbCourse.Text(), "dessert");
  EXPECT_EQ(course.currentText(), "dessert");
}

TEST_F(TextBoxesTest, AComboRowPickedByKeyIsTaken) {
  start();
  open(0);
  auto& course = widget<QComboBox>(run().frmDetail.cmbCourse);
  EXPECT_EQ(course.currentText(), "Dessert");
  EXPECT_EQ(course.count(), 2);
  course.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&course, Qt::Key_Down);
  QTest::keyClick(&course, Qt::Key_Down);
  EXPECT_EQ(run().frmDetail.cmbCourse.Text(), "Main Course");
  EXPECT_TRUE(run().GLOBAL.gDetailChanged);
}

TEST_F(TextBoxesTest, TheWheelLeavesAComboBoxAloneThatHasNoFocus) {
  start();
  open(0);
  auto& course = widget<QComboBox>(run().frmDetail.cmbCourse);
  ASSERT_FALSE(course.hasFocus());
  const QPointF middle = course.rect().center();
  QWheelEvent turn(middle, course.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                   false);
  QCoreApplication::sendEvent(&course, &turn);
  EXPECT_EQ(run().frmDetail.cmbCourse.Text(), "Dessert");
  EXPECT_FALSE(run().GLOBAL.gDetailChanged);
}

TEST(TextConversion, BreaksOfEveryKindAreOne) {
  EXPECT_EQ(shownLines("a\r\nb\rc\nd"), "a\nb\nc\nd");
}

TEST(TextConversion, CaptionsLoseTheirAccessKeys) {
  EXPECT_EQ(plainCaption("Nu&trition~"), "Nutrition~");
  EXPECT_EQ(plainCaption("Fish && Chips"), "Fish & Chips");
  EXPECT_EQ(plainCaption("Source: Marks & Sons"), "Source: Marks & Sons");
  EXPECT_TRUE(hasAccessKey("E&xit"));
  EXPECT_FALSE(hasAccessKey("Fish && Chips"));
}

TEST(TextConversion, CharactersOutsideTheBasicPlaneCountOnce) {
  EXPECT_EQ(pointCount(QString::fromUtf8("a🍏é")), 3u);
}

}  // namespace

}  // namespace pantrigo
