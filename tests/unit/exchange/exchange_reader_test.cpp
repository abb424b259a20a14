#include "exchange/exchange_reader.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/scratch_folder.h"

namespace pantrigo {
namespace {

namespace fs = std::filesystem;

/// A fresh store in a fresh folder, with the recordsets that the walk needs, and what it told.
class ExchangeReaderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Database::createStore(folder_ / "PANTRIGO.MDB");
    global_.gDatabase = Database::OpenDatabase(folder_ / "PANTRIGO.MDB");
    global_.gStartDir = folder_.string();
    for (const CategoryKind& kind : categoryKinds()) global_.*kind.cursor = global_.gDatabase.OpenRecordset(kind.name);
    global_.gSystem = global_.gDatabase.OpenRecordset("System");
    global_.gRecipe = global_.gDatabase.OpenRecordset("Recipe");
  }

  void TearDown() override { global_.gDatabase.Close(); }

  void write(const std::string& name, const std::string& bytes) const { scratch_.write(name, bytes); }

  /// Writes lines with CR LF and walks them.
  ImportCounts import(const std::vector<std::string>& lines, DuplicateTitles duplicates = DuplicateTitles::CreateUnique,
                      std::function<bool()> stopAsked = {}) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    write("xprt.txt", bytes);
    TextReader file(files_, "xprt.txt");
    ImportEvents events;
    events.warning = [&](const std::string& line) { log_.push_back(line); };
    events.added = [&](const std::string& title) { added_.push_back(title); };
    events.categoryAdded = [&](const CategoryKind& kind, const std::string& text) {
      categories_.push_back(std::string(kind.name) + ":" + text);
    };
    events.stopAsked = std::move(stopAsked);
    ExchangeReader reader(global_, files_, folder_.string(), duplicates, std::move(events));
    reader.walk(file);
    reader.saveCounters();
    return reader.counts();
  }

  Value field(const std::string& title, std::string_view name) {
    global_.gRecipe.Index("RecipeIdxTitle");
    global_.gRecipe.Seek("=", title);
    return global_.gRecipe.NoMatch() ? Value("no such recipe") : Value(global_.gRecipe.Field(name));
  }

  long rows(std::string_view table) {
    Recordset recordset = global_.gDatabase.OpenRecordset(table);
    long count = 0;
    for (; !recordset.Eof(); recordset.MoveNext()) ++count;
    return count;
  }

  ScratchFolder scratch_;
  fs::path folder_ = scratch_.path();
  Files files_{folder_};
  Global global_;
  std::vector<std::string> log_;
  std::vector<std::string> added_;
  std::vector<std::string> categories_;
};

TEST_F(ExchangeReaderTest, AWholeRecipeComesIn) {
  const ImportCounts counts =
      import({"00:APPLE pie", "01:British", "02:Desserts", "05:6", "06:30", "08:Aunt May", "09:False", "10:418.68",
              "19:True", "20:False", "21:Good!~cold", "22:2~~apples~~2~~", "23:Mix.!~Bake.", "24:Vegetarian",
              "25:Party", "99:End recipe"});
  EXPECT_EQ(counts.read, 1);
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(counts.warnings, 0);
  EXPECT_EQ(added_, std::vector<std::string>{"Apple Pie"});
  EXPECT_EQ(field("Apple Pie", "RecipeId").number(), 1);
  EXPECT_EQ(field("Apple Pie", "Serves").number(), 6);
  EXPECT_EQ(field("Apple Pie", "Energy").number(), 418.68);
  EXPECT_TRUE(field("Apple Pie", "ConvertCupSpoon").truth());
  EXPECT_FALSE(field("Apple Pie", "Meal").truth());
  EXPECT_EQ(field("Apple Pie", "Comment").text(), "Good\r\ncold");
  EXPECT_EQ(field("Apple Pie", "Method").text(), "Mix.\r\nBake.");
  EXPECT_EQ(field("Apple Pie", "Ingredients").text(), "2~~apples~~2~~");
  EXPECT_EQ(field("Apple Pie", "Nationality").number(), 1);
  EXPECT_TRUE(field("Apple Pie", "CookTime").isNull());
  EXPECT_EQ(categories_,
            (std::vector<std::string>{"Nationality:British", "Course:Desserts", "Health:Vegetarian", "Other:Party"}));
  EXPECT_EQ(rows("RecipeHealth"), 1);
  EXPECT_EQ(global_.gSystem.Field("RecipeId").number(), 1);
  EXPECT_EQ(global_.gSystem.Field("OtherId").number(), 1);
}

TEST_F(ExchangeReaderTest, TheSameFileTwiceMakesTitlesUnique) {
  const std::vector<std::string> lines{"00:Apple Pie", "05:6", "99:End recipe"};
  import(lines);
  const ImportCounts second = import(lines);
  EXPECT_EQ(second.added, 1);
  EXPECT_EQ(second.warnings, 1);
  EXPECT_EQ(log_, std::vector<std::string>{"Apple Pie - added ok, made unique by adding 1 to end"});
  import(lines);
  EXPECT_EQ(added_, (std::vector<std::string>{"Apple Pie", "Apple Pie 1", "Apple Pie 2"}));
}

