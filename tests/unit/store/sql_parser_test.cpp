#include "platform/store/sql_parser.h"

#include <gtest/gtest.h>

#include "platform/store/sql_generator.h"
#include "platform/store/sql_lexer.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

int errorOfQuery(const std::string& sql) {
  return errorOf([&sql] { static_cast<void>(generateQuery(parseSelect(sql))); });
}

int errorOfDelete(const std::string& sql) {
  return errorOf([&sql] { static_cast<void>(generateDelete(parseDelete(sql))); });
}

TEST(SqlLexerTest, CutsAConditionIntoTokens) {
  const std::vector<SqlToken> tokens = lexSql(" WHERE (Recipe!Energy <= 1046.7 AND T.D = 'O''Brien''s')");
  std::vector<std::string> texts;
  for (const SqlToken& token : tokens) texts.push_back(token.text);
  const std::vector<std::string> expected{"WHERE", "(", "Recipe", "!", "Energy",    "<=", "1046.7", "AND",
                                          "T",     ".", "D",      "=", "O'Brien's", ")",  ""};
  EXPECT_EQ(texts, expected);
  EXPECT_EQ(tokens.back().kind, SqlToken::Kind::End);
}

TEST(SqlLexerTest, ReadsNumbers) {
  struct Case {
    const char* text;
    double number;
  };
  for (const Case& c : {Case{"30", 30},
                        {"007", 7},
                        {".5", .5},
                        {"5.", 5},
                        {"1E+07", 1e7},
                        {"1e-2", .01},
                        {"2.5E1", 25},
                        {"1e-400", 0},
                        {"0e999", 0}}) {
    const std::vector<SqlToken> tokens = lexSql(c.text);
    ASSERT_EQ(tokens.size(), 2U) << c.text;
    EXPECT_EQ(tokens.front().kind, SqlToken::Kind::Number) << c.text;
    EXPECT_EQ(tokens.front().number, c.number) << c.text;
  }
}

TEST(SqlLexerTest, TakesAPointBeforeADigitAsANumberBehindAWord) {
  const std::vector<SqlToken> tokens = lexSql("WHERE .5 < Recipe.Fat AND .25");
  ASSERT_EQ(tokens.size(), 9U);
  EXPECT_EQ(tokens[1].number, .5);
  EXPECT_EQ(tokens[4].text, ".");
  EXPECT_EQ(tokens[7].kind, SqlToken::Kind::Number);
  EXPECT_EQ(tokens[7].number, .25);
}

TEST(SqlLexerTest, RefusesWhatTheLanguageDoesNotHave) {
  for (const char* sql :
       {"'open", "''' ", "a;b", "a \"b\"", "[Title]", "a % b", "1e999", "\xC3\xA9", "a\\b", "$5", "&H1F"}) {
    EXPECT_EQ(errorOf([sql] { static_cast<void>(lexSql(sql)); }), 3075) << sql;
  }
}

TEST(SqlParserTest, TakesEveryTextOfTheProgram) {
  const std::string list = " SELECT Distinct Recipe.Title, Recipe.Meal ";
  for (const std::string& sql : {
           list + " FROM Recipe ",
           list + " FROM Recipe  WHERE Recipe.Title like '*pie*'",
           list + " FROM Recipe  WHERE Recipe!Ingredients like '*flour*' AND Recipe.Source like '**'",
           list +
               " FROM Recipe  ,Nationality  ,Course  WHERE Nationality.Description = 'Italian' AND Recipe.Nationality "
               "= "
               "Nationality.NationalityId  AND Course.Description = 'O''Course' AND Recipe.Course = Course.CourseId ",
           list + " FROM Recipe  WHERE (('Vegan' in (Select Health.Description from Health,RecipeHealth Where "
                  "RecipeHealth!HealthId = Health!HealthId and RecipeHealth!RecipeId = Recipe!RecipeId)) AND ('Low "
                  "fat' in (Select "
                  "Health.Description from Health,RecipeHealth Where RecipeHealth!HealthId = Health!HealthId and "
                  "RecipeHealth!RecipeId = Recipe!RecipeId)))",
           list + " FROM Recipe  ,Other,RecipeOther  WHERE (Other.Description = 'Quick' OR  Other.Description = "
                  "'Cheap' ) AND "
                  "RecipeOther.RecipeId = Recipe.RecipeId  AND RecipeOther.OtherId = Other.OtherId ",
           list + " FROM Recipe  WHERE (Recipe.PrepareTime >= 30 AND Recipe.PrepareTime <> 0) AND (Recipe.Energy <= "
                  "1E+07 AND "
                  "Recipe.Energy <> 0) AND (Recipe.Fat >= -.5 AND Recipe.Fat <> 0) AND (Recipe.Iron >= +  2. AND "
                  "Recipe.Iron <> 0)",
           std::string("SELECT Health.Description  FROM RecipeHealth, Health  WHERE RecipeHealth.RecipeId = 12 AND   "
                       "RecipeHealth.HealthId  = Health.HealthId "),
           std::string("SELECT Other.Description  FROM RecipeOther, Other  WHERE RecipeOther.RecipeId =  12 AND   "
                       "RecipeOther.OtherId  = Other.OtherId "),
           std::string("SELECT *  FROM Recipe  WHERE Recipe.Meal = -1"),
           std::string("select * from recipe where RECIPE!meal = True"),
       }) {
    EXPECT_EQ(errorOfQuery(sql), 0) << sql;
  }
}

