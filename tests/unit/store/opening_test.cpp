#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

#include "platform/store/durability.h"
#include "platform/store/schema.h"
#include "platform/store/store_errors.h"
#include "platform/store/store_state.h"
#include "platform/store/unfinished_file.h"
#include "platform/text/collation.h"
#include "unit/store/child_process.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

namespace fs = std::filesystem;

using Texts = std::vector<std::string>;

/// The engine's own flags for opening a file.
constexpr int engineReadOnly = 1;
constexpr int engineReadWrite = 2;

/// What a text of the engine gives on the store's own connection: one of its settings, mostly.
std::string setting(const Database& database, const std::string& text) {
  return StoreAccess::state(database).connection().single(text.c_str());
}

class OpeningTest : public FolderTest {
 protected:
  [[nodiscard]] int openingError() const {
    return errorOf([this] { static_cast<void>(Database::OpenDatabase(file())); });
  }

  [[nodiscard]] std::string openingErrorText() const {
    return errorTextOf([this] { static_cast<void>(Database::OpenDatabase(file())); });
  }

  /// A store with three recipes, closed.
  void makeStore() const {
    Database::createStore(file());
    Database database = Database::OpenDatabase(file());
    for (int id = 1; id <= 3; ++id) {
      addRawRow(database, "Recipe", {{"RecipeId", id}, {"Title", "Recipe " + std::to_string(id)}});
    }
    database.Close();
  }

  /// Changes the closed store's file by a text of the engine, past all checks.
  void changeFile(const char* text) const {
    Connection(file().string(), engineReadWrite, Access::ReadWrite).execute(text);
  }

  [[nodiscard]] static Texts titles(Database& database) {
    Texts result;
    Recordset cursor = database.OpenRecordset("Recipe");
    cursor.Index("RecipeIdxTitle");
    for (cursor.Seek(">", ""); !cursor.Eof(); cursor.MoveNext()) result.push_back(cursor.Field("Title").text());
    return result;
  }
};

const Texts threeTitles{"Recipe 1", "Recipe 2", "Recipe 3"};

TEST_F(OpeningTest, MissingFileIsNotMade) {
  EXPECT_EQ(openingError(), 3024);
  EXPECT_EQ(fileNames(), Texts{});
  EXPECT_EQ(errorOf([this] { static_cast<void>(Database::OpenDatabase(folder() / "none" / "x.mdb")); }), 3024);
}

TEST_F(OpeningTest, FilesThatAreNoStoreAreLeftAsTheyAre) {
  for (const std::string& bytes :
       {std::string(), std::string("x"), std::string("SQLite format 3"), std::string(5000, 'x'),
        std::string("Apple Pie\r\n"), std::string("SQLite format 3\0", 16)}) {
    writeFile(file(), bytes);
    EXPECT_EQ(openingError(), 3343) << bytes.size();
    EXPECT_EQ(readFile(file()), bytes);
    EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
  }
}

TEST_F(OpeningTest, CutOffStoreIsNoDatabase) {
  makeStore();
  const std::string whole = readFile(file());
  for (const std::size_t size : {whole.size() / 2, whole.size() - 4096, std::size_t{4096}, std::size_t{100}}) {
    writeFile(file(), whole.substr(0, size));
    EXPECT_EQ(openingError(), 3343) << size;
    EXPECT_EQ(readFile(file()), whole.substr(0, size));
  }
}

TEST_F(OpeningTest, FileOfNoWholeNumberOfPagesIsNoDatabase) {
  makeStore();
  const std::string longer = readFile(file()) + std::string(100, 'x');
  writeFile(file(), longer);
  EXPECT_EQ(openingError(), 3343);
  EXPECT_EQ(readFile(file()), longer);
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
}