TEST_F(ExchangeReaderTest, ARefusedDuplicateIsReportedAndPassedOver) {
  import({"00:Apple Pie", "05:6", "99:End recipe"});
  const ImportCounts counts = import({"00:APPLE PIE", "05:9", "99:End recipe", "00:Beef Stew", "05:4", "99:End recipe"},
                                     DuplicateTitles::ReportOnly);
  EXPECT_EQ(counts.read, 2);
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(log_, std::vector<std::string>{"Apple Pie - not added, already exists"});
  EXPECT_EQ(field("Apple Pie", "Serves").number(), 6);
  EXPECT_EQ(field("Beef Stew", "RecipeId").number(), 2);
}

TEST_F(ExchangeReaderTest, ACourseFindsItsPluralAndAMethodOfCookingDoesNot) {
  import({"00:A", "02:Desserts", "03:Grills", "25:Parties", "99:End recipe"});
  import({"00:B", "02:Dessert", "03:Grill", "99:End recipe"});
  EXPECT_EQ(field("B", "Course").number(), 1);
  EXPECT_EQ(field("B", "Cooking").number(), 2);
  EXPECT_EQ(rows("Course"), 1);
  EXPECT_EQ(rows("Cooking"), 2);
}

TEST_F(ExchangeReaderTest, AFileOfOneLineAddsNothing) {
  const ImportCounts counts = import({"00:Apple Pie"});
  EXPECT_EQ(counts.read, 0);
  EXPECT_EQ(counts.added, 0);
  EXPECT_EQ(rows("Recipe"), 0);
}

TEST_F(ExchangeReaderTest, WithoutItsEndLineARecipeLosesItsLastLine) {
  const ImportCounts counts = import({"00:Apple Pie", "05:6", "23:Mix."});
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(field("Apple Pie", "Serves").number(), 6);
  EXPECT_TRUE(field("Apple Pie", "Method").isNull());
}

TEST_F(ExchangeReaderTest, BlankLinesAndUnknownTagsArePassedOver) {
  const ImportCounts counts = import({"00:Apple Pie", "", "   ", "77:what", "no tag at all", "05:6", "99:End recipe"});
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(field("Apple Pie", "Serves").number(), 6);
}

TEST_F(ExchangeReaderTest, ABlankFirstLineFails) {
  EXPECT_EQ(errorOf([&] { import({"", "00:Apple Pie", "99:End recipe"}); }), 5);
}

TEST_F(ExchangeReaderTest, AValueThatDoesNotConvertFailsUntilSkippingHasBegun) {
  EXPECT_EQ(errorOf([&] { import({"00:Apple Pie", "05:many", "99:End recipe"}); }), 3421);
  import({"00:Carrot Cake", "02:Cakes", "99:End recipe"});
  const ImportCounts counts = import({"00:Beef Stew", "02:Cakes", "05:many", "06:20", "99:End recipe"});
  EXPECT_EQ(counts.added, 1);
  EXPECT_TRUE(field("Beef Stew", "Serves").isNull());
  EXPECT_EQ(field("Beef Stew", "PrepareTime").number(), 20);
}

TEST_F(ExchangeReaderTest, ASecondEqualLinkIsSkipped) {
  const ImportCounts counts = import({"00:Apple Pie", "25:Party", "25:Party", "23:Bake.", "99:End recipe"});
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(rows("RecipeOther"), 1);
  EXPECT_EQ(field("Apple Pie", "Method").text(), "Bake.");
}

TEST_F(ExchangeReaderTest, ANewTitleDropsTheOpenRecipeAndSpendsItsId) {
  const ImportCounts counts = import({"00:Apple Pie", "25:Party", "00:Beef Stew", "05:4", "99:End recipe"});
  EXPECT_EQ(counts.read, 2);
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(rows("Recipe"), 1);
  EXPECT_EQ(rows("RecipeOther"), 1);
  EXPECT_EQ(field("Beef Stew", "RecipeId").number(), 2);
}

TEST_F(ExchangeReaderTest, AFieldOutsideARecipeFails) {
  EXPECT_EQ(errorOf([&] { import({"05:4", "00:Apple Pie", "99:End recipe"}); }), 3020);
}

TEST_F(ExchangeReaderTest, AStopStoresWhatWasRead) {
  int lines = 0;
  const ImportCounts counts = import({"00:Apple Pie", "10:500", "22:2~~apples~~2~~", "99:End recipe"},
                                     DuplicateTitles::CreateUnique, [&] { return ++lines == 2; });
  EXPECT_EQ(counts.added, 1);
  EXPECT_EQ(field("Apple Pie", "Energy").number(), 500);
  EXPECT_TRUE(field("Apple Pie", "Ingredients").isNull());
}

TEST_F(ExchangeReaderTest, PicturesComeBackUnderTheNewId) {
  write("12.pgx", "first");
  write("12a.pgx", "second");
  write("12c.pgx", "behind a gap");
  import({"00:Beef Stew", "99:End recipe", "00:Apple Pie", "26:12", "99:End recipe"});
  EXPECT_EQ(files_.readBytes("2.bmp"), "first");
  EXPECT_EQ(files_.readBytes("2a.bmp"), "second");
  EXPECT_TRUE(files_.Dir("2b.bmp").empty());
}

TEST_F(ExchangeReaderTest, CountsTheTitleLinesButNotTheLastLine) {
  write("xprt.txt", "00:A\r\n99:End recipe\r\n00:B\r\n99:End recipe\r\n00:C");
  TextReader file(files_, "xprt.txt");
  EXPECT_EQ(ExchangeReader::countRecipes(file), 2);
}

TEST_F(ExchangeReaderTest, AnEmptyFileIsAnError) {
  EXPECT_EQ(errorOf([&] { import({}); }), 62);
}

}  // namespace
}  // namespace pantrigo
