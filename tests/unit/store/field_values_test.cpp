#include "platform/store/field_values.h"

#include <gtest/gtest.h>

#include <limits>

#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

struct WriteCase {
  FieldType type;
  Value written;
  /// What the field holds then, or the error's number.
  std::variant<Value, int> outcome;
};

constexpr FieldType allTypes[] = {FieldType::LongInteger, FieldType::Number, FieldType::YesNo, FieldType::Text,
                                  FieldType::Memo};

void expectOutcome(const WriteCase& c, Value (*convert)(FieldType, const Value&)) {
  Value result;
  const int error = errorOf([&] { result = convert(c.type, c.written); });
  const std::string note = std::to_string(static_cast<int>(c.type)) + " from '" + c.written.text() + "'";
  if (const auto* expected = std::get_if<Value>(&c.outcome)) {
    EXPECT_EQ(error, 0) << note;
    EXPECT_EQ(result, *expected) << note;
  } else {
    EXPECT_EQ(error, std::get<int>(c.outcome)) << note;
  }
}

TEST(FieldValuesTest, WrittenToNumberFields) {
  using enum FieldType;
  const double infinity = std::numeric_limits<double>::infinity();
  for (const WriteCase& c : {
           WriteCase{Number, Value(), Value()},
           {Number, 2.5, Value(2.5)},
           {Number, 418.68F, Value(418.68)},
           {Number, "2.5", Value(2.5)},
           {Number, " 12 ", Value(12)},
           {Number, "1,000", Value(1000)},
           {Number, "(5)", Value(-5)},
           {Number, "1e3", Value(1000)},
           {Number, "", Value()},
           {Number, " ", 3421},
           {Number, "5 eggs", 3421},
           {Number, "1/2", 3421},
           {Number, "True", 3421},
           {Number, true, Value(-1)},
           {Number, false, Value(0)},
           {Number, 1e300, Value(1e300)},
           {Number, infinity, 6},
           {LongInteger, Value(), Value()},
           {LongInteger, 7, Value(7)},
           {LongInteger, 2.5, Value(2)},
           {LongInteger, 3.5, Value(4)},
           {LongInteger, "12", Value(12)},
           {LongInteger, "2.5", Value(2)},
           {LongInteger, "", Value()},
           {LongInteger, "twelve", 3421},
           {LongInteger, 2147483647.0, Value(2147483647)},
           {LongInteger, 2147483648.0, 6},
           {LongInteger, "-2147483649", 6},
           {LongInteger, true, Value(-1)},
       }) {
    expectOutcome(c, toFieldValue);
  }
}

TEST(FieldValuesTest, WrittenToYesNoFields) {
  using enum FieldType;
  for (const WriteCase& c : {
           WriteCase{YesNo, true, Value(true)},
           {YesNo, false, Value(false)},
           {YesNo, Value(), Value(false)},
           {YesNo, 0, Value(false)},
           {YesNo, -1, Value(true)},
           {YesNo, 0.5, Value(true)},
           {YesNo, "True", Value(true)},
           {YesNo, "fAlSe", Value(false)},
           {YesNo, "0", Value(false)},
           {YesNo, "-1", Value(true)},
           {YesNo, "", 3421},
           {YesNo, "yes", 3421},
       }) {
    expectOutcome(c, toFieldValue);
  }
}

TEST(FieldValuesTest, WrittenToTextFields) {
  using enum FieldType;
  const std::string longest(255, 'x');
  std::string longestAccented;
  for (int count = 0; count < 255; ++count) longestAccented += "\xC3\xA9";
  for (const WriteCase& c : {
           WriteCase{Text, Value(), Value()},
           {Text, "", Value("")},
           {Text, " kept ", Value(" kept ")},
           {Text, 2.5, Value("2.5")},
           {Text, 10000000, Value("10000000")},
           {Text, true, Value("True")},
           {Text, longest, Value(longest)},
           {Text, longestAccented, Value(longestAccented)},
           {Text, longest + "x", 3163},
           {Text, longestAccented + "x", 3163},
           {Memo, longest + longest, Value(longest + longest)},
           {Memo, "", Value("")},
           {Memo, Value(), Value()},
           {Memo, 0.5, Value("0.5")},
       }) {
    expectOutcome(c, toFieldValue);
  }
}

TEST(FieldValuesTest, SoughtValuesAreNotRounded) {
  using enum FieldType;
  for (const WriteCase& c : {
           WriteCase{LongInteger, 2.5, Value(2.5)},
           {LongInteger, 1e12, Value(1e12)},
           {LongInteger, "", Value()},
           {LongInteger, "x", 3421},
           {YesNo, Value(), Value()},
           {YesNo, -1, Value(true)},
           {Text, std::string(300, 'x'), Value(std::string(300, 'x'))},
           {Text, 5, Value("5")},
       }) {
    expectOutcome(c, toKeyValue);
  }
}

TEST(FieldValuesTest, NewRowsHoldNullAndFalse) {
  for (const FieldType type : allTypes) {
    EXPECT_EQ(defaultOf(type), type == FieldType::YesNo ? Value(false) : Value());
  }
}

class StoredValuesTest : public StoreTest {};

TEST_F(StoredValuesTest, EveryValueComesBackAsItWasWritten) {
  const std::string zero("a\0b", 3);
  const std::vector<RawRow> rows{
      {{"RecipeId", 1},
       {"Title", "Plain"},
       {"Serves", 4},
       {"Energy", 418.68},
       {"Meal", true},
       {"Method", "Stir.\r\nServe."}},
      {{"RecipeId", 2}, {"Title", ""}, {"Serves", 0.1}, {"Energy", -0.5}, {"Comment", ""}, {"Nationality", -7}},
      {{"RecipeId", 3},
       {"Title",
        "Cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
        "e \xF0\x9F\x8D\xAE"},
       {"Fat", 1e-300},
       {"Iron", 1e300}},
      {{"RecipeId", 4}, {"Title", zero}, {"Source", "\xFF\xFE"}, {"Serves", 9007199254740993.0}},
      {{"RecipeId", 2147483647}, {"Title", Value()}, {"Method", std::string(1000000, 'm')}},
  };
  for (const RawRow& row : rows) addRawRow(database, "Recipe", row);
  reopen();
  Recordset cursor = database.OpenRecordset("Recipe");
  for (const RawRow& row : rows) {
    for (const FieldDescription& field : findTable("Recipe")->fields) {
      const auto given = row.find(field.name);
      EXPECT_EQ(cursor.Field(field.name), given == row.end() ? defaultOf(field.type) : given->second) << field.name;
    }
    cursor.MoveNext();
  }
}

TEST_F(StoredValuesTest, WritesGoThroughTheFieldsConversion) {
  addRecipe(1, "One");
  Recordset cursor = database.OpenRecordset("Recipe");
  cursor.Edit();
  cursor.Set("serves", "4");
  EXPECT_EQ(cursor.Field("Serves"), Value(4));
  EXPECT_EQ(errorOf([&] { cursor.Set("Energy", "lots"); }), 3421);
  EXPECT_EQ(errorOf([&] { cursor.Set("Title", std::string(256, 't')); }), 3163);
  EXPECT_EQ(errorOf([&] { cursor.Set("Course", 3e9); }), 6);
  cursor.Update();
  EXPECT_EQ(cursor.Field("Serves"), Value(4));
  EXPECT_EQ(cursor.Field("Energy"), Value());
  EXPECT_EQ(cursor.Field("Title"), Value("One"));
}

}  // namespace
}  // namespace pantrigo
