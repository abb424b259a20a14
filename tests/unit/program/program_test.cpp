#include "program/program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/start_up.h"
#include "newstore/make_store.h"
#include "support/quiet_toolkit.h"
#include "support/scratch_folder.h"

namespace pantrigo {
namespace {

namespace fs = std::filesystem;

class ProgramTest : public ::testing::Test {
 protected:
  static void makeCookbook(const fs::path& folder, const std::string& title) {
    makeStore({folder / storeName, {}, {}});
    Database database = Database::OpenDatabase(folder / storeName);
    Recordset recipes = database.OpenRecordset("Recipe");
    recipes.AddNew();
    recipes.Set("RecipeId", 1);
    recipes.Set("Title", title);
    recipes.Update();
    database.Close();
  }

  ScratchFolder firstFolder_;
  ScratchFolder secondFolder_;
  fs::path first_ = firstFolder_.path();
  fs::path second_ = secondFolder_.path();
  QuietToolkit toolkit_;
};

TEST_F(ProgramTest, AMissingStoreEndsTheRunWithStatusOne) {
  Program program(toolkit_, first_);
  program.start();
  EXPECT_TRUE(program.ended());
  EXPECT_EQ(program.exitStatus(), 1);
  EXPECT_TRUE(fs::is_empty(first_));
}

TEST_F(ProgramTest, AQuietEndHasStatusNought) {
  makeCookbook(first_, "Apple Pie");
  Program program(toolkit_, first_);
  program.start();
  ASSERT_FALSE(program.ended());
  program.run().loop.dispatch([&] { program.run().loop.End(); });
  EXPECT_TRUE(program.ended());
  EXPECT_EQ(program.exitStatus(), 0);
  EXPECT_FALSE(program.run().GLOBAL.gDatabase.isOpen());
}

TEST_F(ProgramTest, AnErrorClosesTheStoreAndLaterEventsAreIgnored) {
  makeCookbook(first_, "Apple Pie");
  Program program(toolkit_, first_);
  program.start();
  program.run().loop.dispatch([] { throw RuntimeError(13); });
  EXPECT_EQ(program.exitStatus(), 1);
  EXPECT_FALSE(program.run().GLOBAL.gDatabase.isOpen());
  bool ran = false;
  program.run().loop.dispatch([&] { ran = true; });
  EXPECT_FALSE(ran);
}

TEST_F(ProgramTest, AnyOtherExceptionIsAnErrorToo) {
  makeCookbook(first_, "Apple Pie");
  Program program(toolkit_, first_);
  program.start();
  program.run().loop.dispatch([] { throw std::runtime_error("from below"); });
  EXPECT_TRUE(program.ended());
  EXPECT_EQ(program.exitStatus(), 1);
}

TEST_F(ProgramTest, TheEndInsideANestedEventUnwindsTheOuterOneAtItsNextWait) {
  makeCookbook(first_, "Apple Pie");
  Program program(toolkit_, first_);
  program.start();
  EventLoop& loop = program.run().loop;
  bool wentOn = false;
  loop.dispatch([&] {
    loop.dispatch([&] { loop.End(); });
    EXPECT_TRUE(program.run().GLOBAL.gDatabase.isOpen()) << "the store closes after the unwinding";
    loop.DoEvents();
    wentOn = true;
  });
  EXPECT_FALSE(wentOn);
  EXPECT_FALSE(program.run().GLOBAL.gDatabase.isOpen());
}

TEST_F(ProgramTest, TwoRunsLiveInOneProcess) {
  makeCookbook(first_, "Apple Pie");
  makeCookbook(second_, "Beef Stew");
  Program one(toolkit_, first_);
  Program two(toolkit_, second_);
  one.start();
  two.start();
  EXPECT_EQ(one.run().frmBrowse.lstTitles.List(0), "Apple Pie");
  EXPECT_EQ(two.run().frmBrowse.lstTitles.List(0), "Beef Stew");
  for (Program* program : {&one, &two}) program->run().loop.dispatch([&] { program->run().loop.End(); });
  EXPECT_TRUE(one.ended() && two.ended());
}

TEST_F(ProgramTest, ASecondRunOverTheSameStoreIsRefused) {
  makeCookbook(first_, "Apple Pie");
  Program one(toolkit_, first_);
  one.start();
  Program two(toolkit_, first_);
  two.start();
  ASSERT_TRUE(two.run().loop.error().has_value());
  EXPECT_EQ(two.run().loop.error()->number(), 3045);
  EXPECT_FALSE(one.ended());
  one.run().loop.dispatch([&] { one.run().loop.End(); });
}

/// The list of the last import is opened with errors ignored; what the store says afterwards is not.
TEST_F(ProgramTest, AStoreThatFailsWhileTheLastImportIsListedEndsTheRun) {
  makeCookbook(first_, "Apple Pie");
  std::ofstream(first_ / "import.lst") << "Apple Pie\r\n";
  Program program(toolkit_, first_);
  program.start();
  const auto listLastImported = [&] { program.run().frmBrowse.mnuListLastImported.Click(); };
  program.run().loop.dispatch(listLastImported);
  ASSERT_FALSE(program.ended());
  EXPECT_EQ(program.run().frmBrowse.lstTitles.ListCount(), 1);
  program.run().GLOBAL.gDatabase.Close();
  program.run().loop.dispatch(listLastImported);
  ASSERT_TRUE(program.run().loop.error().has_value());
  EXPECT_EQ(program.run().loop.error()->number(), 3420);
}

}  // namespace
}  // namespace pantrigo
