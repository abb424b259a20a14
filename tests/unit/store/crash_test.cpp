#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <thread>

#include "platform/store/store_state.h"
#include "unit/store/child_process.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

constexpr int crashes = 100;
constexpr unsigned seed = 20030419;

class CrashTest : public FolderTest, public testing::WithParamInterface<Database::Durability> {};

/// Adds recipes with ids from `first` on, and changes each once, until the process is killed. Reports each id that is
/// stored.
void writeUntilKilled(const std::filesystem::path& file, Database::Durability durability, int first, ReportPipe& pipe) {
  Database database = Database::OpenDatabase(file);
  database.setDurability(durability);
  Recordset recipes = database.OpenRecordset("Recipe");
  recipes.Index("RecipeIdxRecipeId");
  for (int id = first;; ++id) {
    recipes.AddNew();
    recipes.Set("RecipeId", id);
    recipes.Set("Title", "Recipe " + std::to_string(id));
    recipes.Set("Method", std::string(static_cast<std::size_t>(id * 37 % 9000), 'm'));
    recipes.Update();
    recipes.Seek("=", id);
    recipes.Edit();
    recipes.Set("Source", "Changed " + std::to_string(id));
    recipes.Update();
    pipe.report(id);
  }
}

/// The rows that the child has stored whole, of those with the given ids.
std::string wholeRowsText(int first, int last) {
  return "SELECT count(*) FROM Recipe WHERE RecipeId BETWEEN " + std::to_string(first) + " AND " +
         std::to_string(last) +
         " AND Title = 'Recipe ' || RecipeId AND Source = 'Changed ' || RecipeId"
         " AND length(Method) = RecipeId * 37 % 9000";
}

TEST_P(CrashTest, EveryUpdateThatReturnedIsFoundAfterAKill) {
  Database::createStore(file());
  std::mt19937 random(seed);
  int last = 0;
  for (int crash = 0; crash < crashes; ++crash) {
    const int first = last + 1;
    ChildProcess child([&](ReportPipe& pipe) { writeUntilKilled(file(), GetParam(), first, pipe); });
    ASSERT_TRUE(child.waitForReport());
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 15000));
    child.kill();
    last = child.lastReport();
    ASSERT_GE(last, first);
    Database database = Database::OpenDatabase(file());
    Connection& connection = StoreAccess::state(database).connection();
    ASSERT_EQ(connection.single("PRAGMA integrity_check"), "ok") << "crash " << crash;
    ASSERT_EQ(connection.single(wholeRowsText(first, last).c_str()), std::to_string(last - first + 1))
        << "crash " << crash;
    database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId <= " + std::to_string(last));
    // The child may have stored one more than it could tell.
    removeRawRows(database, "Recipe", "RecipeId", last + 1);
    ASSERT_EQ(connection.single("SELECT count(*) FROM Recipe"), "0") << "crash " << crash;
    database.Close();
  }
  EXPECT_EQ(fileNames(), std::vector<std::string>{"PANTRIGO.MDB"});
}

INSTANTIATE_TEST_SUITE_P(Durabilities, CrashTest,
                         testing::Values(Database::Durability::EachUpdate, Database::Durability::AtCheckpoint));

}  // namespace
}  // namespace pantrigo
