#include <QCloseEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolButton>

#include "desktop/desktop_test.h"
#include "desktop/look.h"

namespace pantrigo {

namespace {

using WindowsTest = DesktopTest;

TEST_F(WindowsTest, TheMainWindowListsAllTitles) {
  start();
  const QAbstractItemModel& rows = *widget<QListView>(run().frmBrowse.lstTitles).model();
  ASSERT_EQ(rows.rowCount(), 3);
  EXPECT_EQ(rows.index(0, 0).data().toString(), "Apple Pie");
  EXPECT_EQ(rows.index(2, 0).data().toString(), "Carrot Cake");
  EXPECT_EQ(window(run().frmBrowse).windowTitle(), "Pantrigo");
  EXPECT_TRUE(widget<QLineEdit>(run().frmBrowse.txtTitle).hasFocus());
}

TEST_F(WindowsTest, AMealRowIsAnnouncedByAWord) {
  start();
  const QAbstractItemModel& rows = *widget<QListView>(run().frmBrowse.lstTitles).model();
  EXPECT_EQ(rows.index(0, 0).data(Qt::AccessibleTextRole).toString(), "Apple Pie");
  EXPECT_EQ(rows.index(1, 0).data(Qt::AccessibleTextRole).toString(), "Beef Stew, in the meal");
}

TEST_F(WindowsTest, ADoubleClickShowsTheRecipe) {
  start();
  open(0);
  FrmDetail& detail = run().frmDetail;
  EXPECT_EQ(widget<QLineEdit>(detail.txtTitle).text(), "Apple Pie");
  EXPECT_EQ(widget<QLineEdit>(detail.txtServes).text(), "6");
  EXPECT_EQ(widget<QLineEdit>(detail.txtPrepareTime).text(), "30");
  EXPECT_EQ(widget<QPlainTextEdit>(detail.txtMethod).document()->blockCount(), 4);
  EXPECT_EQ(widget<QListView>(detail.lstIngredient).model()->rowCount(), 2);
  EXPECT_EQ(window(detail).windowTitle(), "Recipe Detail");
  EXPECT_EQ(run().windows.active(), &detail);
}

TEST_F(WindowsTest, FocusOnTheListSelectsNoRow) {
  start();
  widget<QListView>(run().frmBrowse.lstTitles).setFocus(Qt::TabFocusReason);
  EXPECT_EQ(run().frmBrowse.ActiveControl(), &run().frmBrowse.lstTitles);
  EXPECT_EQ(run().frmBrowse.lstTitles.ListIndex(), -1);
}

TEST_F(WindowsTest, KeysMoveOpenPageAndLeave) {
  start();
  widget<QListView>(run().frmBrowse.lstTitles).setFocus(Qt::TabFocusReason);
  press(run().frmBrowse, Qt::Key_Down);
  press(run().frmBrowse, Qt::Key_Down);
  EXPECT_EQ(run().frmBrowse.lstTitles.ListIndex(), 1);
  press(run().frmBrowse, Qt::Key_Return);
  ASSERT_TRUE(run().frmDetail.Visible());
  EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Beef Stew");
  press(run().frmDetail, Qt::Key_PageDown);
  EXPECT_EQ(widget<QLineEdit>(run().frmDetail.txtTitle).text(), "Carrot Cake");
  press(run().frmDetail, Qt::Key_Escape);
  EXPECT_FALSE(run().frmDetail.Visible());
  EXPECT_FALSE(window(run().frmDetail).isVisible());
  EXPECT_EQ(run().windows.active(), &run().frmBrowse);
  EXPECT_EQ(run().frmBrowse.lstTitles.ListIndex(), 2);
}

TEST_F(WindowsTest, LettersFindATitle) {
  start();
  widget<QListView>(run().frmBrowse.lstTitles).setFocus(Qt::TabFocusReason);
  type(run().frmBrowse, "ca");
  EXPECT_EQ(run().frmBrowse.lstTitles.ListIndex(), 2);
}

TEST_F(WindowsTest, ATypedTextIsKeptWhenTheQuestionIsAnsweredNo) {
  start();
  open(0);
  widget<QPlainTextEdit>(run().frmDetail.txtMethod).setFocus(Qt::TabFocusReason);
  type(run().frmDetail, "First: ");
  EXPECT_TRUE(run().GLOBAL.gDetailChanged);
  EXPECT_TRUE(run().GLOBAL.gMethodChanged);
  dialogs.answer("No");
  press(run().frmDetail, Qt::Key_Escape);
  const std::vector<SeenBox> boxes = dialogs.boxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, "Any changes made will be lost. Proceed with request?");
  EXPECT_EQ(boxes[0].caption, "Confirmation");
  EXPECT_TRUE(run().frmDetail.Visible());
  EXPECT_EQ(run().frmDetail.txtMethod.Text().substr(0, 11), "First: Peel");
}

TEST_F(WindowsTest, EscInAQuestionIsNo) {
  start();
  open(0);
  run().GLOBAL.gDetailChanged = true;
  dialogs.answer("Esc");
  press(run().frmDetail, Qt::Key_Escape);
  EXPECT_EQ(dialogs.boxes().size(), 1u);
  EXPECT_TRUE(run().frmDetail.Visible());
  dialogs.answer("Yes");
  press(run().frmDetail, Qt::Key_Escape);
  EXPECT_EQ(dialogs.boxes().size(), 1u);
  EXPECT_FALSE(run().frmDetail.Visible());
}

TEST_F(WindowsTest, ADialogOverChangesKeepsThem) {
  start();
  open(0);
  widget<QLineEdit>(run().frmDetail.txtServes).setFocus(Qt::TabFocusReason);
  type(run().frmDetail, "9");
  dialogs.whenShown("frmOven", [this] {
    EXPECT_EQ(run().windows.active(), &run().frmOven);
    press(run().frmOven, Qt::Key_Escape);
  });
  action(run().frmDetail.mnuOven).trigger();
  EXPECT_FALSE(run().frmOven.Loaded());
  EXPECT_EQ(desktop().toolkit().view(run().frmOven), nullptr);
  EXPECT_EQ(run().windows.active(), &run().frmDetail);
  EXPECT_NE(widget<QLineEdit>(run().frmDetail.txtServes).text().indexOf('9'), -1);
}

TEST_F(WindowsTest, GoingToTheOtherWindowActivatesItsForm) {
  start();
  open(0);
  clickRow(run().frmBrowse.lstTitles, 2);
  EXPECT_EQ(run().windows.active(), &run().frmBrowse);
  EXPECT_TRUE(run().frmDetail.Visible());
  EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Apple Pie");
  open(2);
  EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Carrot Cake");
}

TEST_F(WindowsTest, TheEndOfABoxReloadsNothing) {
  start();
  open(0);
  widget<QLineEdit>(run().frmDetail.txtServes).setFocus(Qt::TabFocusReason);
  type(run().frmDetail, "9");
  const std::string typed = run().frmDetail.txtServes.Text();
  dialogs.answer("No");
  action(run().frmDetail.mnuClear).trigger();
  QTest::qWait(20);
  EXPECT_EQ(run().frmDetail.txtServes.Text(), typed);
  EXPECT_TRUE(run().GLOBAL.gDetailChanged);
}

TEST_F(WindowsTest, AToolBarButtonActsLikeItsEntry) {
  start();
  open(0);
  auto* next = window(run().frmDetail).findChild<QToolButton*>("Next");
  ASSERT_NE(next, nullptr);
  EXPECT_EQ(next->toolTip(), "Go to next recipe");
  QTest::mouseClick(next, Qt::LeftButton);
  EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Beef Stew");
}

TEST_F(WindowsTest, AClickOnTheServesLabelSwitchesIt) {
  start();
  open(0);
  QTest::mouseClick(&widget<QWidget>(run().frmDetail.lblServes), Qt::LeftButton);
  EXPECT_EQ(run().frmDetail.lblServes.Caption(), "Makes");
  const QWidget& label = widget<QWidget>(run().frmDetail.lblServes);
  EXPECT_EQ(label.cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(label.palette().color(QPalette::Active, QPalette::WindowText), hue::accent);
  EXPECT_TRUE(run().GLOBAL.gDetailChanged);
}

TEST_F(WindowsTest, AClickOnAHealthRowMarksIt) {
  start();
  open(0);
  EXPECT_TRUE(run().frmDetail.lstHealth.Selected(1));
  clickRow(run().frmDetail.lstHealth, 0);
  EXPECT_TRUE(run().frmDetail.lstHealth.Selected(0));
  EXPECT_TRUE(run().frmDetail.lstHealth.Selected(1));
  EXPECT_TRUE(run().GLOBAL.gHealthChanged);
  press(run().frmDetail, Qt::Key_Space);
  EXPECT_FALSE(run().frmDetail.lstHealth.Selected(0));
}

TEST_F(WindowsTest, TheExitEntryShowsItsKeyAtTheRight) {
  start();
  EXPECT_EQ(action(run().frmBrowse.mnuExit).text(), "E&xit\tEsc");
}

TEST_F(WindowsTest, TheCloseMarkOfTheDetailWindowAsksAndHides) {
  start();
  open(0);
  run().GLOBAL.gDetailChanged = true;
  dialogs.answer("Yes");
  EXPECT_FALSE(window(run().frmDetail).close());
  EXPECT_EQ(dialogs.boxes().size(), 1u);
  EXPECT_FALSE(run().frmDetail.Visible());
  EXPECT_TRUE(run().frmDetail.Loaded());
}

TEST_F(WindowsTest, TheCloseMarkOfTheMainWindowEndsTheRun) {
  start();
  window(run().frmBrowse).close();
  EXPECT_TRUE(desktop().program().ended());
  EXPECT_EQ(desktop().program().exitStatus(), 0);
  EXPECT_FALSE(std::filesystem::exists(path() / "PANTRIGO.MDB-wal"));
}

TEST_F(WindowsTest, ClosingTheMainWindowEndsADialogToo) {
  start();
  dialogs.whenShown("frmAbout", [this] { desktop().close(); });
  action(run().frmBrowse.mnuAbout).trigger();
  EXPECT_TRUE(desktop().program().ended());
}

TEST_F(WindowsTest, ClosingTheMainWindowEndsAQuestionToo) {
  start();
  open(0);
  run().GLOBAL.gDetailChanged = true;
  dialogs.whenBoxShown([this] { desktop().close(); });
  press(run().frmDetail, Qt::Key_Escape);
  EXPECT_EQ(dialogs.boxes().size(), 1u);
  EXPECT_TRUE(desktop().program().ended());
  EXPECT_EQ(desktop().program().exitStatus(), 0);
}

TEST_F(WindowsTest, MinimisingTheMainWindowHidesTheOther) {
  start();
  open(0);
  window(run().frmBrowse).showMinimized();
  QTest::qWait(20);
  EXPECT_FALSE(run().frmDetail.Visible());
  EXPECT_TRUE(run().frmDetail.Loaded());
  EXPECT_TRUE(window(run().frmBrowse).isMinimized());
  EXPECT_FALSE(desktop().program().ended());
}

TEST_F(WindowsTest, AMissingStoreIsReportedAndEndsTheRun) {
  std::filesystem::remove(path() / "PANTRIGO.MDB");
  Desktop without(path());
  dialogs.answer("OK");
  without.start();
  const std::vector<SeenBox> boxes = dialogs.boxes();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].caption, "Pantrigo");
  EXPECT_EQ(boxes[0].text.rfind("Run-time error '3024':\n\n", 0), 0u);
  EXPECT_EQ(without.run(), 1);
}

