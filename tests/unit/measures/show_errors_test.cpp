#include "measures/show_ingredients.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

using Lines = std::vector<std::string>;

class ScaledIngredients : public MeasuresTest {
 protected:
  /// The line of two bags under the options, for a recipe that serves so many.
  std::string line(const Options& options, const Value& serves, const Value& makes = false) {
    setOptions(options);
    recipe->fields["Serves"] = serves;
    setRows({entered("2", "bag", "rice")});
    return shown(makes).front();
  }

  const Options forSix{{"SettingsIngredients", true}, {"Settings", 6}};
};

TEST_F(ScaledIngredients, ScaleFromTheServingsToTheSettings) {
  EXPECT_EQ(line(forSix, 4), "3 bags rice");
  EXPECT_EQ(line(forSix, 12), "1 bag rice");
  EXPECT_EQ(line(forSix, 2.5), "4.8 bags rice");
  EXPECT_EQ(line({{"SettingsIngredients", true}, {"Settings", 0.5}}, 2), "0.5 bag rice");
  EXPECT_EQ(line({{"SettingsIngredients", true}, {"Settings", 0}}, 2), "bag rice");
  EXPECT_EQ(line({{"SettingsIngredients", true}, {"Settings", 1}}, 3), "0.7 bag rice");
}

TEST_F(ScaledIngredients, ACupIsScaledBeforeItClimbs) {
  setOptions({{"SettingsIngredients", true}, {"Settings", 6}, {"Fractions", true}, {"PartialFractions", "2"}});
  recipe->fields["Serves"] = 4;
  setRows({entered("1", "cup", "milk")});
  EXPECT_EQ(shown(), Lines{"1 1/2 cups milk"});
  EXPECT_EQ(shown(true), Lines{"2 cup milk"});
}

TEST_F(ScaledIngredients, NothingIsScaledWithoutServingsOrSettings) {
  for (const Value& serves : {Value(), Value(0), Value(-4)}) EXPECT_EQ(line(forSix, serves), "2 bags rice");
  EXPECT_EQ(line({{"SettingsIngredients", true}, {"Settings", Value()}}, 4), "2 bags rice");
  for (const Value& off : {Value(false), Value()})
    EXPECT_EQ(line({{"SettingsIngredients", off}, {"Settings", 6}}, 4), "2 bags rice");
}

TEST_F(ScaledIngredients, ARecipeThatMakesANumberOfThingsIsNotScaled) {
  EXPECT_EQ(line(forSix, 4, true), "2 bags rice");
  for (const Value& makes : {Value(false), Value(0), Value(), Value("unreadable")})
    EXPECT_EQ(line(forSix, 4, makes), "3 bags rice");
}

TEST_F(ScaledIngredients, PaperIsScaledAndTheShoppingListIsNot) {
  line(forSix, 4);
  subShowIngredients(run, "p", false);
  subShowIngredients(run, "l", 0);
  const std::string margin(16, ' ');
  EXPECT_EQ(toolkit.paper.lines, (Lines{margin + "3 bags rice", margin + "2 bags rice"}));
}

/// Statements that fail, each skipped alone.
class IgnoredErrors : public MeasuresTest {
 protected:
  std::string line(std::string_view quantity, std::string_view unit) {
    setRows({entered(quantity, unit, "x")});
    return shown().front();
  }
};

TEST_F(IgnoredErrors, ServingsThatCannotBeReadScaleNothing) {
  setOptions({{"SettingsIngredients", true}, {"Settings", 6}});
  recipe->fields.erase("Serves");
  EXPECT_EQ(line("2", "bag"), "2 bags x");
  run.GLOBAL.gRecipe = Recordset();
  EXPECT_EQ(line("2", "bag"), "2 bags x");
}

TEST_F(IgnoredErrors, AnUnreadableQuantityKeepsItsUnitAndShowsNoAmount) {
  for (const std::string quantity : {"few", " ", "$", "/"}) {
    EXPECT_EQ(line(quantity, "cup"), "cup x");
    EXPECT_EQ(line(quantity, "bag"), "bag x");
  }
  EXPECT_EQ(line("", "cup"), "cup x");
  EXPECT_EQ(line("", "kg"), "kg x");
}

TEST_F(IgnoredErrors, AQuantityThatDoesNotConvertCountsByItsLeadingNumber) {
  EXPECT_EQ(line("5/10", "cup"), "5 cups x");
  EXPECT_EQ(line("3 big", "kg"), "3 kg x");
  EXPECT_EQ(line("2-1/2", "kg"), "2 kg x");
  EXPECT_EQ(line("1 000", "g"), "1 kg x");
}

TEST_F(IgnoredErrors, ACupOrTablespoonOfNothingEndsTheClimbThere) {
  setOptions({{"Tablespoon", 0}});
  EXPECT_EQ(line("3", "tsp"), "3 tsp x");
  EXPECT_EQ(line("2", "kg"), "2 kg x");
  setOptions({{"Cup", 0}});
  EXPECT_EQ(line("6", "tsp"), "2 tbsp x");
  EXPECT_EQ(line("2", "cup"), "tsp x");
}

TEST_F(IgnoredErrors, ACupOrTablespoonThatWasNeverSetStopsOnlyItsOwnUnits) {
  setOptions({{"Tablespoon", Value()}, {"Cup", Value()}});
  EXPECT_EQ(line("2", "kg"), "2 kg x");
  EXPECT_EQ(line("2", "cup"), "2 cups x");
  EXPECT_EQ(line("2", "tbsp"), "2 tbsp x");
  EXPECT_EQ(line("2", "dsp"), "2 dsp x");
  EXPECT_EQ(line("4", "tsp"), "4 tsp x");
}

TEST_F(IgnoredErrors, AnAmountBeyondASingleLeavesTheAmountBefore) {
  setRows({entered("3", "bag", "x"), entered("1e39", "bag", "y")});
  EXPECT_EQ(shown(), (Lines{"3 bags x", "3 bags y"}));
}

TEST_F(IgnoredErrors, ALineThatThePrinterRefusesCostsNoOtherLine) {
  const std::vector<IngredientRow> rows{entered("1", "bag", "a"), entered("2", "bag", "b")};
  setRows(rows);
  toolkit.paper.refuse(1);
  subShowIngredients(run, "p", false);
  ASSERT_EQ(toolkit.paper.lines.size(), 1U);
  EXPECT_TRUE(toolkit.paper.lines[0].ends_with("2 bags b"));
  EXPECT_EQ(run.GLOBAL.gIngredientRows, rows);
}

}  // namespace
}  // namespace pantrigo
