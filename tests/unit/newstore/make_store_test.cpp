#include "newstore/make_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "platform/text/errors.h"
#include "platform/text/utf8.h"
#include "support/scratch_folder.h"

namespace pantrigo {
namespace {

namespace fs = std::filesystem;

const fs::path dataFolder = PANTRIGO_DATA_FOLDER;

class MakeStoreTest : public ::testing::Test {
 protected:
  ScratchFolder scratch_;
  fs::path folder_ = scratch_.path();
  fs::path store_ = folder_ / "PANTRIGO.MDB";
};

int errorOfMaking(const NewStore& task) {
  return errorOf([&] { makeStore(task); });
}

TEST_F(MakeStoreTest, AnExistingFileIsNeverOverwritten) {
  std::ofstream(store_) << "precious";
  EXPECT_EQ(errorOfMaking({store_, {}, {}}), 75);
  std::ifstream stream(store_);
  std::string content;
  stream >> content;
  EXPECT_EQ(content, "precious");
}

TEST_F(MakeStoreTest, AMissingExchangeFileIsAnErrorAndLeavesNoStore) {
  EXPECT_EQ(errorOfMaking({store_, {}, folder_ / "none.txt"}), 53);
  EXPECT_FALSE(fs::exists(store_));
}

TEST_F(MakeStoreTest, ALineThatIsNoUnitWordIsAnError) {
  for (const char* line : {"just words", "x\tmL", "M\tmL", "mi\tmL", "\tmL", "m\t", "m\t ", "a\tsixteen letters."}) {
    std::ofstream(folder_ / "units.txt") << "m\tmL\n" << line << "\n";
    EXPECT_EQ(errorOfMaking({store_, folder_ / "units.txt", {}}), 3421) << line;
    EXPECT_FALSE(fs::exists(store_)) << line;
  }
  std::ofstream(folder_ / "units.txt") << "a\tfifteen létters\n";
  EXPECT_EQ(makeStore({store_, folder_ / "units.txt", {}}).unitWords, 1);
}

TEST_F(MakeStoreTest, TheErrorOfAUnitWordTellsTheReason) {
  std::ofstream(folder_ / "units.txt") << "x\tmL\n";
  try {
    makeStore({store_, folder_ / "units.txt", {}});
    FAIL() << "the store was made";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.text(), "Not a unit word, its letter is none of m, i, u and a: x\tmL");
  }
}

TEST_F(MakeStoreTest, AStoreThatCannotBeWrittenIsNotLeftBehind) {
  const auto handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit limit = before;
  // More than an empty store takes, and less than the starter recipes do. In bytes.
  limit.rlim_cur = 250'000;
  setrlimit(RLIMIT_FSIZE, &limit);
  const int error = errorOfMaking({store_, {}, dataFolder / "starter" / "cookbook.txt"});
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handlerBefore);
  EXPECT_EQ(error, 75);
  EXPECT_FALSE(fs::exists(store_));
  EXPECT_FALSE(fs::exists(store_.string() + "-wal"));
}

TEST_F(MakeStoreTest, AnEmptyStoreHasItsOptions) {
  makeStore({store_, {}, {}});
  Database database = Database::OpenDatabase(store_);
  const Recordset system = database.OpenRecordset("System");
  EXPECT_EQ(system.Field("Measurement").text(), "m");
  EXPECT_EQ(system.Field("PartialFractions").text(), "4");
  EXPECT_EQ(system.Field("RecipeId").number(), 0);
  EXPECT_TRUE(system.Field("ShowRecipes").truth());
  EXPECT_TRUE(system.Field("Settings").isNull());
  EXPECT_TRUE(database.OpenRecordset("Recipe").Eof());
  database.Close();
}

TEST_F(MakeStoreTest, TheUnitWordsFitTheirFieldAndTheirSystems) {
  const NewStoreResult result = makeStore({store_, dataFolder / "units.txt", {}});
  Database database = Database::OpenDatabase(store_);
  Recordset units = database.OpenRecordset("Unit");
  std::set<std::pair<std::string, std::string>> words;
  for (; !units.Eof(); units.MoveNext()) {
    const std::string type = units.Field("Type").text();
    const std::string word = units.Field("Description").text();
    EXPECT_NE(std::string("miua").find(type), std::string::npos) << word;
    EXPECT_LE(Len(word), 15u) << word;
    EXPECT_TRUE(words.emplace(type, word).second) << word;
  }
  EXPECT_EQ(static_cast<long>(words.size()), result.unitWords);
  for (const char* word : {"mL", "cL", "L", "mg", "cg", "g", "kg", "mm", "cm", "m"})
    EXPECT_TRUE(words.contains({"m", word})) << word;
  for (const char* word : {"UK fl oz", "UK pint", "UK qrt", "UK gal", "oz", "lb", "stone", "in", "ft", "yd"}) {
    EXPECT_TRUE(words.contains({"i", word})) << word;
  }
  for (const char* word : {"US fl oz", "US pint", "US qrt", "US gal", "oz", "lb", "in", "ft", "yd"}) {
    EXPECT_TRUE(words.contains({"u", word})) << word;
  }
  for (const char* word : {"tsp", "dsp", "tbsp", "cup", "bag", "bunch", "clove", "pouch"})
    EXPECT_TRUE(words.contains({"a", word})) << word;
  database.Close();
}

TEST_F(MakeStoreTest, TheStarterCookbookComesInWhole) {
  const NewStoreResult result = makeStore({store_, dataFolder / "units.txt", dataFolder / "starter" / "cookbook.txt"});
  EXPECT_GE(result.counts.added, 40);
  EXPECT_EQ(result.counts.added, result.counts.read);
  EXPECT_EQ(result.counts.warnings, 0);
  Database database = Database::OpenDatabase(store_);
  Recordset recipes = database.OpenRecordset("Recipe");
  long meals = 0;
  long pictures = 0;
  const Files files(folder_);
  for (; !recipes.Eof(); recipes.MoveNext()) {
    const std::string title = recipes.Field("Title").text();
    meals += recipes.Field("Meal").truth() ? 1 : 0;
    pictures += files.Dir(recipes.Field("RecipeId").text() + ".BMP").empty() ? 0 : 1;
    EXPECT_TRUE(recipes.Field("Ingredients").text().ends_with("~")) << title;
    EXPECT_TRUE(recipes.Field("Method").aboveEmpty()) << title;
    EXPECT_FALSE(recipes.Field("Nationality").isNull()) << title;
    EXPECT_FALSE(recipes.Field("Course").isNull()) << title;
  }
  EXPECT_EQ(meals, 4);
  EXPECT_EQ(pictures, 6);
  database.Close();
}

TEST_F(MakeStoreTest, RealRecipesComeInWithoutAFailure) {
  const char* samples = std::getenv("PANTRIGO_SAMPLES");
  if (samples == nullptr) GTEST_SKIP() << "PANTRIGO_SAMPLES names no folder of sample files";
  const NewStoreResult result = makeStore({store_, dataFolder / "units.txt", fs::path(samples) / "real-recipes.txt"});
  EXPECT_EQ(result.counts.read, 4883);
  EXPECT_EQ(result.counts.added, 4883);
}

}  // namespace
}  // namespace pantrigo
