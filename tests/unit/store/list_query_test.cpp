#include <gtest/gtest.h>

#include <algorithm>

#include "platform/text/collation.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

using Texts = std::vector<std::string>;

const std::string listText = std::string(" SELECT Distinct Recipe.Title, Recipe.Meal ") + " FROM Recipe ";
const std::string otherEnd =
    std::string(" ) AND RecipeOther.RecipeId = Recipe.RecipeId ") + " AND RecipeOther.OtherId = Other.OtherId ";

/// A text as it stands between the apostrophes of an SQL text.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char character : text) result += character == '\'' ? "''" : std::string(1, character);
  return result;
}

std::string healthRow(const std::string& description) {
  return escaped(description) +
         "' in (Select Health.Description from Health,RecipeHealth Where RecipeHealth!HealthId = Health!HealthId and "
         "RecipeHealth!RecipeId = Recipe!RecipeId))";
}

/// Recipes "R01" to "R60", in no order; R<n> has what the tests' conditions of number n ask for.
class ListQueryTest : public StoreTest {
 protected:
  static constexpr int recipes = 60;

  ListQueryTest() {
    for (const char* table : {"Nationality", "Course", "Cooking", "Ease", "Health", "Other"}) {
      const std::string idField = std::string(table) + "Id";
      for (const auto& [id, description] :
           std::vector<std::pair<int, std::string>>{{1, "One"}, {2, "O'Brien's"}, {3, "Three"}}) {
        addRawRow(database, table, {{idField, id}, {"Description", description}});
      }
    }
    for (int step = 0; step < recipes; ++step) {
      const int number = 1 + step * 37 % recipes;
      addRawRow(database, "Recipe", {{"RecipeId", number}, {"Title", title(number)}, {"Meal", number % 2 == 0}});
    }
  }

  static std::string title(int number) { return std::string("R") + (number < 10 ? "0" : "") + std::to_string(number); }

  void change(int number, const RawRow& changes) const {
    ASSERT_EQ(changeRawRows(database, "Recipe", "RecipeId", number, changes), 1);
  }

  void link(const std::string& table, int number, int id) const {
    addRawRow(database, "Recipe" + table, {{"RecipeId", number}, {table + "Id", id}});
  }

  Texts listed(const std::string& rest) { return queried(listText + rest, "Title"); }
};

/// A condition on a field, as it begins when it is the first and when it is not.
struct Piece {
  const char* field;
  const char* whereForm;
  const char* andForm;
};

constexpr Piece textPieces[] = {
    {"Ingredients", " WHERE Recipe!Ingredients like '*", " AND Recipe!Ingredients like '*"},
    {"Source", " WHERE Recipe.Source like '*", " AND Recipe.Source like '*"},
    {"Comment", " WHERE Recipe.Comment like '*", " AND Recipe.Comment like '*"},
    {"Method", " WHERE Recipe.Method like '*", " AND Recipe.Method like '*"},
};

TEST_F(ListQueryTest, TextPieces) {
  for (const Piece& piece : textPieces) {
    change(5, {{piece.field, "Grandma's rye BREAD"}});
    change(31, {{piece.field, "bread"}});
    change(32, {{piece.field, "bred"}});
    change(33, {{piece.field, ""}});
    EXPECT_EQ(listed(std::string(piece.whereForm) + "bread*'"), (Texts{"R05", "R31"})) << piece.field;
    EXPECT_EQ(listed(" WHERE Recipe.Title like '*R3*'" + std::string(piece.andForm) + "bread*'"), Texts{"R31"});
    EXPECT_EQ(listed(std::string(piece.whereForm) + escaped("'s RYE") + "*'"), Texts{"R05"});
    EXPECT_EQ(listed(std::string(piece.whereForm) + "*'"), (Texts{"R05", "R31", "R32", "R33"}));
  }
}

TEST_F(ListQueryTest, TitlePiece) {
  EXPECT_EQ(listed(" WHERE Recipe.Title like '*r1*'"),
            (Texts{"R10", "R11", "R12", "R13", "R14", "R15", "R16", "R17", "R18", "R19"}));
  EXPECT_EQ(listed(" WHERE Recipe.Title like '*07*'"), Texts{"R07"});
  EXPECT_EQ(listed(" WHERE Recipe.Title like '*none*'"), Texts{});
  EXPECT_EQ(listed("").size(), static_cast<std::size_t>(recipes));
}

