#include "measures/show_ingredients.h"

#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

using Lines = std::vector<std::string>;

/// Where a printed line begins: column 15, and two blanks.
const std::string margin(16, ' ');

class ShowIngredients : public MeasuresTest {
 protected:
  /// The lines that a call in mode "p" or "l" prints, without the margin, which each must have.
  Lines printed(std::string_view mode) {
    toolkit.paper.lines.clear();
    subShowIngredients(run, mode, mode == "l" ? Value(0) : Value(false));
    Lines lines = toolkit.paper.lines;
    for (std::string& line : lines) {
      EXPECT_TRUE(line.starts_with(margin)) << line;
      line.erase(0, margin.size());
    }
    return lines;
  }

  /// The single screen line of one row.
  std::string line(std::string_view quantity, std::string_view unit, std::string_view description = "x",
                   std::string_view preparation = "") {
    setRows({entered(quantity, unit, description, preparation)});
    const Lines lines = shown();
    return lines.size() == 1 ? lines.front() : "(" + Value(static_cast<long>(lines.size())).text() + " lines)";
  }
};

TEST_F(ShowIngredients, JoinsQuantityUnitDescriptionAndPreparation) {
  EXPECT_EQ(line("2", "", "eggs", "beaten"), "2 eggs, beaten");
  EXPECT_EQ(line("250", "g", "flour", ""), "250 g flour");
  EXPECT_EQ(line("250", "g", "flour", "sifted"), "250 g flour, sifted");
  EXPECT_EQ(line("", "", "FOR THE SAUCE", ""), "FOR THE SAUCE");
  EXPECT_EQ(line("", "", "", "to taste"), "to taste");
  EXPECT_EQ(line("1", "pinch", "", "heaped"), "1 pinch heaped");
  EXPECT_EQ(line("", "pinch", "salt", ""), "pinch salt");
  EXPECT_EQ(line("3", "", "", ""), "3");
  EXPECT_EQ(line("", "g", "", ""), "g");
  EXPECT_EQ(line("", "", " salt ", ""), "salt");
  EXPECT_EQ(line("1", "bag", "salt ", " fine "), "1 bag salt ,  fine");
}

TEST_F(ShowIngredients, ReadsFractionsAndWritesThem) {
  EXPECT_EQ(line("1 1/2", "kg"), "1.5 kg x");
  EXPECT_EQ(line("1/2", "lb"), "226.8 g x");
  setOptions({{"Fractions", true}});
  EXPECT_EQ(line("1 1/2", "kg"), "1 1/2 kg x");
  EXPECT_EQ(line("1/2", "bag"), "1/2 bag x");
  EXPECT_EQ(line("7/8", "bag"), "9/10 bag x");
  EXPECT_EQ(line("3", "bag"), "3 bags x");
}

TEST_F(ShowIngredients, ARowWithoutItsFirstFourColumnsMakesNoLine) {
  IngredientRow row;
  row[5] = "2";
  row[6] = "cup";
  setRows({row, entered("1", "bag", "rice"), IngredientRow()});
  EXPECT_EQ(shown(), Lines{"1 bag rice"});
  EXPECT_EQ(printed("p"), Lines{"1 bag rice"});
}

TEST_F(ShowIngredients, ShowsTheRowsUpToTheLastIndex) {
  setRows({entered("1", "bag", "a"), entered("2", "bag", "b"), entered("3", "bag", "c")});
  run.GLOBAL.gIngredientLast = 1;
  EXPECT_EQ(shown(), (Lines{"1 bag a", "2 bags b"}));
  run.GLOBAL.gIngredientLast = -1;
  EXPECT_EQ(shown(), Lines{});
}

TEST_F(ShowIngredients, TheScreenListIsClearedFirstAndPaperNeverTouchesIt) {
  setRows({entered("1", "bag", "a")});
  shown();
  EXPECT_EQ(shown(), Lines{"1 bag a"});
  setRows({entered("2", "bag", "b")});
  printed("p");
  printed("l");
  EXPECT_EQ(listed(), Lines{"1 bag a"});
  toolkit.paper.lines.clear();
  shown();
  EXPECT_EQ(toolkit.paper.lines, Lines{});
}

