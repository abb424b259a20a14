#include <gtest/gtest.h>

#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* listText = " SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe ";

class QueryTest : public StoreTest {
 protected:
  QueryTest() {
    addRawRow(database, "Nationality", {{"NationalityId", 1}, {"Description", "Italian"}});
    addRawRow(database, "Nationality", {{"NationalityId", 2}, {"Description", "O'Brien's"}});
    addRawRow(database, "Course", {{"CourseId", 1}, {"Description", "Main"}});
    for (const auto& [id, name] :
         std::vector<std::pair<int, const char*>>{{1, "Vegan"}, {2, "Low fat"}, {3, "Nut free"}}) {
      addRawRow(database, "Health", {{"HealthId", id}, {"Description", name}});
    }
    addRawRow(database, "Other", {{"OtherId", 1}, {"Description", "Quick"}});
    addRawRow(database, "Other", {{"OtherId", 2}, {"Description", "Cheap"}});
    addRows();
  }

  void addRows() const {
    addRawRow(database, "Recipe",
              {{"RecipeId", 1},
               {"Title", "Vegetable pie"},
               {"PrepareTime", 30},
               {"Energy", 1046.7},
               {"Nationality", 1},
               {"Course", 1},
               {"Ingredients", "1~cup~flour~~1~cup~"}});
    addRawRow(database, "Recipe",
              {{"RecipeId", 2},
               {"Title", "apple Pie"},
               {"Meal", true},
               {"PrepareTime", 0},
               {"Nationality", 2},
               {"Source", "50% rye_bread"}});
    addRawRow(database, "Recipe",
              {{"RecipeId", 3}, {"Title", "Stew"}, {"PrepareTime", 90}, {"Energy", 20000000}, {"Course", 1}});
    addRawRow(database, "Recipe", {{"RecipeId", 4}, {"Title", Value()}, {"Comment", "no title"}});
    for (const auto& [recipe, health] : std::vector<std::pair<int, int>>{{1, 2}, {1, 1}, {2, 1}, {3, 2}}) {
      addRawRow(database, "RecipeHealth", {{"RecipeId", recipe}, {"HealthId", health}});
    }
    for (const auto& [recipe, other] : std::vector<std::pair<int, int>>{{3, 1}, {3, 2}, {1, 2}}) {
      addRawRow(database, "RecipeOther", {{"RecipeId", recipe}, {"OtherId", other}});
    }
  }

  Texts listed(const std::string& conditions) { return queried(listText + conditions, "Title"); }
};

TEST_F(QueryTest, ListComesInTitleOrder) {
  EXPECT_EQ(listed(""), (Texts{"Null", "apple Pie", "Stew", "Vegetable pie"}));
  EXPECT_EQ(queried(listText, "Meal"), (Texts{"False", "True", "False", "False"}));
}

TEST_F(QueryTest, DistinctGoesByTheCollation) {
  addRecipe(10, "STEW");
  addRecipe(11, "stew ");
  addRecipe(12, "Stew", true);
  EXPECT_EQ(listed(" WHERE Recipe.Title like 'stew*'").size(), 2U);
}

TEST_F(QueryTest, TextConditions) {
  EXPECT_EQ(listed(" WHERE Recipe.Title like '*PIE*'"), (Texts{"apple Pie", "Vegetable pie"}));
  EXPECT_EQ(listed(" WHERE Recipe!Ingredients like '*flour*'"), (Texts{"Vegetable pie"}));
  EXPECT_EQ(listed(" WHERE Recipe.Title like '*a*' AND Recipe.Source like '*50%*'"), (Texts{"apple Pie"}));
  EXPECT_EQ(listed(" WHERE Recipe.Source like '*5_%*'"), Texts{});
  EXPECT_EQ(listed(" WHERE Recipe.Source like '*##*'"), (Texts{"apple Pie"}));
  EXPECT_EQ(listed(" WHERE Recipe.Title like '**'"), (Texts{"apple Pie", "Stew", "Vegetable pie"}));
  EXPECT_EQ(listed(" WHERE Recipe.Comment like '*title*'"), (Texts{"Null"}));
  EXPECT_EQ(listed(" WHERE Recipe.Title = 'STEW '"), (Texts{"Stew"}));
}

TEST_F(QueryTest, CategoryConditions) {
  const std::string nationality = " AND Recipe.Nationality = Nationality.NationalityId ";
  EXPECT_EQ(listed(" ,Nationality  WHERE Nationality.Description = 'italian'" + nationality), (Texts{"Vegetable pie"}));
  EXPECT_EQ(listed(" ,Nationality  WHERE Nationality.Description = 'O''Brien''s'" + nationality), (Texts{"apple Pie"}));
  EXPECT_EQ(listed(" ,Nationality  WHERE Nationality.Description = 'Greek'" + nationality), Texts{});
  EXPECT_EQ(listed(" ,Nationality  ,Course  WHERE Nationality.Description = 'Italian'" + nationality +
                   " AND Course.Description = 'Main' AND Recipe.Course = Course.CourseId "),
            (Texts{"Vegetable pie"}));
}

