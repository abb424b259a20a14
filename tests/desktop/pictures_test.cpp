#include <QDir>
#include <QListView>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

#include "desktop/desktop_test.h"
#include "desktop/pictures.h"

namespace pantrigo {

namespace {

/// Pictures for whoever changes a window, in a folder that is named after the screen: its size, and how many of its
/// pixels are one of ours.
QString pictureFolder() {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  return QStringLiteral("%1/%2x%3@%4")
      .arg(QStringLiteral(PANTRIGO_PICTURE_FOLDER))
      .arg(screen.size().width())
      .arg(screen.size().height())
      .arg(screen.devicePixelRatio());
}

/// Whether the picture shows more than one colour.
bool showsSomething(const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != picture.pixel(0, 0)) return true;
    }
  }
  return false;
}

void keep(QWidget& window, const QString& name) {
  ASSERT_TRUE(QDir().mkpath(pictureFolder()));
  const QPixmap picture = window.grab();
  EXPECT_TRUE(showsSomething(picture.toImage()));
  EXPECT_TRUE(picture.save(QDir(pictureFolder()).filePath(name + QStringLiteral(".png"))));
}

class PicturesTest : public DesktopTest {
 protected:
  void keepBrowse(const char* state) {
    // The list takes changed rows over with the next picture of the screen.
    const ListBox& titles = run().frmBrowse.lstTitles;
    const QAbstractItemModel& shown = *widget<QListView>(titles).model();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown.rowCount() == titles.ListCount(); }));
    keep(window(run().frmBrowse), QStringLiteral("frmBrowse-") + QLatin1String(state));
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
  keep(window(run().frmBrowse), "frmBrowse");
  keep(window(run().frmDetail), "frmDetail");
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
    keep(window(run().frmOven), "frmOven");
    DesktopTest::press(run().frmOven, Qt::Key_Escape);
  });
  action(run().frmDetail.mnuOven).trigger();
  dialogs.whenShown("frmAbout", [this] {
    keep(window(run().frmAbout), "frmAbout");
    DesktopTest::press(run().frmAbout, Qt::Key_Return);
  });
  action(run().frmDetail.mnuAbout).trigger();
  EXPECT_FALSE(run().frmAbout.Loaded());
}

}  // namespace

}  // namespace pantrigo
