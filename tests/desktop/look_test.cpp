#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <fstream>

#include "desktop/accessible_names.h"
#include "desktop/look.h"
#include "desktop/menu_tree.h"
#include "desktop/qt_toolkit.h"
#include "desktop/row_list.h"
#include "desktop/screen_area.h"
#include "desktop/sunken_icon.h"
#include "forms/frmBrowse.h"
#include "forms/frmDetail.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

TEST(Look, EveryOrdinaryRowColourReadsWellOnItsGround) {
  constexpr int colours = 16;
  constexpr double readable = 4.5;
  for (int colour = 0; colour < colours; ++colour) {
    EXPECT_GE(contrast(readableOn(tableColour(colour), hue::field), hue::field), readable) << colour;
    EXPECT_GE(contrast(readableOn(tableColour(colour), tableColour(1)), tableColour(1)), readable) << colour;
  }
}

TEST(Look, AColourThatReadsWellStaysAsItIs) {
  EXPECT_EQ(readableOn(tableColour(1), hue::field), tableColour(1));
  EXPECT_EQ(readableOn(tableColour(15), tableColour(1)), tableColour(15));
}

TEST(Look, TextsOfTheWindowsReadWell) {
  constexpr double readable = 4.5;
  EXPECT_GE(contrast(hue::text, hue::ground), readable);
  EXPECT_GE(contrast(hue::accent, hue::panel), readable);
  EXPECT_GE(contrast(hue::text, hue::tint), readable);
}

TEST(Look, TextGrowsWithTheScale) {
  EXPECT_LT(textPixelSize(1), textPixelSize(1.6));
  EXPECT_LT(textPixelSize(1.6), textPixelSize(2.25));
  EXPECT_LT(textPixelSize(2.25), textPixelSize(4));
}

TEST(Look, EveryToolBarButtonHasAPicture) {
  FrmBrowse browse;
  FrmDetail detail;
  for (const ToolBar* bar : {&browse.tbBrowse, &detail.tbDetail}) {
    for (const ToolButton& button : bar->buttons()) {
      EXPECT_EQ(iconNamed(QString::fromStdString(button.key)).isNull(), button.key.empty()) << button.key;
    }
  }
}

int strongestAlpha(const QPixmap& picture) {
  const QImage image = picture.toImage();
  int strongest = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
  }
  return strongest;
}

TEST(Look, APictureFadesWhileItsButtonIsHeldDown) {
  constexpr int side = 32;
  constexpr int opaque = 255;
  const QIcon icon = sunkenIcon(iconNamed(QStringLiteral("Add")));
  EXPECT_EQ(strongestAlpha(icon.pixmap(side, QIcon::Normal, QIcon::Off)), opaque);
  EXPECT_GT(strongestAlpha(icon.pixmap(side, QIcon::Normal, QIcon::On)), 0);
  EXPECT_LT(strongestAlpha(icon.pixmap(side, QIcon::Normal, QIcon::On)), opaque / 2);
}

struct Screen {
  int width;
  int height;
};

class ScreenAreaTest : public testing::TestWithParam<Screen> {};

TEST_P(ScreenAreaTest, HasTheShapeAndHoldsAWholeWindow) {
  const QRect work(0, 0, GetParam().width, GetParam().height);
  const ScreenArea area = screenArea(work);
  const ScreenSize size = area.size();
  EXPECT_NEAR(size.width / size.height, 4.0 / 3.0, 0.01);
  EXPECT_TRUE(work.contains(area.area));
  // A main window is 9600 by 6630 twips on a screen 9600 wide.
  const double client = size.width / 9600 * 6630 / twipsPerPixel;
  const WindowAllowance around;
  EXPECT_LE(client + around.title + around.menu, work.height() + 1);
  EXPECT_LE(size.width / twipsPerPixel + around.sides, work.width());
}

INSTANTIATE_TEST_SUITE_P(Screens, ScreenAreaTest,
                         testing::Values(Screen{800, 600}, Screen{1024, 768}, Screen{1920, 1080}, Screen{1280, 1024},
                                         Screen{3840, 2160}, Screen{1080, 1920}));

