#include <algorithm>

#include "measures/unit_ladder.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

struct Kept {
  std::string_view measurement;
  std::vector<std::string> units;
};

const std::vector<std::string> unitsWithARule{
    "UK pint", "UK qrt", "UK gal", "US pint", "US qrt", "US gal", "lb",  "stone", "ft",   "yd",  "cL",
    "L",       "cm",     "m",      "cg",      "g",      "kg",     "cup", "cups",  "tbsp", "dsp", "tsp"};

/// An amount below 1 in the unit as the user entered it.
class KeepOriginal : public MeasuresTest {
 protected:
  KeepOriginal() { setOptions({{"UseOriginalUOM", true}}); }

  std::string converted(std::string unit, Value quantity, std::string_view measurement, std::string_view mode = "s") {
    subConvertToBase(run, unit, quantity, 8, 3, measurement, mode);
    return quantity.text() + " " + unit;
  }

  bool keeps(const std::string& unit, const std::string& quantity, std::string_view measurement,
             std::string_view mode = "s") {
    return converted(unit, quantity, measurement, mode) == quantity + " " + unit;
  }
};

TEST_F(KeepOriginal, KeepsExactlyTheUnitsOfTheListOfTheMeasurement) {
  const Kept lists[] = {
      {"m", {"kg", "g", "L", "m", "cup", "tbsp", "dsp", "cg", "cm", "cL"}},
      {"u", {"US pint", "US qrt", "US gal", "lb", "stone", "ft", "yd", "cup", "tbsp", "dsp"}},
      {"i", {"UK pint", "UK qrt", "UK gal", "lb", "stone", "ft", "yd", "cup", "tbsp", "dsp"}},
      {"", {}},
      {"M", {}},
  };
  for (const Kept& list : lists) {
    for (const std::string& unit : unitsWithARule) {
      const bool listed = std::find(list.units.begin(), list.units.end(), unit) != list.units.end();
      EXPECT_EQ(keeps(unit, ".5", list.measurement), listed) << list.measurement << ", " << unit;
    }
  }
}

TEST_F(KeepOriginal, KeepsAmountsBelowOneOnly) {
  for (const char* quantity : {".999999", "0.5", "0", "-3", "(5)"}) EXPECT_TRUE(keeps("kg", quantity, "m")) << quantity;
  for (const char* quantity : {"1", "1.000001", "2", "1,000"}) EXPECT_FALSE(keeps("kg", quantity, "m")) << quantity;
  EXPECT_EQ(converted("kg", 0.5, "m"), "0.5 kg");
  EXPECT_EQ(converted("kg", 2, "m"), "2000000 mg");
}

TEST_F(KeepOriginal, TheShoppingListKeepsNothing) {
  for (const char* mode : {"s", "p", " "}) EXPECT_TRUE(keeps("lb", ".5", "i", mode)) << mode;
  EXPECT_EQ(converted("lb", ".5", "i", "l"), "226796.185 mg");
  setOptions({{"UseOriginalUOM", true}, {"Centigrams", true}});
  EXPECT_EQ(converted("cm", ".5", "m", "l"), "5 mm");
}

TEST_F(KeepOriginal, WithoutTheOptionNothingIsKept) {
  for (const Value& off : {Value(false), Value()}) {
    setOptions({{"UseOriginalUOM", off}});
    EXPECT_EQ(converted("kg", ".5", "m"), "500000 mg");
    EXPECT_EQ(converted("cm", ".5", "m"), "5 mm");
  }
}

TEST_F(KeepOriginal, SkippedCentiLevelsDivideInTheirOwnWay) {
  setOptions({{"UseOriginalUOM", true}, {"Centigrams", true}});
  EXPECT_EQ(converted("cg", ".5", "m"), "0.005 g");
  EXPECT_EQ(converted("cm", ".5", "m"), "0.05 mm");
  EXPECT_EQ(converted("cL", ".5", "m"), "0.05 mL");
  EXPECT_EQ(converted("cm", "1", "m"), "10 mm");
  EXPECT_EQ(converted("cm", ".5", "u"), "5 mm");
}

TEST_F(KeepOriginal, OneOptionServesAllThreeCentiUnits) {
  for (const Value& centigrams : {Value(false), Value()}) {
    setOptions({{"UseOriginalUOM", true}, {"Centigrams", centigrams}, {"Centimetres", true}, {"Centilitres", true}});
    for (const char* unit : {"cg", "cm", "cL"}) EXPECT_TRUE(keeps(unit, ".5", "m")) << unit;
  }
}

TEST_F(KeepOriginal, GoesByTheMeasurementHandedOver) {
  setOptions({{"UseOriginalUOM", true}, {"Measurement", "u"}});
  EXPECT_TRUE(keeps("kg", ".5", "m"));
  EXPECT_FALSE(keeps("lb", ".5", "m"));
}

}  // namespace
}  // namespace pantrigo