TEST_F(OpeningTest, PageCountOfAnOlderWriterIsPassedOver) {
  makeStore();
  std::string bytes = readFile(file());
  // The count at 28 to 31 is far too high; by the counters at 24 and 92 it is not of the last change.
  bytes[28] = 1;
  bytes[95] = static_cast<char>(bytes[27] + 1);
  writeFile(file(), bytes);
  EXPECT_EQ(openingError(), 0);
  bytes[95] = bytes[27];
  writeFile(file(), bytes);
  EXPECT_EQ(openingError(), 3343);
}

TEST_F(OpeningTest, StoreOfAnotherProgramOrALaterVersionIsRefused) {
  makeStore();
  const std::string whole = readFile(file());
  for (const char* text : {"PRAGMA application_id=0", "PRAGMA application_id=7", "PRAGMA user_version=2"}) {
    writeFile(file(), whole);
    changeFile(text);
    const std::string before = readFile(file());
    EXPECT_EQ(openingError(), 3343) << text;
    EXPECT_EQ(readFile(file()), before) << text;
  }
  changeFile("PRAGMA user_version=1");
  EXPECT_EQ(openingError(), 0);
}

TEST_F(OpeningTest, FolderCannotBeOpened) {
  fs::create_directory(file());
  EXPECT_EQ(openingError(), 3051);
}

TEST_F(OpeningTest, FileThatMayNotBeReadCannotBeOpened) {
  if (geteuid() == 0) GTEST_SKIP() << "a superuser may read every file";
  makeStore();
  fs::permissions(file(), fs::perms::none);
  EXPECT_EQ(openingError(), 3051);
}

TEST_F(OpeningTest, EveryTableMustBeThere) {
  makeStore();
  const std::string whole = readFile(file());
  for (const TableDescription& table : storeTables()) {
    writeFile(file(), whole);
    changeFile(("DROP TABLE " + std::string(table.name)).c_str());
    const std::string before = readFile(file());
    EXPECT_EQ(openingError(), 3078) << table.name;
    EXPECT_EQ(openingErrorText(), "A table of the store couldn't be found. " + std::string(table.name));
    EXPECT_EQ(readFile(file()), before) << table.name;
    EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
  }
}

TEST_F(OpeningTest, EveryIndexMustBeThere) {
  makeStore();
  changeFile("DROP INDEX RecipeIdxTitle");
  EXPECT_EQ(openingError(), 3015);
  EXPECT_EQ(openingErrorText(), "No such index in the table. RecipeIdxTitle");
}

TEST_F(OpeningTest, EveryFieldMustBeThere) {
  makeStore();
  const std::string whole = readFile(file());
  for (const std::string name : {"Recipe.Method", "Recipe.Fat", "System.ShowToolBars", "Unit.Description"}) {
    writeFile(file(), whole);
    const std::string table = name.substr(0, name.find('.'));
    const std::string field = name.substr(name.find('.') + 1);
    changeFile(("ALTER TABLE " + table + " RENAME COLUMN " + field + " TO Colour").c_str());
    const std::string before = readFile(file());
    EXPECT_EQ(openingError(), 3265) << name;
    EXPECT_EQ(openingErrorText(), "Field not found in this table. " + name);
    EXPECT_EQ(readFile(file()), before) << name;
    EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
  }
}

TEST_F(OpeningTest, IndexesMustHaveTheirKeys) {
  makeStore();
  const std::string whole = readFile(file());
  const std::pair<std::string, std::string> wrong[] = {
      {"RecipeIdxTitle", "Recipe (Source)"},
      {"RecipeIdxMeal", "System (Cup)"},
      {"RecipeHealthIdxRecipeIdHealthId", "RecipeHealth (RecipeId)"},
      {"RecipeOtherIdxRecipeIdOtherId", "RecipeOther (OtherId, RecipeId)"},
  };
  for (const auto& [name, keys] : wrong) {
    writeFile(file(), whole);
    changeFile(("DROP INDEX " + name + "; CREATE INDEX " + name + " ON " + keys).c_str());
    EXPECT_EQ(openingError(), 3015) << name;
    EXPECT_EQ(openingErrorText(), "No such index in the table. " + name);
  }
}

