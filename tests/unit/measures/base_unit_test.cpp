#include "measures/unit_ladder.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

/// What a call of the way down is handed besides the row.
struct Call {
  Value cup = 250;
  Value tablespoon = 3;
  std::string_view measurement = "m";
  std::string_view mode = " ";
};

class BaseUnit : public MeasuresTest {
 protected:
  /// The quantity's text, a blank and the unit after the call.
  std::string converted(std::string unit, Value quantity, const Call& call = {}) {
    subConvertToBase(run, unit, quantity, call.cup, call.tablespoon, call.measurement, call.mode);
    return quantity.text() + " " + unit;
  }

  /// The error of the call, with the row as it stands afterwards.
  std::string failed(std::string unit, Value quantity, const Call& call = {}) {
    const int error =
        errorOf([&] { subConvertToBase(run, unit, quantity, call.cup, call.tablespoon, call.measurement, call.mode); });
    return Value(error).text() + ": " + quantity.text() + " " + unit;
  }
};

TEST_F(BaseUnit, EachUnitHasItsFactor) {
  struct {
    const char* unit;
    std::string_view one;
    std::string_view two;
    std::string_view base;
  } const rows[] = {
      {"UK pint", "473.17647", "946.35294", "mL"},
      {"UK qrt", "1136.5225", "2273.045", "mL"},
      {"UK gal", "4546.092", "9092.184", "mL"},
      {"US pint", "473.17647", "946.35294", "mL"},
      {"US qrt", "946.35295", "1892.7059", "mL"},
      {"US gal", "3785.4118", "7570.8236", "mL"},
      {"lb", "453592.37", "907184.74", "mg"},
      {"stone", "6350293.18", "12700586.36", "mg"},
      {"ft", "304.8", "609.6", "mm"},
      {"yd", "914.4", "1828.8", "mm"},
      {"cL", "10", "20", "mL"},
      {"L", "1000", "2000", "mL"},
      {"cm", "10", "20", "mm"},
      {"m", "1000", "2000", "mm"},
      {"cg", "10", "20", "mg"},
      {"g", "1000", "2000", "mg"},
      {"kg", "1000000", "2000000", "mg"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(converted(row.unit, "1"), std::string(row.one) + " " + std::string(row.base));
    EXPECT_EQ(converted(row.unit, 2), std::string(row.two) + " " + std::string(row.base));
  }
}

TEST_F(BaseUnit, ABaseAmountIsADoubleOfFifteenDigits) {
  EXPECT_EQ(converted("lb", ".5"), "226796.185 mg");
  EXPECT_EQ(converted("lb", "0.3125"), "141747.615625 mg");
  EXPECT_EQ(converted("kg", "12"), "12000000 mg");
  EXPECT_EQ(converted("g", ".25"), "250 mg");
}

TEST_F(BaseUnit, AUnitWithoutARuleLeavesTheRowToTheLetter) {
  for (const char* unit : {"mL", "mg", "mm", "oz", "in", "UK fl oz", "US fl oz", "pgx", "bag",  "can (400 g)", "",
                           "l",  "M",  "Kg", "ml", "LB", "Cup",      "tsps",     " g",  "pint", "fl oz"}) {
    for (const char* quantity : {".25", "1.50", "1,000", ""})
      EXPECT_EQ(converted(unit, quantity), std::string(quantity) + " " + unit);
  }
}

TEST_F(BaseUnit, CupsGoByTheSizeHandedOver) {
  struct {
    Call call;
    std::string_view one;
    std::string_view three;
  } const rows[] = {
      {{.cup = 250}, "250", "750"},
      {{.cup = 10, .measurement = "i"}, "284.1306", "852.3918"},
      {{.cup = 8, .measurement = "u"}, "236.58824", "709.76472"},
      {{.cup = "1,000"}, "1000", "3000"},
      {{.cup = 0}, "0", "0"},
      {{.cup = 250, .measurement = ""}, "250", "750"},
  };
  for (const auto& row : rows) {
    for (const char* unit : {"cup", "cups"}) {
      EXPECT_EQ(converted(unit, "1", row.call), std::string(row.one) + " pgx");
      EXPECT_EQ(converted(unit, 3, row.call), std::string(row.three) + " pgx");
    }
  }
}

TEST_F(BaseUnit, SpoonsGoByTheTablespoonHandedOver) {
  struct {
    const char* unit;
    Value tablespoon;
    std::string_view two;
  } const rows[] = {
      {"tbsp", 3, "30"}, {"dsp", 3, "15"},       {"tsp", 3, "10"},    {"tbsp", 4, "40"},    {"dsp", 4, "20"},
      {"tsp", 4, "10"},  {"tsp", Value(), "10"}, {"tbsp", 3.5, "35"}, {"dsp", 3.5, "17.5"}, {"tbsp", 0, "0"},
  };
  setOptions({{"Tablespoon", 99}, {"Cup", 99}, {"Measurement", "i"}});
  for (const auto& row : rows)
    EXPECT_EQ(converted(row.unit, "2", {.tablespoon = row.tablespoon}), std::string(row.two) + " pgx");
}

TEST_F(BaseUnit, CupsAndSpoonsBecomeMillilitresWhereTheRecipeConvertsThem) {
  run.GLOBAL.gConvertCupSpoon = "1";
  EXPECT_EQ(converted("cup", "2"), "500 mL");
  EXPECT_EQ(converted("cups", "2"), "500 mL");
  EXPECT_EQ(converted("tbsp", "2"), "30 mL");
  EXPECT_EQ(converted("dsp", "2"), "15 mL");
  EXPECT_EQ(converted("tsp", "2"), "10 mL");
  EXPECT_EQ(converted("g", "2"), "2000 mg");
  run.GLOBAL.gConvertCupSpoon = "";
  EXPECT_EQ(converted("cup", "2"), "500 pgx");
}

TEST_F(BaseUnit, AQuantityTextGoesByTheWholeTextConversion) {
  EXPECT_EQ(converted("g", "1,000"), "1000000 mg");
  EXPECT_EQ(converted("g", " 2.5 "), "2500 mg");
  EXPECT_EQ(converted("g", "1e2"), "100000 mg");
  EXPECT_EQ(converted("g", "(5)"), "-5000 mg");
  EXPECT_EQ(converted("g", "-.5"), "-500 mg");
}

TEST_F(BaseUnit, ATextThatIsNoNumberFailsForEveryUnit) {
  for (const bool keep : {false, true}) {
    setOptions({{"UseOriginalUOM", keep}});
    for (const std::string unit : {"cup", "g", "lb", "tsp", "mL", "bag", ""}) {
      for (const std::string quantity : {"abc", " ", "5/10", "2-.5", "few", "1 000"}) {
        EXPECT_EQ(failed(unit, quantity), "13: " + quantity + " " + unit);
      }
    }
  }
}

TEST_F(BaseUnit, AnEmptyQuantityFailsOnAUnitWithARule) {
  for (const bool keep : {false, true}) {
    setOptions({{"UseOriginalUOM", keep}});
    for (const std::string unit :
         {"UK pint", "US gal", "lb", "yd", "cL", "cm", "cg", "kg", "cup", "cups", "tbsp", "dsp", "tsp"}) {
      EXPECT_EQ(failed(unit, ""), "13:  " + unit);
    }
    EXPECT_EQ(failed("bag", ""), "0:  bag");
    EXPECT_EQ(failed("", ""), "0:  ");
  }
}

TEST_F(BaseUnit, ASizeThatWasNeverSetFailsOnlyWhereItIsNeeded) {
  for (const std::string unit : {"cup", "cups"}) EXPECT_EQ(failed(unit, "2", {.cup = Value()}), "94: 2 " + unit);
  for (const std::string unit : {"tbsp", "dsp"}) EXPECT_EQ(failed(unit, "2", {.tablespoon = Value()}), "94: 2 " + unit);
  const Call neither{.cup = Value(), .tablespoon = Value()};
  EXPECT_EQ(converted("kg", "2", neither), "2000000 mg");
  EXPECT_EQ(converted("tsp", "2", neither), "10 pgx");
  EXPECT_EQ(converted("bag", "2", neither), "2 bag");
}

TEST_F(BaseUnit, AnAmountBeyondADoubleIsAnOverflow) {
  EXPECT_EQ(failed("kg", "1e308"), "6: 1e308 kg");
  EXPECT_EQ(failed("cup", "1e307"), "6: 1e307 cup");
}

}  // namespace
}  // namespace pantrigo