TEST_F(ListQueryTest, CategoryPieces) {
  for (const std::string kind : {"Nationality", "Course", "Cooking", "Ease"}) {
    change(8, {{kind, 1}});
    change(9, {{kind, 2}});
    change(10, {{kind, 2}});
    const auto piece = [&](const std::string& word, const std::string& text) {
      return word + kind + ".Description = '" + escaped(text) + "'" + " AND Recipe." + kind + " = " + kind + "." +
             kind + "Id ";
    };
    const std::string from = " ," + kind + " ";
    EXPECT_EQ(listed(from + piece(" WHERE ", "one")), Texts{"R08"}) << kind;
    EXPECT_EQ(listed(from + piece(" WHERE ", "O'BRIEN'S")), (Texts{"R09", "R10"})) << kind;
    EXPECT_EQ(listed(from + " WHERE Recipe.Title like '*1*'" + piece(" AND ", "O'Brien's")), Texts{"R10"}) << kind;
    EXPECT_EQ(listed(from + piece(" WHERE ", "Three")), Texts{}) << kind;
    EXPECT_EQ(listed(from + piece(" WHERE ", "none")), Texts{}) << kind;
  }
  const std::string from = std::string(" ,Nationality ") + " ,Course " + " ,Cooking " + " ,Ease ";
  std::string where;
  for (const std::string kind : {"Nationality", "Course", "Cooking", "Ease"}) {
    where += (where.empty() ? " WHERE " : " AND ") + kind + ".Description = 'O''Brien''s'" + " AND Recipe." + kind +
             " = " + kind + "." + kind + "Id ";
  }
  EXPECT_EQ(listed(from + where), (Texts{"R09", "R10"}));
}

TEST_F(ListQueryTest, HealthMeansAll) {
  for (const auto& [recipe, id] :
       std::vector<std::pair<int, int>>{{1, 1}, {1, 2}, {2, 2}, {2, 3}, {3, 1}, {40, 1}, {40, 2}, {40, 3}, {41, 2}}) {
    link("Health", recipe, id);
  }
  EXPECT_EQ(listed(" WHERE (('" + healthRow("One") + " AND ('" + healthRow("O'Brien's") + ")"), (Texts{"R01", "R40"}));
  EXPECT_EQ(listed(" WHERE (('" + healthRow("O'Brien's") + " AND ('" + healthRow("one") + ")"), (Texts{"R01", "R40"}));
  EXPECT_EQ(listed(" WHERE (('" + healthRow("Three") + " AND ('" + healthRow("One") + " AND ('" +
                   healthRow("O'Brien's") + ")"),
            Texts{"R40"});
  EXPECT_EQ(listed(" WHERE Recipe.Title like '*4*' AND (('" + healthRow("O'Brien's") + ")"), (Texts{"R40", "R41"}));
  EXPECT_EQ(listed(" WHERE (('" + healthRow("One") + " AND ('" + healthRow("none") + ")"), Texts{});
  change(40, {{"Course", 3}});
  EXPECT_EQ(listed(" ,Course  WHERE Course.Description = 'Three' AND Recipe.Course = Course.CourseId  AND (('" +
                   healthRow("One") + " AND ('" + healthRow("Three") + ")"),
            Texts{"R40"});
}

