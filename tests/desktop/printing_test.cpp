#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "desktop/qt_printer.h"
#include "platform/text/errors.h"

namespace pantrigo {

namespace {

constexpr double twipsPerInch = 1440;

/// The bytes of a bitmap of one colour.
PrintPicture picture(const QColor& colour) {
  QImage image(20, 10, QImage::Format_RGB32);
  image.fill(colour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "bmp");
  return {"1.bmp", std::make_shared<const std::string>(bytes.toStdString())};
}

class PrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder.isValid());
    printer.device().setOutputFormat(QPrinter::PdfFormat);
    printer.device().setOutputFileName(file);
  }
  QTemporaryDir folder;
  QString file = folder.filePath("print.pdf");
  QtPrinter printer;
};

TEST_F(PrinterTest, EightyCharactersFitBothPapers) {
  for (const QPageSize::PageSizeId paper : {QPageSize::A4, QPageSize::Letter}) {
    printer.device().setPageSize(QPageSize(paper));
    const std::string line = "The quick brown fox jumps over the lazy dog, and then it goes home to its den...";
    ASSERT_EQ(line.size(), 80u);
    printer.print(line);
    const PrintedText& piece = printer.pages().back().texts.back();
    const double paperWidth = printer.device().pageLayout().paintRect(QPageLayout::Inch).width() * 1440;
    EXPECT_LT(piece.x + QFontMetricsF(piece.font).horizontalAdvance(piece.text), paperWidth);
    printer.endLine();
  }
}

TEST_F(PrinterTest, ATabBehindThePositionGoesToTheNextLine) {
  printer.print("A long beginning of a line");
  printer.tab(3);
  printer.print("x");
  const auto& page = printer.pages().back().texts;
  EXPECT_GT(page[1].y, page[0].y);
  EXPECT_GT(page[1].x, 0);
  printer.tab(40);
  printer.print("y");
  EXPECT_EQ(page.back().y, page[1].y);
}

TEST_F(PrinterTest, AFullPageIsFollowedByAnother) {
  for (int line = 0; line < 100; ++line) {
    printer.print("line");
    printer.endLine();
  }
  EXPECT_EQ(printer.pages().size(), 2u);
  printer.EndDoc();
  EXPECT_TRUE(printer.pages().empty());
  EXPECT_TRUE(QFile::exists(file));
}

TEST_F(PrinterTest, NothingPrintedMakesNoFile) {
  printer.EndDoc();
  EXPECT_FALSE(QFile::exists(file));
}

/// A printed page as it looks, at 72 dots to the inch.
QImage lookOf(const QString& file) {
  const QString target = file.chopped(4);
  QProcess::execute("pdftoppm", {"-r", "72", "-png", "-singlefile", file, target});
  return QImage(target + ".png");
}

TEST_F(PrinterTest, APictureIsStretchedOverItsPlace) {
  printer.print("Apple Pie");
  printer.endLine();
  printer.PaintPicture(picture(Qt::red), {2 * twipsPerInch, 3 * twipsPerInch, twipsPerInch, 2 * twipsPerInch});
  printer.EndDoc();
  const QImage page = lookOf(file);
  ASSERT_FALSE(page.isNull()) << "pdftoppm is needed";
  // The margin is half an inch, so the picture begins 2.5 inches from the left and 3.5 from the top.
  const auto isRed = [&](double x, double y) {
    const QColor seen = page.pixelColor(static_cast<int>(x * 72), static_cast<int>(y * 72));
    return seen.red() > 200 && seen.green() < 60;
  };
  EXPECT_TRUE(isRed(2.6, 3.6));
  EXPECT_TRUE(isRed(3.4, 5.4));
  EXPECT_FALSE(isRed(2.4, 3.6));
  EXPECT_FALSE(isRed(3.6, 5.4));
  EXPECT_FALSE(isRed(2.6, 3.4));
  EXPECT_FALSE(isRed(2.6, 5.6));
}

TEST_F(PrinterTest, APictureBeyondTheRightMarginIsMovedToIt) {
  constexpr double width = 2715;
  const double paper = printer.device().pageLayout().paintRect(QPageLayout::Inch).width() * twipsPerInch;
  for (const double x : {4590.0, paper - width + 1, 12590.0}) {
    printer.PaintPicture(picture(Qt::red), {x, 100, width, 2970});
  }
  const std::vector<PaintedPicture>& pictures = printer.pages().back().pictures;
  EXPECT_EQ(pictures[0].place, QRectF(4590, 100, width, 2970));
  EXPECT_NEAR(pictures[1].place.right(), paper, 0.01);
  EXPECT_NEAR(pictures[2].place.right(), paper, 0.01);
}

TEST_F(PrinterTest, APictureLeavesThePositionAlone) {
  printer.print("Apple Pie");
  printer.endLine();
  const double before = printer.currentY();
  printer.PaintPicture(picture(Qt::red), {4590, before, 2715, 2970});
  EXPECT_EQ(printer.currentY(), before);
  printer.setCurrentY(before + 2970);
  printer.print("below");
  EXPECT_EQ(printer.pages().size(), 1u);
  EXPECT_EQ(printer.pages().back().texts.back().y, before + 2970);
}

TEST_F(PrinterTest, APictureAloneMakesAPage) {
  printer.PaintPicture(picture(Qt::red), {0, 0, 100, 100});
  printer.EndDoc();
  EXPECT_TRUE(QFile::exists(file));
}

TEST_F(PrinterTest, WhatIsNoPictureIsAnError) {
  const auto errorOf = [&](const PrintPicture& printed) {
    try {
      printer.PaintPicture(printed, {0, 0, 100, 100});
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  };
  EXPECT_EQ(errorOf({"1.bmp", nullptr}), 481);
  EXPECT_EQ(errorOf({"1.bmp", std::make_shared<const std::string>("no picture")}), 481);
  EXPECT_TRUE(printer.pages().empty());
}

}  // namespace

}  // namespace pantrigo
