#include <QDir>
#include <QListView>
#include <QTimer>
#include <QToolButton>

#include "desktop/desktop_test.h"
#include "desktop/kept_pictures.h"
#include "desktop/pictures.h"

namespace pantrigo {

namespace {

class PicturesTest : public DesktopTest {
 protected:
  void keepBrowse(const char* state) {
    // The list takes changed rows over with the next picture of the screen.
    const ListBox& titles = run().frmBrowse.lstTitles;
    const QAbstractItemModel& shown = *widget<QListView>(titles).model();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.rowCount() == titles.ListCount(); }));
    keepPicture(window(run().frmBrowse), QStringLiteral("frmBrowse-") + QLatin1String(state));
  }
  void press(const char* button) {
    QTest::mouseClick(window(run().frmBrowse).findChild<QToolButton*>(button), Qt::LeftButton);
  }
  void click(const Control& control) { QTest::mouseClick(&widget<QWidget>(control), Qt::LeftButton); }
};

TEST_F(PicturesTest, TheMainWindowsGoIntoAFolder) {
  start();
  const QString folder = toQt((path() / "pictures").string());
  ASSERT_TRUE(writePictures(desktop(), folder));
  EXPECT_TRUE(showsSomething(QImage(QDir(folder).filePath("frmBrowse.png"))));
  EXPECT_TRUE(showsSomething(QImage(QDir(folder).filePath("frmDetail.png"))));
  EXPECT_EQ(run().frmDetail.txtTitle.Text(), "Apple Pie");
  keepPicture(window(run().frmBrowse), "frmBrowse");
  keepPicture(window(run().frmDetail), "frmDetail");
}

TEST_F(PicturesTest, TheMainWindowHasOneOfEachOfItsFilterStates) {
  start();
  clickRow(run().frmBrowse.lstHealth, 1);
  run().frmBrowse.cmbCourse.setText("Main Course");
  keepBrowse("first-page");
  click(run().frmBrowse.lblFilters);
  run().frmBrowse.txtIron.setText("12.5");
  click(run().frmBrowse.lblIronSign);
  keepBrowse("continued-page");
  click(run().frmBrowse.lblFilters);
  EXPECT_EQ(run().frmBrowse.lblFilters.Caption(), "Filters~");
  EXPECT_EQ(run().frmBrowse.lblHealth.Caption(), "Health~");
  keepBrowse("marks");
  press("Clear");
  widget<QWidget>(run().frmBrowse.chkMeal).setFocus(Qt::TabFocusReason);
  DesktopTest::press(run().frmBrowse, Qt::Key_Space);
  press("Filter");
  EXPECT_EQ(run().frmBrowse.fmeList.Caption(), "1 recipe(s) displayed");
  EXPECT_FALSE(run().frmBrowse.txtTitle.Enabled());
  keepBrowse("meal-only");
}

TEST_F(PicturesTest, TheMainWindowHasThemOfItsListToo) {
  constexpr int manyRecipes = 1500;
  addRecipes(path(), manyRecipes);
  start();
  bool building = false;
  // A pump that has just turned leaves the next turn out.
  QTest::qWait(20);
  QTimer::singleShot(0, &window(run().frmBrowse), [&] {
    building = run().frmBrowse.mbBusy;
    keepBrowse("building");
  });
  press("Filter");
  EXPECT_TRUE(building);
  EXPECT_EQ(run().frmBrowse.fmeList.Caption(), "1,503 recipe(s) displayed");
  keepBrowse("many-rows");
  run().frmBrowse.txtTitle.setText("no such title");
  press("Filter");
  EXPECT_EQ(run().frmBrowse.fmeList.Caption(), "0 recipe(s) displayed");
  keepBrowse("empty-list");
}

TEST_F(PicturesTest, TheDialogsHavePictures) {
  start();
  open(0);
  dialogs.whenShown("frmOven", [this] {
    keepPicture(window(run().frmOven), "frmOven");
    DesktopTest::press(run().frmOven, Qt::Key_Escape);
  });
  action(run().frmDetail.mnuOven).trigger();
  dialogs.whenShown("frmAbout", [this] {
    keepPicture(window(run().frmAbout), "frmAbout");
    DesktopTest::press(run().frmAbout, Qt::Key_Return);
  });
  action(run().frmDetail.mnuAbout).trigger();
  EXPECT_FALSE(run().frmAbout.Loaded());
}

}  // namespace

}  // namespace pantrigo