TEST(ScreenAreaOfAWideScreen, IsAsHighAsTheScreen) {
  EXPECT_EQ(screenArea(QRect(0, 0, 1920, 1080)).area.width(), 1440);
}

TEST(AccessibleNames, ComeFromTheLabelsNearby) {
  FrmBrowse browse;
  FrmDetail detail;
  // The second page of the filters is hidden while the first is on show.
  bool secondPage = false;
  for (Control* control : browse.controls()) {
    if (control->container() != &browse.fmeFilters) continue;
    secondPage = secondPage || control == &browse.lblSource;
    control->setVisible(!secondPage);
  }
  EXPECT_EQ(spokenName(browse.txtIngredient).toStdString(), "Ingredients containing:");
  EXPECT_EQ(spokenName(browse.cmbCourse).toStdString(), "Course");
  EXPECT_EQ(spokenName(browse.txtFibre).toStdString(), "Fibre (g): <=");
  EXPECT_EQ(spokenName(browse.lstHealth).toStdString(), "Health");
  EXPECT_EQ(spokenName(browse.chkMeal).toStdString(), "Only show recipes included in meal");
  EXPECT_EQ(spokenName(detail.txtServes).toStdString(), "General Serves");
  EXPECT_EQ(spokenName(detail.txtCookTime).toStdString(), "General Cook");
  EXPECT_EQ(spokenName(detail.lstHealth).toStdString(), "Categories Health");
  EXPECT_EQ(spokenName(detail.txtMethod).toStdString(), "Method");
  EXPECT_EQ(spokenName(detail.lstIngredient).toStdString(), "Ingredients (metric)");
}

TEST(MenuCaptions, AKeyBehindBlanksStandsAtTheRight) {
  EXPECT_EQ(menuCaption("E&xit               Esc"), "E&xit\tEsc");
  EXPECT_EQ(menuCaption("Printer &Setup"), "Printer &Setup");
}

TEST(RowListTest, ManyAddedRowsAreTakenOverTogether) {
  FrmBrowse browse;
  RowList view(browse.lstTitles, {}, nullptr);
  QSignalSpy resets(view.model(), &QAbstractItemModel::modelReset);
  for (int row = 0; row < 1000; ++row) {
    browse.lstTitles.AddItem("Title");
    view.rowsChanged();
  }
  EXPECT_EQ(resets.count(), 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return resets.count() > 0; }, 1000));
  QTest::qWait(40);
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(view.model()->rowCount(), 1000);
}

TEST(RowListTest, AHundredThousandRowsComeAndScrollAtOnce) {
  FrmBrowse browse;
  for (int row = 0; row < 100000; ++row) browse.lstTitles.AddItem("Title");
  RowList view(browse.lstTitles, {}, nullptr);
  view.show();
  QElapsedTimer time;
  time.start();
  browse.lstTitles.AddItem("One more");
  view.takeRows();
  view.scrollToRow(100000);
  view.grab();
  EXPECT_LT(time.elapsed(), 500);
  EXPECT_EQ(view.indexAt(QPoint(5, view.viewport()->height() - 3)).row(), 100000);
}

TEST(LoadPicture, TellsAMissingFileFromOneThatIsNoBitmap) {
  QTemporaryDir folder;
  const Files files(folder.path().toStdString());
  std::ofstream(folder.filePath("text.bmp").toStdString()) << "no picture";
  QImage(3, 2, QImage::Format_RGB32).save(folder.filePath("good.bmp"), "bmp");
  QtToolkit toolkit;
  const auto errorOf = [&](const char* name) {
    try {
      (void)toolkit.LoadPicture(files, name);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  };
  EXPECT_EQ(errorOf("missing.bmp"), 53);
  EXPECT_EQ(errorOf("text.bmp"), 481);
  const PictureFile picture = toolkit.LoadPicture(files, "GOOD.BMP");
  EXPECT_EQ(picture.width, 3);
  EXPECT_EQ(picture.height, 2);
  EXPECT_FALSE(picture.bytes->empty());
}

}  // namespace

}  // namespace pantrigo
