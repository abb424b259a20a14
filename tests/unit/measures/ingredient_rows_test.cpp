#include "measures/ingredient_rows.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

class IngredientRows : public MeasuresTest {
 protected:
  /// The table after reading: the columns of a row each in front of a "|", and the rows in front of the highest index.
  std::string read(std::string_view memo) {
    readIngredientRows(run, memo);
    std::string text;
    for (const IngredientRow& row : run.GLOBAL.gIngredientRows) {
      for (int column = 1; column <= IngredientRow::columnCount; ++column) text += row[column] + "|";
      text += "\n";
    }
    return text + Value(run.GLOBAL.gIngredientLast).text();
  }
};

TEST_F(IngredientRows, ReadsSixFieldsARow) {
  EXPECT_EQ(read("300~mL~milk~warm~1 1/4~cup~"), "300|mL|milk|warm|1 1/4|cup|\n0");
  EXPECT_EQ(read("300~mL~milk~warm~1 1/4~cup~2~~eggs~beaten~2~~"),
            "300|mL|milk|warm|1 1/4|cup|\n2||eggs|beaten|2||\n1");
  EXPECT_EQ(read("~~FOR THE SAUCE~~~~"), "||FOR THE SAUCE||||\n0");
  EXPECT_EQ(read("1~L~cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
                 "e~~1~L~"),
            "1|L|cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
            "e||1|L|\n0");
}

TEST_F(IngredientRows, AnEmptyTextIsOneEmptyRow) {
  EXPECT_EQ(read(""), "||||||\n0");
}

TEST_F(IngredientRows, ReadsBrokenTextsAsFarAsTheyGo) {
  EXPECT_EQ(read("flour"), "||||||\n0");
  EXPECT_EQ(read("1~g"), "1||||||\n0");
  EXPECT_EQ(read("1~g~flour~"), "1|g|flour||||\n0");
  EXPECT_EQ(read("1~g~flour~~1~g"), "1|g|flour||1||\n0");
  EXPECT_EQ(read("1~g~flour~~1~g~x"), "1|g|flour||1|g|\n||||||\n1");
  EXPECT_EQ(read("1~g~flour~~1~g~2~cup~"), "1|g|flour||1|g|\n2|cup|||||\n1");
  EXPECT_EQ(read("1~g~salt~pepper~~1~g~2~~eggs~~2~~"), "1|g|salt|pepper||1|\ng|2||eggs||2|\n||||||\n2");
  EXPECT_EQ(read("~"), "||||||\n0");
  EXPECT_EQ(read("~~~~~~"), "||||||\n0");
  EXPECT_EQ(read("~~~~~~~"), "||||||\n||||||\n1");
}

TEST_F(IngredientRows, ReadingDropsTheRowsBefore) {
  read("1~g~a~~1~g~2~g~b~~2~g~");
  EXPECT_EQ(read("3~g~c~~3~g~"), "3|g|c||3|g|\n0");
}

TEST_F(IngredientRows, ResetLeavesOneEmptyRowAndTheIndexHandedIn) {
  read("1~g~a~~1~g~2~g~b~~2~g~");
  resetIngredientRows(run, -1);
  EXPECT_EQ(run.GLOBAL.gIngredientRows, std::vector<IngredientRow>(1));
  EXPECT_EQ(run.GLOBAL.gIngredientLast, -1);
}

class BracketedWeight : public MeasuresTest {
 protected:
  /// Columns 1 and 2 of a row of 2 of the unit after the weight was applied; the entered columns must stay.
  std::string weighed(const std::string& unit) {
    IngredientRow row = entered("2", unit);
    applyBracketedWeight(run, row);
    EXPECT_EQ(row[5], "2");
    EXPECT_EQ(row[6], unit);
    return row[1] + " " + row[2];
  }
};

TEST_F(BracketedWeight, ReplacesTheQuantityByTheWeightOfOneUnit) {
  const std::pair<const char*, std::string_view> weights[] = {
      {"can (400 g)", "400000 mg"},
      {"can (400g)", "400000 mg"},
      {"can (8 oz)", "226796.185 mg"},
      {"can (1 lb)", "453592.37 mg"},
      {"tab (75 mg)", "75 mg"},
      {"tab (7.50 mg)", "7.50 mg"},
      {"bag (5 cg)", "50 mg"},
      {"can (.5 lb)", "226796.185 mg"},
      {"(3 oz)", "85048.569375 mg"},
      {"can (1,000 g)", "1000000 mg"},
      {"can (400 g) opened", "400000 mg"},
  };
  for (const auto& [unit, weight] : weights) EXPECT_EQ(weighed(unit), weight) << unit;
}

TEST_F(BracketedWeight, LeavesEveryOtherUnitAlone) {
  for (const std::string unit :
       {"can", "", "can (1 kg)", "can (1kg)", "can (400 ml)", "can (400 G)", "can (400 g", "can 400 g)", "can )400 g(",
        "can (oz)", "can ( oz)", "can (g)", "can (14 1/2 oz)", "can (1/2 lb)", "can (a) (4 oz)", "can () (4 oz)",
        "can (large 400 g)", "can (400 g )"}) {
    EXPECT_EQ(weighed(unit), "2 " + unit);
  }
}

TEST_F(BracketedWeight, TheFirstTextOfTheTableThatTheUnitContainsCounts) {
  EXPECT_EQ(weighed("can (400 g) (14 oz)"), "11339809.25 mg");
  EXPECT_EQ(weighed("can (4000 g) (14 lb)"), "1814369480 mg");
  EXPECT_EQ(weighed("can (14 oz) (400 g)"), "396893.32375 mg");
}

TEST_F(BracketedWeight, CountsCharactersInFrontOfTheBracket) {
  EXPECT_EQ(weighed("p\xC3\xA2t\xC3\xA9 (400 g)"), "400000 mg");
}

TEST_F(BracketedWeight, KeepsWhatItFoundInTheSharedFields) {
  weighed("can (400 g)");
  EXPECT_EQ(run.GLOBAL.gBracketOpen, 5);
  EXPECT_EQ(run.GLOBAL.gBracketClose, 11);
  EXPECT_EQ(run.GLOBAL.gBracketAmount, "400");
  EXPECT_EQ(run.GLOBAL.gBracketUnit, "g");
  weighed("can (1 kg)");
  EXPECT_EQ(run.GLOBAL.gBracketAmount, "1 k");
  EXPECT_EQ(run.GLOBAL.gBracketUnit, "");
  weighed("can");
  EXPECT_EQ(run.GLOBAL.gBracketAmount, "");
  EXPECT_EQ(run.GLOBAL.gBracketOpen, 0);
}

}  // namespace
}  // namespace pantrigo