TEST_F(ListQueryTest, OtherMeansAnyOnce) {
  for (const auto& [recipe, id] : std::vector<std::pair<int, int>>{{1, 1}, {1, 2}, {2, 2}, {3, 3}, {50, 1}, {50, 3}}) {
    link("Other", recipe, id);
  }
  const std::string from = " ,Other,RecipeOther ";
  EXPECT_EQ(listed(from + " WHERE (Other.Description = 'One' OR  Other.Description = 'O''Brien''s'" + otherEnd),
            (Texts{"R01", "R02", "R50"}));
  EXPECT_EQ(listed(from +
                   " WHERE (Other.Description = 'One' OR  Other.Description = 'O''Brien''s' OR  "
                   "Other.Description = 'three'" +
                   otherEnd),
            (Texts{"R01", "R02", "R03", "R50"}));
  EXPECT_EQ(listed(from +
                   " WHERE Recipe.Title like '*5*' AND (Other.Description = 'One' OR  Other.Description = "
                   "'Three'" +
                   otherEnd),
            Texts{"R50"});
  link("Health", 3, 1);
  link("Health", 50, 1);
  EXPECT_EQ(listed(from + " WHERE (('" + healthRow("One") + ") AND (Other.Description = 'Three'" + otherEnd),
            (Texts{"R03", "R50"}));
}

TEST_F(ListQueryTest, NumberPieces) {
  for (const std::string field : {"PrepareTime", "CookTime", "Energy", "Protein", "Carbohydrates", "Fibre", "Fat",
                                  "Cholesterol", "Sodium", "Calcium", "Iron"}) {
    change(1, {{field, 0}});
    change(2, {{field, 0.5}});
    change(3, {{field, 30}});
    change(4, {{field, 1046.7}});
    change(5, {{field, 20000000}});
    const auto piece = [&](const std::string& word, const std::string& limit) {
      return word + "(Recipe." + field + " " + limit + " AND Recipe." + field + " <> 0)";
    };
    EXPECT_EQ(listed(piece(" WHERE ", ">= 30")), (Texts{"R03", "R04", "R05"})) << field;
    EXPECT_EQ(listed(piece(" WHERE ", "<= 30")), (Texts{"R02", "R03"})) << field;
    EXPECT_EQ(listed(piece(" WHERE ", "<= 1046.7")), (Texts{"R02", "R03", "R04"})) << field;
    EXPECT_EQ(listed(piece(" WHERE ", ">= 1E+07")), Texts{"R05"}) << field;
    EXPECT_EQ(listed(piece(" WHERE ", ">= -4")), (Texts{"R02", "R03", "R04", "R05"})) << field;
    EXPECT_EQ(listed(piece(" WHERE ", "<= .5")), Texts{"R02"}) << field;
    EXPECT_EQ(listed(piece(" WHERE ", "<=  3.E1 ")), (Texts{"R02", "R03"})) << field;
    EXPECT_EQ(listed(piece(" WHERE ", ">= +30")), (Texts{"R03", "R04", "R05"})) << field;
    EXPECT_EQ(listed(" WHERE Recipe.Title like '*3*'" + piece(" AND ", ">= 30")), Texts{"R03"}) << field;
    EXPECT_EQ(errorOf([&] { listed(piece(" WHERE ", ">= 1,000")); }), 3075) << field;
    change(5, {{field, Value()}});
    EXPECT_EQ(listed(piece(" WHERE ", ">= -4")), (Texts{"R02", "R03", "R04"})) << field;
  }
}

TEST_F(ListQueryTest, AllPiecesTogether) {
  change(44, {{"Nationality", 1}, {"Course", 1}, {"Cooking", 1}, {"Ease", 1}, {"Ingredients", "flour"}});
  change(44, {{"Source", "Aunt"}, {"Comment", "fine"}, {"Method", "stir"}});
  link("Health", 44, 1);
  link("Health", 44, 3);
  link("Other", 44, 2);
  std::string from;
  std::string categories;
  for (const std::string kind : {"Nationality", "Course", "Cooking", "Ease"}) {
    from += " ," + kind + " ";
    categories += " AND " + kind + ".Description = 'One' AND Recipe." + kind + " = " + kind + "." + kind + "Id ";
  }
  std::string numbers;
  for (const std::string field : {"PrepareTime", "CookTime", "Energy", "Protein", "Carbohydrates", "Fibre", "Fat",
                                  "Cholesterol", "Sodium", "Calcium", "Iron"}) {
    change(44, {{field, 12}});
    numbers += " AND (Recipe." + field + " >= 12 AND Recipe." + field + " <> 0)";
  }
  const std::string text = from + " ,Other,RecipeOther " + " WHERE Recipe.Title like '*R*'" +
                           " AND Recipe!Ingredients like '*flour*'" + categories + " AND (('" + healthRow("One") +
                           " AND ('" + healthRow("Three") + ")" + " AND (Other.Description = 'O''Brien''s'" + otherEnd +
                           " AND Recipe.Source like '*aunt*'" + numbers + " AND Recipe.Comment like '*fine*'" +
                           " AND Recipe.Method like '*stir*'";
  EXPECT_EQ(listed(text), Texts{"R44"});
  change(44, {{"Iron", 11}});
  EXPECT_EQ(listed(text), Texts{});
}

