#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "platform/store/store_state.h"
#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

using Texts = std::vector<std::string>;

class TableCursorTest : public StoreTest {
 protected:
  Recordset titles() {
    Recordset cursor = database.OpenRecordset("Recipe");
    cursor.Index("RecipeIdxTitle");
    return cursor;
  }

  Texts titlesAbove(const Value& key) {
    Recordset cursor = titles();
    cursor.Seek(">", key);
    return rest(cursor, "Title");
  }

  /// Three recipes, Alpha to Gamma, stored in another order.
  void addThree() const {
    addRecipe(1, "Beta");
    addRecipe(2, "Gamma");
    addRecipe(3, "Alpha");
  }

  static void write(Recordset& cursor, std::string_view field, const Value& value) {
    cursor.Edit();
    cursor.Set(field, value);
    cursor.Update();
  }
};

TEST_F(TableCursorTest, OpensOnTheFirstRowOfPhysicalOrder) {
  addThree();
  Recordset cursor = database.OpenRecordset("recipe");
  EXPECT_FALSE(cursor.Eof());
  EXPECT_FALSE(cursor.NoMatch());
  EXPECT_EQ(rest(cursor, "title"), (Texts{"Beta", "Gamma", "Alpha"}));
}

TEST_F(TableCursorTest, EmptyTableIsAtItsEnd) {
  Recordset cursor = database.OpenRecordset("Recipe");
  EXPECT_TRUE(cursor.Eof());
  EXPECT_EQ(cursor.RecordCount(), 0);
  EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), 3021);
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3021);
  EXPECT_EQ(errorOf([&] { cursor.Edit(); }), 3021);
  EXPECT_EQ(errorOf([&] { cursor.Delete(); }), 3021);
  cursor.MoveFirst();
  EXPECT_TRUE(cursor.Eof());
  cursor.Index("RecipeIdxTitle");
  cursor.Seek(">", "");
  EXPECT_TRUE(cursor.NoMatch());
  EXPECT_TRUE(cursor.Eof());
}

TEST_F(TableCursorTest, UnknownNames) {
  Recordset cursor = database.OpenRecordset("Recipe");
  EXPECT_EQ(errorOf([&] { static_cast<void>(database.OpenRecordset("Drinks")); }), 3078);
  EXPECT_EQ(errorOf([&] { cursor.Index("RecipeIdxSource"); }), 3015);
  EXPECT_EQ(errorOf([&] { cursor.Index("CourseIdxCourseId"); }), 3015);
  EXPECT_EQ(errorOf([&] { cursor.Seek("=", "x"); }), 3019);
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Colour")); }), 3265);
  cursor.AddNew();
  EXPECT_EQ(errorOf([&] { cursor.Set("Colour", 1); }), 3265);
  cursor.Index("RecipeIdxTitle");
  EXPECT_EQ(errorOf([&] { cursor.Seek("<", "x"); }), 5);
  EXPECT_EQ(errorOf([&] { cursor.Seek("=", {"x", "y"}); }), 5);
}

TEST_F(TableCursorTest, ChoosingAnIndexLeavesNoPosition) {
  addThree();
  Recordset cursor = titles();
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3021);
  EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), 3021);
  cursor.MoveFirst();
  EXPECT_EQ(rest(cursor, "Title"), (Texts{"Alpha", "Beta", "Gamma"}));
}

TEST_F(TableCursorTest, EndIsReachedOnceAndThenAnError) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "gamma");
  cursor.MoveNext();
  EXPECT_TRUE(cursor.Eof());
  EXPECT_FALSE(cursor.NoMatch());
  EXPECT_EQ(errorOf([&] { cursor.MoveNext(); }), 3021);
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3021);
}

TEST_F(TableCursorTest, SeekGoesByTheCollation) {
  addRecipe(1, "Apple Pie");
  addRecipe(2, "Cr\xC3\xA8me");
  addRecipe(3, "Creme");
  struct Case {
    const char* key;
    long id;
  };
  Recordset cursor = titles();
  for (const Case& c :
       {Case{"apple pie", 1}, {"APPLE PIE  ", 1}, {"Apple", 0}, {"creme", 3}, {"CR\xC3\x88ME", 2}, {"", 0}}) {
    cursor.Seek("=", c.key);
    EXPECT_EQ(cursor.NoMatch(), c.id == 0) << c.key;
    if (c.id == 0) continue;
    EXPECT_EQ(cursor.Field("RecipeId"), Value(c.id)) << c.key;
  }
}