TEST(SqlParserTest, TakesEveryDeleteTextOfTheProgram) {
  for (const char* sql :
       {" Delete FROM RecipeHealth WHERE RecipeHealth!RecipeId = 12", "Delete FROM Recipe WHERE Recipe!RecipeId =  12",
        " Delete FROM RecipeOther WHERE RecipeOther!RecipeId = 12 AND RecipeOther!OtherId = 3"}) {
    EXPECT_EQ(errorOfDelete(sql), 0) << sql;
  }
}

TEST(SqlParserTest, RefusesEverythingElse) {
  const std::string start = "SELECT Distinct Recipe.Title FROM Recipe WHERE ";
  for (const std::string& sql : {
           std::string(),
           std::string("SELECT"),
           std::string("SELECT * FROM"),
           std::string("SELECT FROM Recipe"),
           std::string("SELECT Title FROM Recipe"),
           std::string("SELECT Recipe.Title, FROM Recipe"),
           std::string("SELECT Recipe.Title FROM Recipe,"),
           std::string("SELECT Recipe.Title FROM Recipe Recipe"),
           std::string("SELECT Recipe.Title FROM Recipe ORDER BY Recipe.Title"),
           std::string("SELECT Recipe.Title FROM Recipe, Recipe"),
           std::string("SELECT Recipe.NoField FROM Recipe"),
           std::string("SELECT Course.CourseId FROM Recipe"),
           std::string("SELECT * FROM Recipe, Course"),
           std::string("SELECT Recipe.Title FROM Recipe WHERE"),
           std::string("INSERT INTO Recipe"),
           std::string("Delete FROM Recipe"),
           start + "Recipe.Title",
           start + "Recipe.Title like",
           start + "Recipe.Title like Recipe.Source",
           start + "Recipe.Title like 5",
           start + "'a' like 'b'",
           start + "Recipe.Serves like '4'",
           start + "Recipe.Title = 'open",
           start + "Recipe.Title = 'O'Brien'",
           start + "Recipe.Serves >= 1,000",
           start + "Recipe.Serves >= 1d2",
           start + "Recipe.Serves >= 1 2",
           start + "Recipe.Serves >= - - 1",
           start + "Recipe.Serves >=",
           start + "Recipe.Serves => 1",
           start + "Recipe.Serves = 1 AND",
           start + "Recipe.Serves = 1 OR",
           start + "(Recipe.Serves = 1",
           start + "Recipe.Serves = 1)",
           start + "()",
           start + "1 = 1",
           start + "'a' = 'a'",
           start + "NOT Recipe.Serves = 1",
           start + "Recipe.Serves IS 1",
           start + "Course.CourseId = 1",
           start + "'a' in (Select * from Health)",
           start + "'a' in (Select Health.Description, Health.HealthId from Health)",
           start + "'a' in ('a', 'b')",
           start + "'a' in Select Health.Description from Health",
           start + "Recipe.Title in (Select Health.Description from Health)",
           start + "'a' in (Select Health.Description from Health",
           start + std::string(1000, '(') + "Recipe.Serves = 1" + std::string(1000, ')'),
       }) {
    EXPECT_EQ(errorOfQuery(sql), 3075) << sql;
  }
}

TEST(SqlParserTest, RefusesOtherDeletes) {
  for (const char* sql :
       {"Delete Recipe", "Delete * FROM Recipe", "Delete FROM Recipe, Course", "Delete FROM", "SELECT * FROM Recipe",
        "Delete FROM Recipe WHERE RecipeId = 1", "Delete FROM Recipe WHERE Course!CourseId = 1", ""}) {
    EXPECT_EQ(errorOfDelete(sql), 3075) << sql;
  }
}

TEST(SqlParserTest, ReportsUnknownTables) {
  EXPECT_EQ(errorOfQuery("SELECT * FROM Drinks"), 3078);
  EXPECT_EQ(errorOfQuery("SELECT Recipe.Title FROM Recipe, Drinks"), 3078);
  EXPECT_EQ(errorOfDelete("Delete FROM Drinks"), 3078);
}

TEST(SqlParserTest, ReportsInvalidPatterns) {
  EXPECT_EQ(errorOfQuery("SELECT * FROM Recipe WHERE Recipe.Title like '*[*'"), 93);
}

TEST(SqlGeneratorTest, LiteralsNeverStandInTheText) {
  const EngineQuery query = generateQuery(
      parseSelect("SELECT * FROM Recipe WHERE Recipe.Title = 'x''; DROP TABLE Recipe' AND Recipe.Serves = 4711"));
  EXPECT_EQ(query.text.sql.find("DROP"), std::string::npos);
  EXPECT_EQ(query.text.sql.find("4711"), std::string::npos);
  ASSERT_EQ(query.text.parameters.size(), 2U);
  EXPECT_EQ(std::get<std::string>(query.text.parameters[0]), "x'; DROP TABLE Recipe");
  EXPECT_EQ(std::get<double>(query.text.parameters[1]), 4711);
}

TEST(SqlGeneratorTest, AndBindsBeforeOr) {
  const EngineQuery query =
      generateQuery(parseSelect("SELECT * FROM Recipe WHERE Recipe.Serves = 1 OR Recipe.Fat = 2 AND Recipe.Iron = 3"));
  EXPECT_NE(query.text.sql.find("((Recipe.Serves = ?1) OR (((Recipe.Fat = ?2) AND (Recipe.Iron = ?3))))"),
            std::string::npos)
      << query.text.sql;
}

}  // namespace
}  // namespace pantrigo