TEST_F(OpeningTest, RowOfOptionsMustBeThere) {
  makeStore();
  changeFile("DELETE FROM System");
  const std::string before = readFile(file());
  EXPECT_EQ(openingError(), 3021);
  EXPECT_EQ(openingErrorText(), "No current record. The row of options is missing from the table System.");
  EXPECT_EQ(readFile(file()), before);
}

TEST_F(OpeningTest, StoreThatCannotBeMadeWholeIsNotLeftBehind) {
  {
    const FileSizeLimit limit(20000);
    EXPECT_EQ(errorOf([this] { Database::createStore(file()); }), 75);
  }
  EXPECT_EQ(fileNames(), Texts{});
  EXPECT_EQ(errorOf([this] { Database::createStore(file()); }), 0);
}

TEST_F(OpeningTest, UnfinishedFileGoesUnlessKept) {
  const auto make = [this](bool isKept) {
    UnfinishedFile unfinished(file());
    writeFile(file(), "x");
    writeFile(file().string() + "-journal", "x");
    if (isKept) unfinished.keep();
    throw std::length_error("no run-time error");
  };
  EXPECT_THROW(make(false), std::length_error);
  EXPECT_EQ(fileNames(), Texts{});
  EXPECT_THROW(make(true), std::length_error);
  EXPECT_EQ(fileNames(), (Texts{"PANTRIGO.MDB", "PANTRIGO.MDB-journal"}));
}

TEST_F(OpeningTest, FailuresOfTheFileOfAnOpenStoreAreNoFailuresToOpen) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  Recordset cursor = database.OpenRecordset("Recipe");
  cursor.AddNew();
  cursor.Set("Title", "Large");
  cursor.Set("Method", std::string(1000000, 'm'));
  {
    const FileSizeLimit limit(200000);
    EXPECT_EQ(errorTextOf([&] { cursor.Update(); }), "Path/File access error");
    EXPECT_EQ(errorOf([&] { cursor.Update(); }), 75);
  }
  EXPECT_EQ(titles(database), threeTitles);
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 0);
  EXPECT_EQ(titles(database).size(), 4U);
}

TEST(StoreErrors, EngineFailuresHaveTheirNumbers) {
  // The engine's own result codes, plain and extended, in order.
  const std::pair<int, int> numbers[] = {{1, 51},  {3, 75},    {5, 3045},  {7, 7},       {8, 3027},
                                         {10, 75}, {11, 3343}, {13, 3026}, {14, 75},     {19, 3022},
                                         {21, 51}, {26, 3343}, {778, 75},  {2067, 3022}, {3082, 7}};
  for (const auto& [result, number] : numbers) EXPECT_EQ(errorNumberOf(result), number) << result;
}

TEST_F(OpeningTest, FailedCheckpointLeavesTheStoreDurable) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  database.setDurability(Database::Durability::AtCheckpoint);
  addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Method", std::string(200000, 'm')}});
  {
    const FileSizeLimit limit(fs::file_size(file()));
    EXPECT_EQ(errorOf([&] { database.setDurability(Database::Durability::EachUpdate); }), 75);
  }
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "2");
  database.setDurability(Database::Durability::AtCheckpoint);
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "1");
  EXPECT_EQ(errorOf([&] { database.setDurability(Database::Durability::EachUpdate); }), 0);
  EXPECT_EQ(fs::file_size(file().string() + "-wal"), 0U);
}

TEST_F(OpeningTest, ScopeOfCheckpointedUpdatesEndsByItself) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  EXPECT_THROW(
      {
        const CheckpointAtEnd scope(database);
        EXPECT_EQ(setting(database, "PRAGMA synchronous"), "1");
        throw std::length_error("out of the scope");
      },
      std::length_error);
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "2");
  CheckpointAtEnd scope(database);
  scope.finish();
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "2");
  database.Close();
  EXPECT_EQ(errorOf([&] { CheckpointAtEnd late(database); }), 3420);
}