TEST_F(WindowsTest, TheEndOfTheSessionEndsAnErrorAtTheStartToo) {
  std::filesystem::remove(path() / "PANTRIGO.MDB");
  Desktop without(path());
  dialogs.whenBoxShown([&] { without.close(); });
  without.start();
  ASSERT_EQ(dialogs.boxes().size(), 1u);
  EXPECT_TRUE(without.program().ended());
  EXPECT_EQ(without.run(), 1);
}

TEST_F(WindowsTest, WithNobodyThereAnErrorWaitsForNoAnswer) {
  std::filesystem::remove(path() / "PANTRIGO.MDB");
  Desktop without(path());
  without.toolkit().setUnattended();
  testing::internal::CaptureStderr();
  without.start();
  EXPECT_NE(testing::internal::GetCapturedStderr().find("Pantrigo: Run-time error '3024':\n"), std::string::npos);
  EXPECT_TRUE(dialogs.boxes().empty());
  EXPECT_EQ(without.run(), 1);
}

TEST_F(WindowsTest, ControlsGrowWithTheWindow) {
  start();
  FormView& view = window(run().frmBrowse);
  const QSize before = widget<QListView>(run().frmBrowse.lstTitles).size();
  const int textBefore = widget<QLineEdit>(run().frmBrowse.txtTitle).font().pixelSize();
  view.resize(view.size() * 1.5);
  QTest::qWait(10);
  const QSize after = widget<QListView>(run().frmBrowse.lstTitles).size();
  EXPECT_NEAR(after.width(), before.width() * 1.5, 3);
  EXPECT_GT(after.height(), before.height() * 1.4);
  EXPECT_GT(widget<QLineEdit>(run().frmBrowse.txtTitle).font().pixelSize(), textBefore);
}

}  // namespace

}  // namespace pantrigo
