#include "support/recording_printer.h"

#include <gtest/gtest.h>

#include "platform/text/errors.h"

namespace pantrigo {
namespace {

TEST(RecordingPrinter, ATabGoesToItsColumn) {
  RecordingPrinter printer;
  printer.tab(15);
  printer.print("Serves:");
  printer.tab(35);
  printer.print("4");
  printer.endLine();
  const std::vector<PrintedLine> lines = printer.takeLines();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].text, std::string(14, ' ') + "Serves:" + std::string(13, ' ') + "4");
}

TEST(RecordingPrinter, ATabBehindItsColumnGoesToTheNextLine) {
  RecordingPrinter printer;
  printer.print("crème");
  printer.tab(6);
  printer.print("a");
  printer.tab(6);
  printer.print("b");
  printer.endLine();
  const std::vector<PrintedLine> lines = printer.takeLines();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].text, "crèmea");
  EXPECT_EQ(lines[1].text, "     b");
}

TEST(RecordingPrinter, BlanksAndOpenLinesJoin) {
  RecordingPrinter printer;
  printer.tab(0);
  printer.space(2);
  printer.print("a");
  EXPECT_TRUE(printer.takeLines().empty());
  printer.print("b");
  printer.endLine();
  EXPECT_EQ(printer.takeLines().at(0).text, "  ab");
}

TEST(RecordingPrinter, ALineIsBoldWhenAPieceOfItIs) {
  RecordingPrinter printer;
  printer.setFontBold(true);
  printer.setFontSize(12);
  printer.print("Protein");
  printer.setFontBold(false);
  printer.print("12");
  printer.endLine();
  printer.endLine();
  const std::vector<PrintedLine> lines = printer.takeLines();
  EXPECT_TRUE(lines[0].bold);
  EXPECT_EQ(lines[0].size, 12);
  EXPECT_EQ(lines[1].text, "");
  EXPECT_FALSE(lines[1].bold);
  EXPECT_EQ(lines[1].size, 12);
}

TEST(RecordingPrinter, PagesAndJobsAreCounted) {
  RecordingPrinter printer;
  printer.EndDoc();
  EXPECT_EQ(printer.jobs(), 0);
  printer.print("one");
  printer.endLine();
  printer.NewPage();
  printer.print("two");
  EXPECT_TRUE(printer.open());
  printer.EndDoc();
  EXPECT_FALSE(printer.open());
  EXPECT_EQ(printer.jobs(), 1);
  printer.print("three");
  printer.endLine();
  const std::vector<PrintedLine> lines = printer.takeLines();
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1].text, "two");
  EXPECT_EQ(lines[1].page, 2);
  EXPECT_EQ(lines[1].job, 1);
  EXPECT_EQ(lines[2].page, 1);
  EXPECT_EQ(lines[2].job, 2);
}

TEST(RecordingPrinter, LinesMoveDownThePage) {
  RecordingPrinter printer;
  printer.setFontSize(10);
  printer.print("a");
  printer.endLine();
  EXPECT_EQ(printer.currentY(), 240);
  printer.setCurrentY(3000);
  printer.endLine();
  EXPECT_EQ(printer.currentY(), 3240);
  printer.NewPage();
  EXPECT_EQ(printer.currentY(), 0);
}

TEST(RecordingPrinter, KeepsPicturesWithTheirPlaces) {
  RecordingPrinter printer;
  const PrintPicture picture{"12.BMP", std::make_shared<const std::string>("bytes")};
  printer.PaintPicture(picture, {4590, 288, 2715, 2970});
  EXPECT_TRUE(printer.open());
  printer.NewPage();
  printer.PaintPicture(picture, {6190, 0, 2715, 2970});
  printer.EndDoc();
  EXPECT_EQ(printer.jobs(), 1);
  printer.PaintPicture(picture, {1, 2, 3, 4});
  const std::vector<PrintedPicture> pictures = printer.takePictures();
  ASSERT_EQ(pictures.size(), 3u);
  EXPECT_EQ(pictures[0].file, "12.BMP");
  EXPECT_EQ(pictures[0].area.x, 4590);
  EXPECT_EQ(pictures[0].area.y, 288);
  EXPECT_EQ(pictures[0].area.width, 2715);
  EXPECT_EQ(pictures[0].area.height, 2970);
  EXPECT_EQ(pictures[0].page, 1);
  EXPECT_EQ(pictures[1].page, 2);
  EXPECT_EQ(pictures[1].job, 1);
  EXPECT_EQ(pictures[2].job, 2);
  EXPECT_TRUE(printer.takePictures().empty());
}

TEST(RecordingPrinter, RefusesWhatIsNoPicture) {
  RecordingPrinter printer;
  EXPECT_THROW(printer.PaintPicture({"12.BMP", nullptr}, {}), RuntimeError);
  EXPECT_FALSE(printer.open());
  EXPECT_TRUE(printer.takePictures().empty());
}

}  // namespace
}  // namespace pantrigo