TEST_F(OpeningTest, StoreIsMadeOnce) {
  Database::createStore(file());
  const std::string made = readFile(file());
  EXPECT_EQ(errorOf([this] { Database::createStore(file()); }), 75);
  EXPECT_EQ(readFile(file()), made);
  EXPECT_EQ(errorOf([this] { Database::createStore(folder() / "none" / "x.mdb"); }), 75);
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
}

TEST_F(OpeningTest, SettingsOfAnOpenStore) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  EXPECT_EQ(setting(database, "PRAGMA journal_mode"), "wal");
  EXPECT_EQ(setting(database, "PRAGMA locking_mode"), "exclusive");
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "2");
  EXPECT_EQ(setting(database, "PRAGMA application_id"), std::to_string(storeApplicationId));
  database.setDurability(Database::Durability::AtCheckpoint);
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "1");
  database.setDurability(Database::Durability::EachUpdate);
  EXPECT_EQ(setting(database, "PRAGMA synchronous"), "2");
}

TEST_F(OpeningTest, ClosedStoreIsOneFile) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Title", "Four"}});
  EXPECT_EQ(fileNames(), (Texts{"PANTRIGO.MDB", "PANTRIGO.MDB-wal"}));
  Recordset cursor = database.OpenRecordset("Recipe");
  cursor.AddNew();
  cursor.Set("Title", "Never stored");
  database.Close();
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
  // Bytes 18 and 19 of the header: 1 is the rollback journal, 2 the write-ahead log.
  EXPECT_EQ(readFile(file()).substr(18, 2), "\x01\x01");
  database = Database::OpenDatabase(file());
  EXPECT_EQ(titles(database), (Texts{"Four", "Recipe 1", "Recipe 2", "Recipe 3"}));
}

TEST_F(OpeningTest, StoreThatNobodyClosedIsOneFileToo) {
  makeStore();
  {
    Database database = Database::OpenDatabase(file());
    addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Title", "Four"}});
  }
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
}

TEST_F(OpeningTest, SecondOpeningInTheSameProcessIsRefused) {
  makeStore();
  Database first = Database::OpenDatabase(file());
  EXPECT_EQ(openingError(), 3045);
  addRawRow(first, "Recipe", {{"RecipeId", 4}, {"Title", "Four"}});
  EXPECT_EQ(openingError(), 3045);
  EXPECT_EQ(titles(first).size(), 4U);
}

TEST_F(OpeningTest, StoreOpenInAnotherProcessIsRefusedAtOnce) {
  makeStore();
  ChildProcess child([this](ReportPipe& pipe) {
    const Database database = Database::OpenDatabase(file());
    pipe.report(1);
    pipe.waitForEver();
  });
  ASSERT_TRUE(child.waitForReport());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(openingError(), 3045);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  child.kill();
  Database database = Database::OpenDatabase(file());
  EXPECT_EQ(titles(database), threeTitles);
}

TEST_F(OpeningTest, LogLeftByACrashIsTakenIn) {
  makeStore();
  ChildProcess child([this](ReportPipe& pipe) {
    Database database = Database::OpenDatabase(file());
    addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Title", "Four"}});
    pipe.report(1);
    pipe.waitForEver();
  });
  ASSERT_TRUE(child.waitForReport());
  child.kill();
  ASSERT_EQ(fileNames(), (Texts{"PANTRIGO.MDB", "PANTRIGO.MDB-wal"}));
  Database database = Database::OpenDatabase(file());
  EXPECT_EQ(titles(database).size(), 4U);
  database.Close();
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
}

