#include "measures/unit_ladder.h"
#include "platform/text/numbers.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

class SystemConversion : public MeasuresTest {
 protected:
  std::string converted(const Value& measurement, std::string unit, float quantity) {
    setOptions({{"Measurement", measurement}});
    subConvertSystem(run, unit, quantity);
    return plainText(quantity) + " " + unit;
  }
};

TEST_F(SystemConversion, EachMeasurementHasItsFactors) {
  struct {
    const char* measurement;
    const char* unit;
    float quantity;
    std::string_view result;
  } const rows[] = {
      {"m", "UK fl oz", 1, "28.41306 mL"},
      {"m", "UK fl oz", 2, "56.82612 mL"},
      {"m", "US fl oz", 1, "29.57353 mL"},
      {"m", "US fl oz", 2, "59.14706 mL"},
      {"m", "oz", 1, "28349.52 mg"},
      {"m", "oz", 2, "56699.05 mg"},
      {"m", "in", 1, "25.4 mm"},
      {"m", "in", 2, "50.8 mm"},
      {"i", "mL", 100, "3.519508 UK fl oz"},
      {"i", "mL", 1000, "35.19508 UK fl oz"},
      {"i", "US fl oz", 1, "1.040843 UK fl oz"},
      {"i", "US fl oz", 2, "2.081686 UK fl oz"},
      {"i", "mg", 1000, "3.527396E-02 oz"},
      {"i", "mg", 453592.37F, "16 oz"},
      {"i", "mm", 100, "3.937007 in"},
      {"u", "mL", 100, "3.381402 US fl oz"},
      {"u", "mL", 1000, "33.81402 US fl oz"},
      {"u", "UK fl oz", 1, "0.9607598 US fl oz"},
      {"u", "mg", 1000, "3.527396E-02 oz"},
      {"u", "mg", 453592.37F, "16 oz"},
      {"u", "mm", 100, "3.937007 in"},
      {"i", "mL", 473.17647F, "16.65348 UK fl oz"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(converted(row.measurement, row.unit, row.quantity), row.result) << row.measurement;
}

TEST_F(SystemConversion, EveryOtherUnitStays) {
  struct {
    const char* measurement;
    std::vector<std::string> units;
  } const rows[] = {
      {"m", {"mL", "mg", "mm", "cL", "g", "pgx", "tsp", "cup", "lb", "kg", "bag", ""}},
      {"i", {"UK fl oz", "oz", "in", "UK pint", "US pint", "cL", "g", "cm", "pgx", "cup", "bag", ""}},
      {"u", {"US fl oz", "oz", "in", "UK pint", "US pint", "cL", "g", "cm", "pgx", "cup", "bag", ""}},
      {"", {"mL", "mg", "mm", "UK fl oz", "US fl oz", "oz", "in"}},
  };
  for (const auto& row : rows) {
    for (const std::string& unit : row.units)
      EXPECT_EQ(converted(row.measurement, unit, 2), "2 " + unit) << row.measurement;
  }
}

TEST_F(SystemConversion, AMeasurementThatWasNeverSetConvertsNothing) {
  EXPECT_EQ(converted(Value(), "mL", 2), "2 mL");
  EXPECT_EQ(converted(Value(), "oz", 2), "2 oz");
}

}  // namespace
}  // namespace pantrigo