TEST_F(ShowIngredients, ScreenAndPrinterGoByWhatWasEntered) {
  IngredientRow row = entered("2", "bag", "rice");
  row[1] = "500";
  row[2] = "mg";
  setRows({row});
  EXPECT_EQ(shown(), Lines{"2 bags rice"});
  EXPECT_EQ(printed("p"), Lines{"2 bags rice"});
  EXPECT_EQ(printed("l"), Lines{"50 cg rice"});
}

TEST_F(ShowIngredients, UnitWordsAreShortOnTheScreenAlone) {
  const std::pair<std::string, const char*> countries[] = {{"US", "u"}, {"UK", "i"}};
  for (const auto& [country, measurement] : countries) {
    setOptions({{"Measurement", measurement}});
    for (const std::string word : {"fl oz", "pint", "qrt", "gal"}) {
      setRows({entered("", country + " " + word, "milk")});
      EXPECT_EQ(shown(), Lines{word + " milk"});
      EXPECT_EQ(printed("p"), Lines{country + " " + word + " milk"});
    }
  }
}

TEST_F(ShowIngredients, ImperialAmountsReachScreenAndPaper) {
  setOptions({{"Measurement", "u"}, {"Cup", 8}});
  setRows({entered("1", "US pint", "milk"), entered("2", "US pint", "cream"), entered("3", "US gal", "stock"),
           entered("6", "US fl oz", "oil")});
  EXPECT_EQ(shown(), (Lines{"1 pint milk", "2 pints cream", "3 gal stock", "6 fl oz oil"}));
  EXPECT_EQ(printed("p"), (Lines{"1 US pint milk", "2 US pints cream", "3 US gal stock", "6 US fl oz oil"}));
  setOptions({{"Measurement", "i"}, {"Cup", 10}});
  setRows({entered("1", "UK pint", "milk"), entered("1", "L", "water")});
  EXPECT_EQ(shown(), (Lines{"16.7 fl oz milk", "1.8 pints water"}));
  EXPECT_EQ(printed("p"), (Lines{"16.7 UK fl oz milk", "1.8 UK pints water"}));
}

TEST_F(ShowIngredients, WordsOfTheTwoTablesHaveAPlural) {
  for (const std::string word : {"bag", "bar", "bottle", "can", "carton", "clove", "cube", "jar", "roll", "slice",
                                 "stem", "stick", "tube", "pint"}) {
    EXPECT_EQ(line("2", word), "2 " + word + "s x");
    EXPECT_EQ(line("1", word), "1 " + word + " x");
  }
  for (const std::string word : {"box", "bunch", "dash", "pouch"}) EXPECT_EQ(line("2", word), "2 " + word + "es x");
  EXPECT_EQ(line("2", "cup"), "2 cups x");
  setOptions({{"Measurement", "u"}});
  EXPECT_EQ(line("2", "stone"), "2 stones x");
  EXPECT_EQ(line("1", "stone"), "1 stone x");
}

TEST_F(ShowIngredients, EveryOtherWordHasNone) {
  for (const std::string word :
       {"tsp", "tbsp", "kg", "g", "L", "pinch", "Bag", "bags", "can (400 g)", "qrt", "gal", "head"}) {
    EXPECT_EQ(line("2", word), "2 " + word + " x");
  }
  setOptions({{"Measurement", "u"}});
  for (const std::string word : {"lb", "oz", "in", "ft", "yd"}) EXPECT_EQ(line("2", word), "2 " + word + " x");
}

TEST_F(ShowIngredients, ThePluralBeginsAboveAHundredthOverOne) {
  EXPECT_EQ(line("1", "bag"), "1 bag x");
  EXPECT_EQ(line("1.01", "bag"), "1.1 bag x");
  EXPECT_EQ(line("1.010001", "bag"), "1.1 bags x");
  EXPECT_EQ(line("1.02", "bag"), "1.1 bags x");
  EXPECT_EQ(line("0.5", "bag"), "0.5 bag x");
  EXPECT_EQ(line("", "bag"), "bag x");
  setOptions({{"Fractions", true}, {"PartialFractions", "2"}});
  EXPECT_EQ(line("1", "cup"), "2 cup x");
  EXPECT_EQ(line("1.01", "cup"), "1 1/2 cup x");
  EXPECT_EQ(line("1.02", "cup"), "1 1/2 cups x");
}

