#include "platform/store/durability.h"

#include <filesystem>
#include <stdexcept>

#include "platform/store/store_state.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

class DurabilityTest : public StoreTest {
 protected:
  /// Whether every update is made durable by itself.
  [[nodiscard]] bool isEachUpdateDurable() const {
    return StoreAccess::state(database).connection().single("PRAGMA synchronous") == "2";
  }

  [[nodiscard]] bool isLogEmpty() const { return std::filesystem::file_size(file().string() + "-wal") == 0; }
};

TEST_F(DurabilityTest, OfNestedScopesTheOutermostCounts) {
  {
    const CheckpointAtEnd outer(database);
    for (int turn = 0; turn < 2; ++turn) {
      const CheckpointAtEnd inner(database);
      addRecipe(1 + turn, "Soup");
      EXPECT_FALSE(isEachUpdateDurable());
    }
    EXPECT_FALSE(isEachUpdateDurable());
    EXPECT_FALSE(isLogEmpty());
  }
  EXPECT_TRUE(isEachUpdateDurable());
  EXPECT_TRUE(isLogEmpty());
}

TEST_F(DurabilityTest, InnerScopeThatEndsEarlyOrByAnErrorLeavesTheOuterOne) {
  CheckpointAtEnd outer(database);
  CheckpointAtEnd inner(database);
  inner.finish();
  inner.finish();
  EXPECT_FALSE(isEachUpdateDurable());
  EXPECT_THROW(
      {
        const CheckpointAtEnd broken(database);
        throw std::length_error("out of the scope");
      },
      std::length_error);
  EXPECT_FALSE(isEachUpdateDurable());
  outer.finish();
  EXPECT_TRUE(isEachUpdateDurable());
}

TEST_F(DurabilityTest, ScopesGoOnAfterAnEndThatFailed) {
  {
    CheckpointAtEnd scope(database);
    addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Method", std::string(200000, 'm')}});
    const FileSizeLimit limit(std::filesystem::file_size(file()));
    EXPECT_EQ(errorOf([&] { scope.finish(); }), 75);
    EXPECT_TRUE(isEachUpdateDurable());
  }
  {
    const CheckpointAtEnd scope(database);
    EXPECT_FALSE(isEachUpdateDurable());
  }
  EXPECT_TRUE(isEachUpdateDurable());
  EXPECT_TRUE(isLogEmpty());
}

TEST_F(DurabilityTest, ScopeMayOutliveItsDatabase) {
  CheckpointAtEnd scope(database);
  reopen();
  EXPECT_EQ(errorOf([&] { scope.finish(); }), 3420);
  EXPECT_TRUE(isEachUpdateDurable());
}

}  // namespace
}  // namespace pantrigo
