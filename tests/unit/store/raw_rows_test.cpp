#include "support/raw_rows.h"

#include <gtest/gtest.h>

#include "platform/store/schema.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

class RawRowsTest : public StoreTest {
 protected:
  [[nodiscard]] Value counter(std::string_view name) const {
    return rawRows(database, "System").front().find(name)->second;
  }
};

TEST_F(RawRowsTest, RowsComeWithAllFieldsInPhysicalOrder) {
  addRawRow(database, "course", {{"courseid", 5}, {"Description", "Soup"}});
  addRawRow(database, "Course", {{"CourseId", 2}});
  const std::vector<RawRow> expected{{{"CourseId", 5}, {"Description", "Soup"}},
                                     {{"CourseId", 2}, {"Description", Value()}}};
  EXPECT_EQ(rawRows(database, "COURSE"), expected);
}

TEST_F(RawRowsTest, MissingFieldsHoldWhatANewRowHolds) {
  addRawRow(database, "Recipe", {{"RecipeId", 1}});
  const RawRow row = rawRows(database, "Recipe").front();
  EXPECT_EQ(row.size(), findTable("Recipe")->fields.size());
  for (const auto& [name, value] : row) {
    const bool isYesNo = name == "Meal" || name == "Makes" || name == "ConvertCupSpoon";
    EXPECT_EQ(value, name == "RecipeId" ? Value(1) : isYesNo ? Value(false) : Value()) << name;
  }
}

TEST_F(RawRowsTest, AddingRaisesTheCounter) {
  addRawRow(database, "Recipe", {{"RecipeId", 7}});
  addRawRow(database, "Recipe", {{"RecipeId", 3}});
  addRawRow(database, "Recipe", {{"Title", "no id"}});
  EXPECT_EQ(counter("RecipeId"), Value(7));
  addRawRow(database, "Health", {{"HealthId", 4}});
  EXPECT_EQ(counter("HealthId"), Value(4));
  addRawRow(database, "RecipeHealth", {{"RecipeId", 90}, {"HealthId", 91}});
  EXPECT_EQ(counter("RecipeId"), Value(7));
  EXPECT_EQ(counter("HealthId"), Value(4));
}

TEST_F(RawRowsTest, ChangesAndRemovalsGoByTheStoresEquality) {
  addRecipe(1, "Apple Pie");
  addRecipe(2, "Stew");
  addRecipe(3, Value());
  EXPECT_EQ(changeRawRows(database, "Recipe", "Title", "apple pie", {{"Source", "Aunt"}, {"Meal", true}}), 1);
  EXPECT_EQ(changeRawRows(database, "Recipe", "Title", "none", {{"Source", "Uncle"}}), 0);
  EXPECT_EQ(rawRows(database, "Recipe")[0].at("Source"), Value("Aunt"));
  EXPECT_EQ(rawRows(database, "Recipe")[1].at("Source"), Value());
  EXPECT_EQ(removeRawRows(database, "Recipe", "Title", Value()), 1);
  EXPECT_EQ(removeRawRows(database, "Recipe", "Meal", false), 1);
  EXPECT_EQ(rawRows(database, "Recipe").size(), 1U);
}

TEST_F(RawRowsTest, OpenCursorsSeeTheChanges) {
  addRecipe(1, "One");
  Recordset cursor = database.OpenRecordset("Recipe");
  EXPECT_EQ(cursor.Field("Title"), Value("One"));
  changeRawRows(database, "Recipe", "RecipeId", 1, {{"Title", "Two"}});
  EXPECT_EQ(cursor.Field("Title"), Value("Two"));
  addRecipe(2, "Three");
  cursor.MoveNext();
  EXPECT_EQ(cursor.Field("Title"), Value("Three"));
  Recordset system = database.OpenRecordset("System");
  EXPECT_EQ(system.Field("RecipeId"), Value(2));
  addRecipe(9, "Nine");
  EXPECT_EQ(system.Field("RecipeId"), Value(9));
}

TEST_F(RawRowsTest, Errors) {
  EXPECT_EQ(errorOf([&] { static_cast<void>(rawRows(database, "Drinks")); }), 3078);
  EXPECT_EQ(errorOf([&] { addRawRow(database, "Recipe", {{"Colour", 1}}); }), 3265);
  EXPECT_EQ(errorOf([&] { changeRawRows(database, "Recipe", "Colour", 1, {}); }), 3265);
  EXPECT_EQ(errorOf([&] { removeRawRows(database, "Recipe", "Colour", 1); }), 3265);
  EXPECT_EQ(errorOf([&] { addRawRow(database, "Recipe", {{"Serves", "four"}}); }), 3421);
  addRecipe(1, "One");
  EXPECT_EQ(errorOf([&] { addRecipe(1, "Again"); }), 3022);
  database.Close();
  EXPECT_EQ(errorOf([&] { static_cast<void>(rawRows(database, "Recipe")); }), 3420);
}

}  // namespace
}  // namespace pantrigo