TEST_F(TableCursorTest, SeekComparisons) {
  addThree();
  struct Case {
    const char* comparison;
    const char* key;
    Texts found;
  };
  Recordset cursor = titles();
  for (const Case& c :
       {Case{">", "", {"Alpha", "Beta", "Gamma"}}, Case{">", "alpha", {"Beta", "Gamma"}}, Case{">", "gamma", {}},
        Case{">=", "beta", {"Beta", "Gamma"}}, Case{">=", "B", {"Beta", "Gamma"}}, Case{">=", "Z", {}},
        Case{"=", "beta", {"Beta", "Gamma"}}, Case{"=", "B", {}}}) {
    cursor.Seek(c.comparison, c.key);
    EXPECT_EQ(cursor.NoMatch(), c.found.empty()) << c.comparison << c.key;
    EXPECT_EQ(rest(cursor, "Title"), c.found) << c.comparison << c.key;
  }
}

TEST_F(TableCursorTest, NullKeysComeFirstAndMatchNull) {
  addRecipe(1, "Beta");
  addRecipe(2, "");
  addRecipe(3, Value());
  addRecipe(4, "Alpha");
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha", "Beta"}));
  EXPECT_EQ(titlesAbove(Value()), (Texts{"", "Alpha", "Beta"}));
  Recordset cursor = titles();
  cursor.Seek("=", Value());
  EXPECT_EQ(cursor.Field("RecipeId"), Value(3));
  EXPECT_EQ(rest(cursor, "RecipeId"), (Texts{"3", "2", "4", "1"}));
  cursor.Seek(">=", Value());
  EXPECT_EQ(cursor.Field("RecipeId"), Value(3));
  cursor.Index("RecipeIdxNationality");
  cursor.Seek("=", 1);
  EXPECT_TRUE(cursor.NoMatch());
  cursor.Seek("=", Value());
  EXPECT_EQ(rest(cursor, "RecipeId"), (Texts{"1", "2", "3", "4"}));
  cursor.Seek(">", Value());
  EXPECT_TRUE(cursor.NoMatch());
}

TEST_F(TableCursorTest, EqualKeysComeInTheOrderOfStoring) {
  for (long id = 1; id <= 300; ++id) addRecipe(id, "Same", id % 3 == 0);
  Recordset cursor = titles();
  cursor.Seek("=", "same");
  Texts expected;
  for (long id = 1; id <= 300; ++id) expected.push_back(std::to_string(id));
  EXPECT_EQ(rest(cursor, "RecipeId"), expected);
}

TEST_F(TableCursorTest, SeekThatFailsFindsNothing) {
  addRawRow(database, "Recipe", {{"RecipeId", 1}, {"Title", "Pie"}, {"Nationality", 2}});
  Recordset cursor = database.OpenRecordset("Recipe");
  const auto expectNothing = [&cursor](int error, const std::function<void()>& seek) {
    EXPECT_EQ(errorOf(seek), error);
    EXPECT_TRUE(cursor.NoMatch());
    EXPECT_TRUE(cursor.Eof());
    EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3021);
  };
  expectNothing(3019, [&] { cursor.Seek("=", 2); });
  cursor.Index("RecipeIdxNationality");
  const auto find = [&] {
    cursor.Seek("=", 2);
    ASSERT_FALSE(cursor.NoMatch());
    cursor.Edit();
  };
  find();
  expectNothing(3421, [&] { cursor.Seek("=", "Italian"); });
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3020);
  find();
  expectNothing(5, [&] { cursor.Seek("<", 2); });
  find();
  expectNothing(5, [&] { cursor.Seek("=", {2, 2}); });
}

TEST_F(TableCursorTest, EmptyTextEqualsNoNumber) {
  addRecipe(1, "No nationality");
  addRawRow(database, "Recipe", {{"RecipeId", 2}, {"Title", "Pie"}, {"Nationality", 0}});
  Recordset cursor = database.OpenRecordset("Recipe");
  cursor.Index("RecipeIdxNationality");
  cursor.Seek("=", "");
  EXPECT_TRUE(cursor.NoMatch());
  cursor.Seek("=", Value());
  EXPECT_EQ(cursor.Field("RecipeId"), Value(1));
  cursor.Seek("=", "0");
  EXPECT_EQ(cursor.Field("RecipeId"), Value(2));
}

