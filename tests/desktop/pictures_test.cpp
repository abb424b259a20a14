#include <QDir>
#include <QPixmap>

#include "desktop/desktop_test.h"
#include "desktop/pictures.h"

namespace pantrigo {

namespace {

using PicturesTest = DesktopTest;

const QString pictureFolder = QStringLiteral(PANTRIGO_PICTURE_FOLDER);

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
  ASSERT_TRUE(QDir().mkpath(pictureFolder));
  const QPixmap picture = window.grab();
  EXPECT_TRUE(showsSomething(picture.toImage()));
  EXPECT_TRUE(picture.save(QDir(pictureFolder).filePath(name + QStringLiteral(".png"))));
}

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

TEST_F(PicturesTest, TheDialogsHavePictures) {
  start();
  open(0);
  dialogs.whenShown("frmOven", [this] {
    keep(window(run().frmOven), "frmOven");
    press(run().frmOven, Qt::Key_Escape);
  });
  action(run().frmDetail.mnuOven).trigger();
  dialogs.whenShown("frmAbout", [this] {
    keep(window(run().frmAbout), "frmAbout");
    press(run().frmAbout, Qt::Key_Return);
  });
  action(run().frmDetail.mnuAbout).trigger();
  EXPECT_FALSE(run().frmAbout.Loaded());
}

}  // namespace

}  // namespace pantrigo
