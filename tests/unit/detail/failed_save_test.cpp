#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "detail_fixture.h"

namespace pantrigo {
namespace {

namespace fs = std::filesystem;

constexpr int readOnly = 3027;
constexpr int diskFull = 3026;

/// Longer than what is free in the pages of a small store.
const std::string longMethod(1000000, 'm');

class FailedSaveTest : public DetailTest {
 protected:
  FailedSaveTest() { makeCookbook(); }

  void expectAsBefore() const {
    EXPECT_EQ(soundness(), "ok");
    ASSERT_EQ(rows("Recipe").size(), 1U);
    EXPECT_EQ(rows("Recipe").front().at("Title"), Value("Apple Pie"));
    EXPECT_EQ(rows("Recipe").front().at("Method"), Value("Bake."));
    EXPECT_EQ(rows("Recipe").front().at("Comment"), Value("Good."));
  }

  [[nodiscard]] std::string bytes() const {
    std::ifstream stream(file(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  void protect() const {
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    fs::permissions(file(), anyWrite, fs::perm_options::remove);
  }
};

TEST_F(FailedSaveTest, AnUpdateOnAFullDiskLeavesTheRecipeAsItWas) {
  start();
  show("Apple Pie");
  fillDisk();
  form().txtComments.setText("Better.");
  form().txtMethod.setText(longMethod);
  press(form().mnuUpdate);
  EXPECT_EQ(error(), diskFull);
  EXPECT_TRUE(ended());
  expectAsBefore();
  EXPECT_EQ(rows("RecipeHealth").size(), 1U);
}

TEST_F(FailedSaveTest, LinksAreWrittenApartFromTheRecipeThatFindsTheDiskFull) {
  start();
  show("Apple Pie");
  fillDisk();
  form().lstHealth.setSelected(0, false);
  form().lstHealth.setSelected(1, true);
  form().lstHealth.Click();
  form().txtMethod.setText(longMethod);
  press(form().mnuUpdate);
  EXPECT_EQ(error(), diskFull);
  expectAsBefore();
  ASSERT_EQ(rows("RecipeHealth").size(), 1U);
  EXPECT_EQ(rows("RecipeHealth").front().at("HealthId"), Value(2));
}

TEST_F(FailedSaveTest, AnAddOnAFullDiskUsesUpANumberAndAddsNothing) {
  start();
  show("Apple Pie");
  fillDisk();
  form().txtTitle.setText("Pear Pie");
  form().txtMethod.setText(longMethod);
  press(form().mnuAdd);
  EXPECT_EQ(error(), diskFull);
  expectAsBefore();
  EXPECT_EQ(rows("System").front().at("RecipeId"), Value(2));
}

TEST_F(FailedSaveTest, TheNextRunGoesOnAfterAFullDisk) {
  start();
  show("Apple Pie");
  fillDisk();
  form().txtMethod.setText(longMethod);
  press(form().mnuUpdate);
  ASSERT_EQ(error(), diskFull);
  start();
  show("Apple Pie");
  EXPECT_EQ(form().txtMethod.Text(), "Bake.");
  form().txtMethod.setText(longMethod);
  press(form().mnuUpdate);
  EXPECT_EQ(error(), 0);
  close();
  EXPECT_EQ(soundness(), "ok");
  EXPECT_EQ(rows("Recipe").front().at("Method"), Value(longMethod));
}

TEST_F(FailedSaveTest, SavesOfAReadOnlyStoreAreErrorsAndChangeNoByte) {
  protect();
  const std::string before = bytes();
  for (MenuEntry FrmDetail::*entry : {&FrmDetail::mnuUpdate, &FrmDetail::mnuDelete, &FrmDetail::mnuMeal}) {
    start();
    show("Apple Pie");
    ASSERT_EQ(error(), 0);
    form().txtComments.setText("Better.");
    press(form().*entry);
    EXPECT_EQ(error(), readOnly);
    EXPECT_TRUE(ended());
    EXPECT_EQ(bytes(), before);
  }
  start();
  show("Apple Pie");
  form().txtTitle.setText("Pear Pie");
  press(form().mnuAdd);
  EXPECT_EQ(error(), readOnly);
  EXPECT_EQ(bytes(), before);
}

TEST_F(FailedSaveTest, AStoreThatIsMadeReadOnlyWhileItIsOpenStillTakesTheUpdate) {
  start();
  show("Apple Pie");
  protect();
  form().txtMethod.setText(longMethod);
  press(form().mnuUpdate);
  EXPECT_EQ(error(), 0);
  close();
  EXPECT_EQ(rows("Recipe").front().at("Method"), Value(longMethod));
}

TEST_F(FailedSaveTest, APictureThatCannotBeRemovedStopsTheDeleteBeforeTheRows) {
  if (geteuid() == 0) GTEST_SKIP() << "a superuser may remove every file";
  fs::create_directories(folder() / "pictures");
  start();
  show("Apple Pie");
  run().GLOBAL.gStartDir = (folder() / "pictures").string();
  std::ofstream(folder() / "pictures" / "1.bmp") << "picture";
  fs::permissions(folder() / "pictures", fs::perms::owner_write, fs::perm_options::remove);
  press(form().mnuDelete);
  fs::permissions(folder() / "pictures", fs::perms::owner_all);
  EXPECT_EQ(error(), 75);
  expectAsBefore();
}

}  // namespace
}  // namespace pantrigo