TEST_F(QueryTest, HealthMeansAllOfThem) {
  const auto has = [](const std::string& description) {
    return "('" + description +
           "' in (Select Health.Description from Health,RecipeHealth Where RecipeHealth!HealthId = Health!HealthId and "
           "RecipeHealth!RecipeId = Recipe!RecipeId))";
  };
  EXPECT_EQ(listed(" WHERE (" + has("vegan") + ")"), (Texts{"apple Pie", "Vegetable pie"}));
  EXPECT_EQ(listed(" WHERE (" + has("Vegan") + " AND " + has("Low fat") + ")"), (Texts{"Vegetable pie"}));
  EXPECT_EQ(listed(" WHERE (" + has("Nut free") + ")"), Texts{});
}

TEST_F(QueryTest, OtherMeansAnyOfThemOnce) {
  const std::string join = " ) AND RecipeOther.RecipeId = Recipe.RecipeId  AND RecipeOther.OtherId = Other.OtherId ";
  const std::string from = " ,Other,RecipeOther  WHERE (Other.Description = '";
  EXPECT_EQ(listed(from + "Quick' OR  Other.Description = 'Cheap'" + join), (Texts{"Stew", "Vegetable pie"}));
  EXPECT_EQ(listed(from + "Quick'" + join), (Texts{"Stew"}));
}

TEST_F(QueryTest, NumberConditions) {
  struct Case {
    const char* condition;
    Texts titles;
  };
  for (const Case& c :
       {Case{" WHERE (Recipe.PrepareTime >= 30 AND Recipe.PrepareTime <> 0)", {"Stew", "Vegetable pie"}},
        {" WHERE (Recipe.PrepareTime <= 30 AND Recipe.PrepareTime <> 0)", {"Vegetable pie"}},
        {" WHERE (Recipe.PrepareTime <= +3.E1 AND Recipe.PrepareTime <> 0)", {"Vegetable pie"}},
        {" WHERE (Recipe.PrepareTime > -1 AND Recipe.PrepareTime <> 0)", {"Stew", "Vegetable pie"}},
        {" WHERE (Recipe.Energy <= 1046.7 AND Recipe.Energy <> 0)", {"Vegetable pie"}},
        {" WHERE (Recipe.Energy >= 1E+07 AND Recipe.Energy <> 0)", {"Stew"}},
        {" WHERE (Recipe.Energy < 1046.7 AND Recipe.Energy <> 0)", {}}}) {
    EXPECT_EQ(listed(c.condition), c.titles) << c.condition;
  }
}

TEST_F(QueryTest, MealIsFoundByMinusOneAndTrue) {
  EXPECT_EQ(queried("SELECT *  FROM Recipe  WHERE Recipe.Meal = -1", "RecipeId"), (Texts{"2"}));
  EXPECT_EQ(queried("SELECT *  FROM Recipe  WHERE Recipe.Meal = True", "RecipeId"), (Texts{"2"}));
  EXPECT_EQ(queried("SELECT *  FROM Recipe  WHERE Recipe.Meal = False", "RecipeId"), (Texts{"1", "3", "4"}));
}

TEST_F(QueryTest, PlainResultsComeInPhysicalOrder) {
  EXPECT_EQ(queried("SELECT * FROM Recipe", "RecipeId"), (Texts{"1", "2", "3", "4"}));
  EXPECT_EQ(queried("SELECT Health.Description  FROM RecipeHealth, Health  WHERE RecipeHealth.RecipeId = 1 AND   "
                    "RecipeHealth.HealthId  = Health.HealthId ",
                    "Description"),
            (Texts{"Low fat", "Vegan"}));
  EXPECT_EQ(queried("SELECT Other.Description  FROM RecipeOther, Other  WHERE RecipeOther.RecipeId = 3 AND   "
                    "RecipeOther.OtherId  = Other.OtherId ",
                    "Description"),
            (Texts{"Quick", "Cheap"}));
}

TEST_F(QueryTest, CursorOverAResult) {
  Recordset result = database.OpenRecordset(std::string(listText) + " WHERE Recipe.Title like '*pie*'");
  EXPECT_EQ(result.RecordCount(), 1);
  EXPECT_FALSE(result.NoMatch());
  EXPECT_EQ(result.Field("title"), Value("apple Pie"));
  EXPECT_EQ(result.Field("MEAL"), Value(true));
  EXPECT_EQ(errorOf([&] { static_cast<void>(result.Field("RecipeId")); }), 3265);
  result.MoveNext();
  EXPECT_EQ(result.RecordCount(), 2);
  result.MoveNext();
  EXPECT_TRUE(result.Eof());
  EXPECT_EQ(result.RecordCount(), 2);
  EXPECT_EQ(errorOf([&] { result.MoveNext(); }), 3021);
  EXPECT_EQ(errorOf([&] { static_cast<void>(result.Field("Title")); }), 3021);
  result.MoveFirst();
  EXPECT_EQ(result.Field("Title"), Value("apple Pie"));
}