TEST_F(TableCursorTest, IndexDropsAPendingEdit) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  cursor.Edit();
  cursor.Set("Title", "Changed");
  cursor.Index("RecipeIdxRecipeId");
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3020);
  cursor.AddNew();
  cursor.Index("RecipeIdxTitle");
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3020);
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha", "Beta", "Gamma"}));
}

TEST_F(TableCursorTest, ErrorsNameWhatIsMissing) {
  Recordset cursor = database.OpenRecordset("Recipe");
  EXPECT_EQ(errorTextOf([&] { cursor.Index("RecipeIdxColour"); }), "No such index in the table. RecipeIdxColour");
  EXPECT_EQ(errorTextOf([&] { static_cast<void>(cursor.Field("Colour")); }), "Field not found in this table. Colour");
  EXPECT_EQ(errorTextOf([&] { database.Execute(" Delete FROM Drinks"); }),
            "A table of the store couldn't be found. Drinks");
}

TEST_F(TableCursorTest, CloseLetsCopiesStayOpen) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  Recordset copy = cursor;
  cursor.Close();
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Eof()); }), 3420);
  EXPECT_EQ(copy.Field("Title"), Value("Beta"));
}

TEST_F(TableCursorTest, SeekByNumberAndYesNo) {
  addRecipe(7, "Seven", true);
  addRecipe(8, "Eight");
  Recordset cursor = database.OpenRecordset("Recipe");
  cursor.Index("RecipeIdxRecipeId");
  for (const Value& key : {Value(7), Value(7L), Value(7.0), Value("7"), Value(" 7 ")}) {
    cursor.Seek("=", key);
    ASSERT_FALSE(cursor.NoMatch()) << key.text();
    EXPECT_EQ(cursor.Field("Title"), Value("Seven"));
  }
  cursor.Seek("=", 7.5);
  EXPECT_TRUE(cursor.NoMatch());
  cursor.Seek(">", 7.5);
  EXPECT_EQ(cursor.Field("Title"), Value("Eight"));
  EXPECT_EQ(errorOf([&] { cursor.Seek("=", "seven"); }), 3421);
  cursor.Index("RecipeIdxMeal");
  for (const Value& key : {Value(true), Value(-1), Value("True")}) {
    cursor.Seek("=", key);
    EXPECT_EQ(cursor.Field("Title"), Value("Seven"));
  }
  cursor.Seek("=", false);
  EXPECT_EQ(cursor.Field("Title"), Value("Eight"));
}

TEST_F(TableCursorTest, KeysOfTwoFields) {
  Recordset links = database.OpenRecordset("RecipeHealth");
  for (const auto& [recipe, health] : std::vector<std::pair<int, int>>{{2, 1}, {1, 3}, {1, 1}, {2, 5}, {1, 2}}) {
    links.AddNew();
    links.Set("RecipeId", recipe);
    links.Set("HealthId", health);
    links.Update();
  }
  links.Index("RecipeHealthIdxRecipeIdHealthId");
  links.Seek("=", {1, 2});
  EXPECT_EQ(rest(links, "HealthId"), (Texts{"2", "3", "1", "5"}));
  links.Seek("=", {1, 4});
  EXPECT_TRUE(links.NoMatch());
  links.Seek(">=", {1, 4});
  EXPECT_EQ(rest(links, "HealthId"), (Texts{"1", "5"}));
  links.Seek(">", {1, 3});
  EXPECT_EQ(links.Field("RecipeId"), Value(2));
  links.Seek(">", 2);
  EXPECT_EQ(rest(links, "HealthId"), (Texts{"1", "5"}));
  links.Index("RecipeHealthIdxRecipeId");
  links.Seek("=", 1);
  EXPECT_EQ(rest(links, "HealthId"), (Texts{"3", "1", "2", "1", "5"}));
  links.Index("RecipeHealthIdxHealthId");
  links.Seek("=", 1);
  EXPECT_EQ(rest(links, "RecipeId"), (Texts{"2", "1", "1", "1", "2"}));
}

TEST_F(TableCursorTest, AddNewLeavesTheCurrentRowCurrent) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  cursor.AddNew();
  cursor.Set("Title", "Beta bis");
  EXPECT_EQ(cursor.Field("Title"), Value("Beta bis"));
  EXPECT_EQ(cursor.Field("RecipeId"), Value());
  EXPECT_EQ(cursor.Field("Meal"), Value(false));
  cursor.Update();
  EXPECT_EQ(rest(cursor, "Title"), (Texts{"Beta", "Beta bis", "Gamma"}));
}