TEST_F(OpeningTest, RefusedStoreKeepsTheLogOfACrash) {
  makeStore();
  ChildProcess child([this](ReportPipe& pipe) {
    Database database = Database::OpenDatabase(file());
    StoreAccess::state(database).connection().execute("DROP TABLE Unit");
    pipe.report(1);
    pipe.waitForEver();
  });
  ASSERT_TRUE(child.waitForReport());
  child.kill();
  const std::string before = readFile(file());
  EXPECT_EQ(openingError(), 3078);
  EXPECT_EQ(readFile(file()), before);
  EXPECT_EQ(fileNames(), (Texts{"PANTRIGO.MDB", "PANTRIGO.MDB-wal"}));
}

TEST_F(OpeningTest, OtherCollationVersionRebuildsTheIndexes) {
  makeStore();
  // Texts in an index out of order, as another version of the order of texts would have left them.
  changeFile(
      "PRAGMA writable_schema=ON;"
      "UPDATE sqlite_schema SET sql = replace(sql, '(Title, RowNumber, Meal)', '(Title COLLATE BINARY, RowNumber, "
      "Meal)')"
      " WHERE name = 'RecipeIdxTitle'");
  changeFile(
      "UPDATE Recipe SET Title = 'apple' WHERE RecipeId = 3; REINDEX; UPDATE StoreStamp SET CollationVersion = "
      "'older'");
  changeFile(
      "PRAGMA writable_schema=ON;"
      "UPDATE sqlite_schema SET sql = replace(sql, 'Title COLLATE BINARY', 'Title') WHERE name = 'RecipeIdxTitle'");
  ASSERT_NE(Connection(file().string(), engineReadOnly, Access::ReadOnly).single("PRAGMA integrity_check"), "ok");
  Database database = Database::OpenDatabase(file());
  EXPECT_EQ(setting(database, "PRAGMA integrity_check"), "ok");
  EXPECT_EQ(titles(database), (Texts{"apple", "Recipe 1", "Recipe 2"}));
  EXPECT_EQ(setting(database, "SELECT CollationVersion FROM StoreStamp"), collationVersion());
  EXPECT_EQ(setting(database, "SELECT count(*) FROM StoreStamp"), "1");
}

/// What a store can't be written for.
enum class Protected { File, Folder };

class ReadOnlyTest : public OpeningTest, public testing::WithParamInterface<Protected> {
 protected:
  void protect() const {
    const fs::path path = GetParam() == Protected::File ? file() : folder();
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(path, anyWrite, fs::perm_options::remove);
  }
};