TEST_F(ListQueryTest, CharactersOfPatterns) {
  const auto found = [this](const std::string& typed) {
    return listed(" WHERE Recipe!Ingredients like '*" + escaped(typed) + "*'");
  };
  change(1, {{"Ingredients", "100% rye_flour, 3 eggs [large]!"}});
  change(2, {{"Ingredients", "100 g ryeXflour, four eggs"}});
  change(3, {{"Ingredients", "\U0001F370 cake, \u05E2\u05D5\u05D2\u05D4 \u0643\u0639\u0643\u0629"}});
  EXPECT_EQ(found("100%"), Texts{"R01"});
  EXPECT_EQ(found("rye_"), Texts{"R01"});
  EXPECT_EQ(found("rye?flour"), (Texts{"R01", "R02"}));
  EXPECT_EQ(found("rye*eggs"), (Texts{"R01", "R02"}));
  EXPECT_EQ(found("# eggs"), Texts{"R01"});
  EXPECT_EQ(found("[fx]our eggs"), Texts{"R02"});
  EXPECT_EQ(found("[!x]flour"), Texts{"R01"});
  EXPECT_EQ(found("[[]large]"), Texts{"R01"});
  EXPECT_EQ(found("]!"), Texts{"R01"});
  EXPECT_EQ(found("l[]arge"), Texts{"R01"});
  EXPECT_EQ(found("'"), Texts{});
  EXPECT_EQ(found("\U0001F370"), Texts{"R03"});
  EXPECT_EQ(found("? cake"), Texts{"R03"});
  EXPECT_EQ(found("\u05E2\u05D5\u05D2\u05D4"), Texts{"R03"});
  EXPECT_EQ(found("\u05D4 \u0643"), Texts{"R03"});
  for (const char* typed : {"[", "a[b", "[!", "[a-", "100%["}) {
    EXPECT_EQ(errorOf([&] { found(typed); }), 93) << typed;
  }
}

TEST_F(ListQueryTest, LongTexts) {
  const std::string text(10000, 'x');
  change(1, {{"Method", "a" + text + "b"}});
  change(2, {{"Method", text.substr(1)}});
  EXPECT_EQ(listed(" WHERE Recipe.Method like '*" + text + "*'"), Texts{"R01"});
  EXPECT_EQ(listed(" WHERE Recipe.Method like '*" + text + "[b]*'"), Texts{"R01"});
  EXPECT_EQ(listed(" ,Course  WHERE Course.Description = '" + text + "' AND Recipe.Course = Course.CourseId "),
            Texts{});
}

TEST_F(ListQueryTest, TitleOrderIsThatOfTheCollation) {
  Texts titles = {"z",   "apple", "Apple pie", "\u00C9clair", "eclair", "1 pot", "\u00F8l",
                  "Zoo", "-x",    "",          "e",           "10 pots"};
  int number = 0;
  for (const std::string& text : titles) change(++number, {{"Title", text}, {"Source", "ordered"}});
  std::ranges::sort(titles, [](const auto& left, const auto& right) { return collate(left, right) < 0; });
  EXPECT_EQ(listed(" WHERE Recipe.Source like '*ordered*'"), titles);
}