TEST_F(TableCursorTest, AddNewOnAnEmptyTableLeavesItAtItsEnd) {
  Recordset cursor = database.OpenRecordset("Course");
  cursor.AddNew();
  cursor.Set("Description", "Soup");
  cursor.Update();
  EXPECT_TRUE(cursor.Eof());
  cursor.MoveFirst();
  EXPECT_EQ(cursor.Field("Description"), Value("Soup"));
}

TEST_F(TableCursorTest, EditKeepsTheRowCurrent) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Alpha");
  cursor.Edit();
  cursor.Set("Source", "Aunt");
  EXPECT_EQ(cursor.Field("Source"), Value("Aunt"));
  EXPECT_EQ(cursor.Field("Title"), Value("Alpha"));
  Recordset other = titles();
  other.Seek("=", "Alpha");
  EXPECT_EQ(other.Field("Source"), Value());
  cursor.Update();
  EXPECT_EQ(other.Field("Source"), Value("Aunt"));
  EXPECT_EQ(cursor.Field("Source"), Value("Aunt"));
  EXPECT_EQ(rest(cursor, "Title"), (Texts{"Alpha", "Beta", "Gamma"}));
}

TEST_F(TableCursorTest, PendingChangesAreDroppedSilently) {
  addThree();
  Recordset cursor = titles();
  const auto dropsEdit = [&](auto&& act) {
    cursor.Seek("=", "Beta");
    cursor.Edit();
    cursor.Set("Title", "Zulu");
    act();
    return errorOf([&] { cursor.Update(); });
  };
  EXPECT_EQ(dropsEdit([&] { cursor.Seek("=", "Alpha"); }), 3020);
  EXPECT_EQ(dropsEdit([&] { cursor.MoveNext(); }), 3020);
  EXPECT_EQ(dropsEdit([&] { cursor.MoveFirst(); }), 3020);
  EXPECT_EQ(dropsEdit([&] { cursor.Edit(); }), 0);
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(dropsEdit([&] { cursor.Delete(); }), 3020);
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha", "Gamma"}));
  cursor.AddNew();
  cursor.Set("Title", "Never");
  cursor.Close();
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha", "Gamma"}));
}

TEST_F(TableCursorTest, WritesNeedAnEdit) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  EXPECT_EQ(errorOf([&] { cursor.Set("Title", "x"); }), 3020);
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3020);
  write(cursor, "Title", "Delta");
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3020);
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha", "Delta", "Gamma"}));
}

TEST_F(TableCursorTest, DeletedRowStaysDeadUntilTheNextMove) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  cursor.Delete();
  EXPECT_FALSE(cursor.Eof());
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3167);
  EXPECT_EQ(errorOf([&] { cursor.Edit(); }), 3167);
  EXPECT_EQ(errorOf([&] { cursor.Delete(); }), 3167);
  cursor.MoveNext();
  EXPECT_EQ(cursor.Field("Title"), Value("Gamma"));
  cursor.Delete();
  cursor.MoveNext();
  EXPECT_TRUE(cursor.Eof());
  EXPECT_EQ(titlesAbove(""), (Texts{"Alpha"}));
}

TEST_F(TableCursorTest, RowRemovedBehindTheCursorsBackIsDead) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId = 1");
  EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3167);
  EXPECT_EQ(errorOf([&] { cursor.Edit(); }), 3167);
  cursor.MoveNext();
  EXPECT_EQ(cursor.Field("Title"), Value("Gamma"));
}

TEST_F(TableCursorTest, RowRemovedDuringAnEditIsReported) {
  addThree();
  Recordset cursor = titles();
  cursor.Seek("=", "Beta");
  cursor.Edit();
  cursor.Set("Title", "Delta");
  database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId = 1");
  EXPECT_EQ(errorOf([&] { cursor.Update(); }), 3167);
}