TEST_F(ShowIngredients, BracketedWeightsCountWhereTheRecipeConverts) {
  run.GLOBAL.gConvertCupSpoon = "1";
  EXPECT_EQ(line("2", "can (400 g)"), "400 g x");
  EXPECT_EQ(line("2", "can (1 kg)"), "2 can (1 kg) x");
  EXPECT_EQ(line("", "can (400 g)"), "400 g x");
  EXPECT_EQ(line("1", "cup"), "25 cL x");
  for (const char* notConverted : {"0", ""}) {
    run.GLOBAL.gConvertCupSpoon = notConverted;
    EXPECT_EQ(line("2", "can (400 g)"), "2 can (400 g) x");
    EXPECT_EQ(line("1", "cup"), "1 cup x");
  }
}

TEST_F(ShowIngredients, TheShoppingListWeighsBracketsToo) {
  IngredientRow row = entered("2", "can (400 g)", "tomatoes");
  row[1] = "6";
  setRows({row});
  run.GLOBAL.gConvertCupSpoon = "1";
  EXPECT_EQ(printed("l"), Lines{"400 g tomatoes"});
  run.GLOBAL.gConvertCupSpoon = "0";
  EXPECT_EQ(printed("l"), Lines{"6 can (400 g) tomatoes"});
}

TEST_F(ShowIngredients, TheShoppingListLeavesOutNotesHeadingsAndRowsWithoutAQuantity) {
  setRows({entered("2", "", "eggs", "beaten"), entered("", "", "FOR THE SAUCE"), entered("", "pinch", "salt"),
           entered("2", "", "EGGS"), entered("2", "bag", "RICE"), entered("2", "", "7"),
           entered("2", "", "", "left over"), entered("2", "", "\xC3\x89T\xC3\x89"),
           entered("2", "", "\xC3\x89t\xC3\xA9"), entered("few", "", "herbs"), entered("3", "bag", "", "of ice"),
           entered("0", "bag", "tea")});
  EXPECT_EQ(printed("l"), (Lines{"2 eggs", "2 bags RICE", "2 \xC3\x89t\xC3\xA9", "3 bags"}));
  EXPECT_EQ(printed("p").size(), 12U);
}

TEST_F(ShowIngredients, TheShoppingListKeepsNoOriginalUnit) {
  setOptions({{"UseOriginalUOM", true}});
  setRows({entered(".5", "kg", "rice")});
  EXPECT_EQ(shown(), Lines{"0.5 kg rice"});
  EXPECT_EQ(printed("l"), Lines{"500 g rice"});
}

TEST_F(ShowIngredients, AThousandsMarkCountsOnlyWhereAUnitConverts) {
  EXPECT_EQ(line("1,000", "g"), "1 kg x");
  EXPECT_EQ(line("1,000", "bag"), "1 bag x");
}

TEST_F(ShowIngredients, RowsAreAsTheyWereAfterwards) {
  std::vector<IngredientRow> rows{entered("1 1/2", "cup", "milk", "warm"), entered("2", "can (400 g)", "beans"),
                                  entered("few", "cup", "nuts"), entered("", "", "HEADING"), IngredientRow()};
  rows[0][1] = "375";
  rows[0][2] = "pgx";
  run.GLOBAL.gConvertCupSpoon = "1";
  for (const char* mode : {"s", "p", "l"}) {
    setRows(rows);
    subShowIngredients(run, mode, false);
    EXPECT_EQ(run.GLOBAL.gIngredientRows, rows) << mode;
    EXPECT_EQ(run.GLOBAL.gIngredientLast, 4);
  }
}

}  // namespace
}  // namespace pantrigo