TEST_F(QueryTest, EmptyResult) {
  for (const char* sql : {"SELECT * FROM Recipe WHERE Recipe.Serves = 99",
                          " SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe  WHERE Recipe.Title = 'none'"}) {
    Recordset result = database.OpenRecordset(sql);
    EXPECT_TRUE(result.Eof());
    EXPECT_EQ(result.RecordCount(), 0);
    EXPECT_EQ(errorOf([&] { static_cast<void>(result.Field("Title")); }), 3021);
    EXPECT_EQ(errorOf([&] { result.MoveFirst(); }), 0);
  }
}

TEST_F(QueryTest, ResultsCannotBeWrittenOrSought) {
  for (const char* sql : {"SELECT * FROM Recipe", listText}) {
    Recordset result = database.OpenRecordset(sql);
    EXPECT_EQ(errorOf([&] { result.AddNew(); }), 3027);
    EXPECT_EQ(errorOf([&] { result.Edit(); }), 3027);
    EXPECT_EQ(errorOf([&] { result.Delete(); }), 3027);
    EXPECT_EQ(errorOf([&] { result.Set("Title", "x"); }), 3020);
    EXPECT_EQ(errorOf([&] { result.Update(); }), 3020);
    EXPECT_EQ(errorOf([&] { result.Index("RecipeIdxTitle"); }), 3015);
    EXPECT_EQ(errorOf([&] { result.Seek("=", "x"); }), 3019);
  }
}

TEST_F(QueryTest, RowsAreSettledAtTheOpeningAndReadAfresh) {
  Recordset rows = database.OpenRecordset("SELECT *  FROM Recipe  WHERE Recipe.Course = 1");
  Recordset list = database.OpenRecordset(std::string(listText) + " WHERE Recipe.Title like '*e*'");
  EXPECT_EQ(rows.Field("Title"), Value("Vegetable pie"));
  changeRawRows(database, "Recipe", "RecipeId", 1, {{"Title", "Quiche"}, {"Course", 2}});
  removeRawRows(database, "Recipe", "RecipeId", 3);
  EXPECT_EQ(rows.Field("Title"), Value("Quiche"));
  rows.MoveNext();
  EXPECT_EQ(errorOf([&] { static_cast<void>(rows.Field("Title")); }), 3167);
  EXPECT_EQ(rest(list, "Title"), (Texts{"apple Pie", "Stew", "Vegetable pie"}));
}

TEST_F(QueryTest, DeleteTexts) {
  database.Execute(" Delete FROM RecipeHealth WHERE RecipeHealth!RecipeId = 1 AND RecipeHealth!HealthId = 2");
  EXPECT_EQ(rawRows(database, "RecipeHealth").size(), 3U);
  database.Execute(" Delete FROM RecipeHealth WHERE RecipeHealth!RecipeId = 1");
  EXPECT_EQ(rawRows(database, "RecipeHealth").size(), 2U);
  database.Execute("Delete FROM Recipe WHERE Recipe!RecipeId =  2");
  EXPECT_EQ(queried("SELECT * FROM Recipe", "RecipeId"), (Texts{"1", "3", "4"}));
  database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId = 99");
  EXPECT_EQ(rawRows(database, "Recipe").size(), 3U);
  EXPECT_EQ(errorOf([&] { database.Execute("SELECT * FROM Recipe"); }), 3075);
}

TEST_F(QueryTest, RefusedTexts) {
  struct Case {
    const char* sql;
    int error;
  };
  for (const Case& c :
       {Case{"Drinks", 3078},
        {"SELECT * FROM Drinks", 3078},
        {"", 3075},
        {"Recipe Course", 3075},
        {"SELECT", 3078},
        {" SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe  WHERE (Recipe.Fat >= 1,000 AND Recipe.Fat <> 0)",
         3075},
        {" SELECT Distinct Recipe.Title, Recipe.Meal  FROM Recipe  WHERE Recipe.Title like '*[*'", 93}}) {
    EXPECT_EQ(errorOf([&] { static_cast<void>(database.OpenRecordset(c.sql)); }), c.error) << c.sql;
  }
}

TEST_F(QueryTest, ManyConditionsAtOnce) {
  std::string other = " ,Other,RecipeOther  WHERE (Other.Description = 'Quick'";
  for (int number = 0; number < 5000; ++number)
    other += " OR  Other.Description = 'None " + std::to_string(number) + "'";
  other += " ) AND RecipeOther.RecipeId = Recipe.RecipeId  AND RecipeOther.OtherId = Other.OtherId ";
  EXPECT_EQ(listed(other), (Texts{"Stew"}));
}

}  // namespace
}  // namespace pantrigo