TEST_F(TableCursorTest, NewRowIsNeverMistakenForARemovedOne) {
  const auto removeByText = [this](Recordset&) { database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId = 3"); };
  const auto removeByCursor = [](Recordset& cursor) { cursor.Delete(); };
  for (const std::function<void(Recordset&)>& remove :
       {std::function<void(Recordset&)>(removeByText), {removeByCursor}}) {
    addRecipe(3, "Last");
    // A store that was just opened has not given a row number yet.
    reopen();
    Recordset cursor = database.OpenRecordset("Recipe");
    ASSERT_EQ(cursor.Field("Title"), Value("Last"));
    remove(cursor);
    addRecipe(4, "Delta");
    EXPECT_EQ(errorOf([&] { static_cast<void>(cursor.Field("Title")); }), 3167);
    cursor.MoveNext();
    EXPECT_EQ(cursor.Field("Title"), Value("Delta"));
    removeRawRows(database, "Recipe", "RecipeId", 4);
  }
}

TEST_F(TableCursorTest, ChangesShowAtOnceInOtherCursors) {
  addThree();
  Recordset walk = titles();
  walk.Seek(">", "");
  Recordset writer = titles();
  writer.Seek("=", "Gamma");
  write(writer, "Title", "Aardvark");
  EXPECT_EQ(walk.Field("Title"), Value("Alpha"));
  addRecipe(4, "Also");
  EXPECT_EQ(rest(walk, "Title"), (Texts{"Alpha", "Also", "Beta"}));
}

TEST_F(TableCursorTest, WalkGoesOnFromTheNewPlaceOfAChangedRow) {
  addThree();
  Recordset walk = titles();
  walk.Seek("=", "Alpha");
  write(walk, "Title", "Beta bis");
  EXPECT_EQ(walk.Field("Title"), Value("Beta bis"));
  EXPECT_EQ(rest(walk, "Title"), (Texts{"Beta bis", "Gamma"}));
}

TEST_F(TableCursorTest, SystemChangeShowsAtOnceInAnotherCursor) {
  Recordset first = database.OpenRecordset("System");
  Recordset second = database.OpenRecordset("System");
  EXPECT_EQ(second.Field("Measurement"), Value());
  write(first, "Measurement", "u");
  EXPECT_EQ(second.Field("Measurement"), Value("u"));
  write(second, "RecipeId", 5);
  EXPECT_EQ(first.Field("RecipeId"), Value(5));
}

TEST_F(TableCursorTest, DuplicateKeysAreRefusedAndTheCursorStaysUsable) {
  Recordset links = database.OpenRecordset("RecipeOther");
  const auto add = [&](int recipe, int other) {
    links.AddNew();
    links.Set("RecipeId", recipe);
    links.Set("OtherId", other);
    return errorOf([&] { links.Update(); });
  };
  EXPECT_EQ(add(1, 1), 0);
  EXPECT_EQ(add(1, 1), 3022);
  EXPECT_EQ(add(1, 2), 0);
  EXPECT_EQ(links.RecordCount(), 2);
  addThree();
  EXPECT_EQ(errorOf([&] { addRecipe(1, "Other"); }), 3022);
  EXPECT_EQ(errorOf([&] { addRecipe(4, "Beta"); }), 0);
  Recordset cursor = titles();
  cursor.Seek("=", "Gamma");
  EXPECT_EQ(errorOf([&] { write(cursor, "RecipeId", 1); }), 3022);
  cursor.Seek("=", "Gamma");
  EXPECT_EQ(cursor.Field("RecipeId"), Value(2));
}

TEST_F(TableCursorTest, EveryTableOpensWithAllItsFieldsAndIndexes) {
  for (const TableDescription& table : storeTables()) {
    Recordset cursor = database.OpenRecordset(table.name);
    cursor.AddNew();
    for (const FieldDescription& field : table.fields) {
      EXPECT_EQ(cursor.Field(field.name), field.type == FieldType::YesNo ? Value(false) : Value())
          << table.name << field.name;
    }
    for (const IndexDescription& index : table.indexes)
      EXPECT_EQ(errorOf([&] { cursor.Index(index.name); }), 0) << index.name;
  }
}

TEST_F(TableCursorTest, NewSystemRowHasItsCountersAtZero) {
  Recordset system = database.OpenRecordset("System");
  EXPECT_EQ(system.RecordCount(), 1);
  for (const FieldDescription& field : findTable("System")->fields) {
    const Value expected = field.type == FieldType::LongInteger ? Value(0)
                           : field.type == FieldType::YesNo     ? Value(false)
                                                                : Value();
    EXPECT_EQ(system.Field(field.name), expected) << field.name;
  }
}

TEST_F(TableCursorTest, ClosedObjectsRefuseEverything) {
  addThree();
  Recordset cursor = titles();
  Recordset query = database.OpenRecordset("SELECT * FROM Recipe");
  Recordset never;
  Recordset closed = titles();
  closed.Close();
  EXPECT_FALSE(closed.isOpen());
  EXPECT_EQ(errorOf([&] { closed.Close(); }), 3420);
  database.Close();
  for (Recordset* recordset : {&cursor, &query, &never, &closed}) {
    EXPECT_EQ(errorOf([&] { static_cast<void>(recordset->Eof()); }), 3420);
    EXPECT_EQ(errorOf([&] { static_cast<void>(recordset->NoMatch()); }), 3420);
    EXPECT_EQ(errorOf([&] { static_cast<void>(recordset->Field("Title")); }), 3420);
    EXPECT_EQ(errorOf([&] { static_cast<void>(recordset->RecordCount()); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->Index("RecipeIdxTitle"); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->Seek("=", "x"); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->MoveNext(); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->MoveFirst(); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->AddNew(); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->Edit(); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->Set("Title", 1); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->Update(); }), 3420);
    EXPECT_EQ(errorOf([&] { recordset->Delete(); }), 3420);
  }
  EXPECT_EQ(errorOf([&] { static_cast<void>(database.OpenRecordset("Recipe")); }), 3420);
  EXPECT_EQ(errorOf([&] { database.Execute(" Delete FROM Recipe WHERE Recipe!RecipeId = 1"); }), 3420);
  EXPECT_EQ(errorOf([&] { database.Close(); }), 0);
  EXPECT_EQ(errorOf([] { static_cast<void>(Database().OpenRecordset("Recipe")); }), 3420);
}

TEST_F(TableCursorTest, OpeningSystemRaisesCountersThatLagBehind) {
  addRecipe(12, "Twelve");
  addRawRow(database, "Course", {{"CourseId", 4}, {"Description", "Soup"}});
  changeRawRows(database, "System", "RecipeId", 12, {{"RecipeId", 3}, {"CourseId", Value()}, {"EaseId", 9}});
  Recordset system = database.OpenRecordset("System");
  EXPECT_EQ(system.Field("RecipeId"), Value(12));
  EXPECT_EQ(system.Field("CourseId"), Value(4));
  EXPECT_EQ(system.Field("EaseId"), Value(9));
  EXPECT_EQ(system.Field("HealthId"), Value(0));
}

TEST_F(TableCursorTest, SystemWithoutItsRowHasNoCurrentRecord) {
  removeRawRows(database, "System", "RecipeId", 0);
  Recordset system = database.OpenRecordset("System");
  EXPECT_TRUE(system.Eof());
  EXPECT_EQ(errorOf([&] { static_cast<void>(system.Field("Cup")); }), 3021);
}

TEST_F(TableCursorTest, LongWalksSeeEveryRowOnce) {
  database.setDurability(Database::Durability::AtCheckpoint);
  constexpr int rows = 1000;
  for (int id = 1; id <= rows; ++id) addRecipe(id, "Recipe " + std::to_string((id * 7919) % rows), id % 2 == 0);
  database.setDurability(Database::Durability::EachUpdate);
  const Texts inOrder = titlesAbove("");
  ASSERT_EQ(inOrder.size(), static_cast<std::size_t>(rows));
  EXPECT_EQ(std::set<std::string>(inOrder.begin(), inOrder.end()).size(), static_cast<std::size_t>(rows));
  Recordset walk = titles();
  walk.Seek(">", "");
  std::size_t step = 0;
  for (; !walk.Eof(); walk.MoveNext(), ++step) {
    EXPECT_EQ(walk.Field("Title"), Value(inOrder.at(step)));
    if (step % 5 == 0) write(walk, "Meal", true);
  }
  EXPECT_EQ(step, inOrder.size());
}

TEST_F(TableCursorTest, EveryStatementOfAWalkUsesItsIndexWithoutSorting) {
  Connection& connection = StoreAccess::state(database).connection();
  for (const TableDescription& table : storeTables()) {
    for (const IndexDescription& index : table.indexes) {
      const std::string key(index.keyFields[0]);
      const std::string start =
          "EXPLAIN QUERY PLAN SELECT * FROM " + std::string(table.name) + " INDEXED BY " + std::string(index.name);
      for (const std::string& end :
           {" ORDER BY " + key + (index.keyFields[1].empty() ? "" : ", " + std::string(index.keyFields[1])) +
                ", RowNumber",
            " WHERE " + key + " > 1 ORDER BY " + key +
                (index.keyFields[1].empty() ? "" : ", " + std::string(index.keyFields[1])) + ", RowNumber"}) {
        Statement plan(connection.handle(), start + end);
        while (plan.step()) EXPECT_EQ(plan.text(3).find("TEMP B-TREE"), std::string_view::npos) << start << end;
      }
    }
  }
}

}  // namespace
}  // namespace pantrigo