TEST_F(ListQueryTest, EqualRowsAreOne) {
  for (const int number : {7, 9, 11, 13}) change(number, {{"Title", "Same"}, {"Source", "s"}});
  change(8, {{"Title", "SAME "}, {"Source", "s"}});
  change(12, {{"Title", Value()}, {"Source", "s"}});
  change(14, {{"Title", Value()}, {"Source", "s"}});
  const std::string text = listText + " WHERE Recipe.Source like '*s*'";
  EXPECT_EQ(queried(text, "Meal"), (Texts{"True", "True", "False"}));
  EXPECT_EQ(queried(text, "Title").front(), "Null");
  EXPECT_EQ(queried(" SELECT Distinct Recipe.Title  FROM Recipe  WHERE Recipe.Source like '*s*'", "Title").size(), 2U);
}

/// A store that is large against its results, and whose results are longer than what is read at a time.
class LongListTest : public StoreTest {
 protected:
  static constexpr int recipes = 3000;
  /// So few rows are looked up one by one, and are still more than a page.
  static constexpr int rareStep = 26;

  LongListTest() {
    database.setDurability(Database::Durability::AtCheckpoint);
    for (int step = 0; step < recipes; ++step) {
      const int number = 1 + step * 1009 % recipes;
      const std::string text = std::to_string(10000 + number);
      addRawRow(database, "Recipe",
                {{"RecipeId", number}, {"Title", text}, {"Ingredients", number % rareStep == 0 ? "rare" : "frequent"}});
    }
  }

  Recordset opened(const std::string& sought) {
    return database.OpenRecordset(listText + " WHERE Recipe!Ingredients like '*" + sought + "*'");
  }

  static Texts titlesOf(bool rare) {
    Texts titles;
    for (int number = 1; number <= recipes; ++number) {
      if ((number % rareStep == 0) == rare) titles.push_back(std::to_string(10000 + number));
    }
    return titles;
  }
};

TEST_F(LongListTest, RowsComeInPages) {
  for (const bool rare : {true, false}) {
    Recordset list = opened(rare ? "rare" : "frequent");
    EXPECT_EQ(rest(list, "Title"), titlesOf(rare));
    EXPECT_EQ(list.RecordCount(), static_cast<long>(titlesOf(rare).size()));
    list.MoveFirst();
    EXPECT_EQ(rest(list, "Title"), titlesOf(rare));
  }
}

TEST_F(LongListTest, MoreEqualRowsThanAPageHoldsAreOne) {
  database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId > 500");
  for (int number = 1; number <= 250; ++number) {
    changeRawRows(database, "Recipe", "RecipeId", number, {{"Title", "Same"}, {"Meal", number == 200}});
  }
  Recordset list = database.OpenRecordset(listText);
  const Texts titles = rest(list, "Title");
  ASSERT_EQ(titles.size(), 252U);
  EXPECT_EQ(titles[249], "10500");
  EXPECT_EQ(titles[250], "Same");
  EXPECT_EQ(titles[251], "Same");
}

TEST_F(LongListTest, RowsRemovedBeforeTheyAreReachedAreLeftOutAndNewOnesDoNotCome) {
  for (const bool rare : {true, false}) {
    const std::string sought = rare ? "rare" : "frequent";
    Recordset list = opened(sought);
    Texts expected = titlesOf(rare);
    ASSERT_GT(expected.size(), 110U);
    removeRawRows(database, "Recipe", "Title", expected.back());
    addRawRow(database, "Recipe", {{"Title", "99999"}, {"Ingredients", sought}});
    expected.pop_back();
    EXPECT_EQ(rest(list, "Title"), expected);
  }
}

TEST_F(LongListTest, RowsShowWhatTheyHoldWhenTheyAreReached) {
  for (const bool rare : {true, false}) {
    Recordset list = opened(rare ? "rare" : "frequent");
    Texts expected = titlesOf(rare);
    changeRawRows(database, "Recipe", "Title", expected.back(), {{"Title", "9x"}, {"Ingredients", "none"}});
    expected.back() = "9x";
    EXPECT_EQ(rest(list, "Title"), expected);
  }
}

TEST_F(LongListTest, AClosedStoreEndsTheList) {
  Recordset list = opened("frequent");
  database.Close();
  EXPECT_EQ(errorOf([&] { list.MoveNext(); }), 3420);
  EXPECT_EQ(errorOf([&] { static_cast<void>(list.Field("Title")); }), 3420);
}

}  // namespace
}  // namespace pantrigo
