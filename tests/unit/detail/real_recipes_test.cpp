#include <cstdlib>
#include <string>

#include "core/recipes.h"
#include "detail_fixture.h"
#include "newstore/make_store.h"

namespace pantrigo {
namespace {

constexpr std::size_t recipesTried = 50;
/// They stand so far apart that they come from all parts of the collection of some 4,900.
constexpr std::size_t distance = 97;

/// Fields that an update writes also where nothing was given: a number then becomes 0.
bool isNumberAlwaysWritten(std::string_view field) {
  for (const NutritionValue& nutrition : nutritionValues) {
    if (nutrition.field == field) return true;
  }
  return field == "PrepareTime" || field == "CookTime";
}

/// The row with what an update without edits may write in the place of Null.
RawRow withNothingWritten(RawRow row) {
  for (auto& [field, value] : row) {
    if (!value.isNull()) continue;
    if (isNumberAlwaysWritten(field)) value = 0;
    if (field == "Source" || field == "Comment" || field == "Method" || field == "Ingredients") value = "";
  }
  return row;
}

class RealRecipesTest : public DetailTest {
 protected:
  void SetUp() override {
    const char* samples = std::getenv("PANTRIGO_SAMPLES");
    if (samples == nullptr) GTEST_SKIP() << "PANTRIGO_SAMPLES names no folder of sample files";
    makeStore({file(), {}, std::filesystem::path(samples) / "real-recipes.txt"});
    before = rows("Recipe");
    linksBefore = {rows("RecipeHealth"), rows("RecipeOther")};
    start();
  }

  /// Opens recipe after recipe and lets a routine do something to each. Titles with a wildcard can't be saved.
  template <class Routine>
  void eachTried(Routine routine) {
    std::size_t tried = 0;
    for (std::size_t place = 0; place < before.size() && tried < recipesTried; place += distance) {
      const std::string title = before[place].at("Title").text();
      if (title.find_first_of("*?") != std::string::npos) continue;
      show(title);
      ASSERT_EQ(form().txtTitle.Text(), title);
      routine();
      ASSERT_EQ(error(), 0) << title;
      show(title);
      ++tried;
    }
    EXPECT_EQ(tried, recipesTried);
    close();
  }

  std::vector<RawRow> before;
  std::vector<std::vector<RawRow>> linksBefore;
};

TEST_F(RealRecipesTest, AnUpdateWithoutEditsChangesNothing) {
  eachTried([&] {
    press(form().mnuUpdate);
    EXPECT_FALSE(run().GLOBAL.gDetailChanged);
  });
  const std::vector<RawRow> after = rows("Recipe");
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t place = 0; place < before.size(); ++place) {
    EXPECT_EQ(withNothingWritten(after[place]), withNothingWritten(before[place])) << before[place].at("Title").text();
  }
  EXPECT_EQ(rows("RecipeHealth"), linksBefore[0]);
  EXPECT_EQ(rows("RecipeOther"), linksBefore[1]);
}

/// The lines on show are made from what was entered, so that they stay when all base amounts are written anew.
TEST_F(RealRecipesTest, IngredientsThatAreWrittenAnewShowTheSameLines) {
  const auto shown = [&] {
    std::vector<std::string> texts;
    for (const IngredientRow& row : run().GLOBAL.gIngredientRows) {
      for (int column = 3; column <= IngredientRow::columnCount; ++column) texts.push_back(row[column]);
    }
    for (int row = 0; row < form().lstIngredient.ListCount(); ++row) texts.push_back(form().lstIngredient.List(row));
    return texts;
  };
  eachTried([&] {
    const std::vector<std::string> earlier = shown();
    const std::string title = form().txtTitle.Text();
    run().GLOBAL.gIngredientsChanged = true;
    press(form().mnuUpdate);
    ASSERT_EQ(error(), 0) << title;
    show(title);
    EXPECT_EQ(shown(), earlier) << title;
  });
}

}  // namespace
}  // namespace pantrigo