TEST_P(ReadOnlyTest, OpensAndRefusesTheFirstWrite) {
  makeStore();
  changeFile("UPDATE System SET RecipeId = 0; UPDATE StoreStamp SET CollationVersion = 'older'");
  const std::string before = readFile(file());
  protect();
  Database database = Database::OpenDatabase(file());
  EXPECT_EQ(titles(database), threeTitles);
  Recordset system = database.OpenRecordset("System");
  EXPECT_EQ(system.Field("RecipeId"), Value(0));
  Recordset cursor = database.OpenRecordset("Recipe");
  EXPECT_EQ(errorOf([&] { cursor.Delete(); }), 3027);
  cursor.Edit();
  cursor.Set("Title", "x");
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3027);
  cursor.AddNew();
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3027);
  EXPECT_EQ(errorOf([&] { database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId = 1"); }), 3027);
  EXPECT_EQ(errorOf([&] { addRawRow(database, "Course", {}); }), 3027);
  EXPECT_EQ(errorOf([&] { database.setDurability(Database::Durability::AtCheckpoint); }), 0);
  cursor.MoveFirst();
  EXPECT_EQ(cursor.Field("Title"), Value("Recipe 1"));
  database.Close();
  EXPECT_EQ(readFile(file()), before);
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
}

TEST_P(ReadOnlyTest, StoreThatLostItsEmptyLogOpens) {
  makeStore();
  changeFile("PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=WAL");
  // The mark of the write-ahead log without one, as when only the file was copied after a crash.
  std::string bytes = readFile(file());
  bytes[18] = bytes[19] = 2;
  writeFile(file(), bytes);
  fs::remove(file().string() + "-wal");
  protect();
  Database database = Database::OpenDatabase(file());
  EXPECT_EQ(titles(database), threeTitles);
  database.Close();
  EXPECT_EQ(fileNames(), Texts{"PANTRIGO.MDB"});
}

TEST_P(ReadOnlyTest, IsRefusedWhileAProgramWritesIt) {
  makeStore();
  ChildProcess child([this](ReportPipe& pipe) {
    const Database database = Database::OpenDatabase(file());
    pipe.report(1);
    pipe.waitForEver();
  });
  ASSERT_TRUE(child.waitForReport());
  protect();
  EXPECT_EQ(openingError(), 3045);
  child.kill();
}

TEST_P(ReadOnlyTest, LogOfACrashIsReadOrTheStoreRefused) {
  makeStore();
  ChildProcess child([this](ReportPipe& pipe) {
    Database database = Database::OpenDatabase(file());
    addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Title", "Four"}});
    pipe.report(1);
    pipe.waitForEver();
  });
  ASSERT_TRUE(child.waitForReport());
  child.kill();
  const std::string before = readFile(file());
  protect();
  Texts found;
  const int error = errorOf([&] {
    Database database = Database::OpenDatabase(file());
    found = titles(database);
  });
  // Where even the engine's side files can't be made the log can't be read, and the file alone would show old rows.
  if (error == 0) {
    EXPECT_EQ(found.size(), 4U);
  } else {
    EXPECT_EQ(error, 3051);
  }
  EXPECT_EQ(readFile(file()), before);
  EXPECT_EQ(fileNames(), (Texts{"PANTRIGO.MDB", "PANTRIGO.MDB-wal"}));
}

INSTANTIATE_TEST_SUITE_P(Where, ReadOnlyTest, testing::Values(Protected::File, Protected::Folder));

TEST_F(OpeningTest, FullDiskIsReportedAndTheStoreStaysWhole) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  const std::string pages = setting(database, "PRAGMA page_count");
  static_cast<void>(setting(database, "PRAGMA max_page_count=" + pages));
  Recordset cursor = database.OpenRecordset("Recipe");
  cursor.AddNew();
  cursor.Set("Title", "Large");
  cursor.Set("Method", std::string(1000000, 'm'));
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3026);
  EXPECT_EQ(titles(database), threeTitles);
  static_cast<void>(setting(database, "PRAGMA max_page_count=1000000"));
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 0);
  EXPECT_EQ(setting(database, "PRAGMA integrity_check"), "ok");
  EXPECT_EQ(titles(database).size(), 4U);
}

TEST_F(OpeningTest, WalkWithManyUpdatesLeavesNoLargeLog) {
  makeStore();
  Database database = Database::OpenDatabase(file());
  database.setDurability(Database::Durability::AtCheckpoint);
  for (int id = 4; id <= 2000; ++id)
    addRawRow(database, "Recipe", {{"RecipeId", id}, {"Title", "Recipe " + std::to_string(id)}});
  Recordset walk = database.OpenRecordset("Recipe");
  walk.Index("RecipeIdxTitle");
  std::uintmax_t largest = 0;
  for (int round = 0; round < 5; ++round) {
    for (walk.Seek(">", ""); !walk.Eof(); walk.MoveNext()) {
      walk.Edit();
      walk.Set("Source", "Round " + std::to_string(round));
      walk.Update();
    }
    largest = std::max(largest, fs::file_size(file().string() + "-wal"));
  }
  // The engine moves the log into the file every 1000 pages of 4 KiB.
  EXPECT_LT(largest, 5U << 20U);
  database.setDurability(Database::Durability::EachUpdate);
  EXPECT_EQ(fs::file_size(file().string() + "-wal"), 0U);
}

}  // namespace
}  // namespace pantrigo
