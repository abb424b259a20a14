#include "measures/unit_ladder.h"
#include "platform/text/numbers.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

/// Amounts that take the whole road: down to the base unit, across to the chosen system, and up again.
class Road : public MeasuresTest {
 protected:
  std::string travelled(const char* quantity, std::string unit, float factor = 1) {
    const Value cup = system->fields["Cup"];
    const Value tablespoon = system->fields["Tablespoon"];
    const std::string measurement = system->fields["Measurement"].text();
    Value base(quantity);
    subConvertToBase(run, unit, base, cup, tablespoon, measurement, "s");
    auto amount = static_cast<float>(base.number());
    amount *= factor;
    subConvertSystem(run, unit, amount);
    subClimbLadder(run, unit, amount, measurement);
    return plainText(amount) + " " + unit;
  }
};

struct Journey {
  const char* quantity;
  const char* unit;
  std::string_view arrival;
};

TEST_F(Road, ToMetric) {
  constexpr Journey journeys[] = {
      {"1", "cup", "1 cup"},
      {"12", "kg", "12 kg"},
      {"2", "kg", "2 kg"},
      {".5", "lb", "226.7962 g"},
      {"1", "UK pint", "47.31765 cL"},
      {"1", "US pint", "47.31765 cL"},
      {"1", "in", "2.54 cm"},
      {"1", "oz", "28.34952 g"},
      {"1", "UK fl oz", "2.841306 cL"},
      {"1", "US fl oz", "2.957353 cL"},
      {"1", "yd", "91.44 cm"},
      {"1,000", "g", "1 kg"},
      {".5", "tsp", "0.5 tsp"},
      {"1", "dsp", "1.5 tsp"},
      {"2", "dsp", "1 tbsp"},
      {"3", "bag", "3 bag"},
      {"16", "tbsp", "16 tbsp"},
      {"17", "tbsp", "1.02 cup"},
  };
  for (const Journey& journey : journeys)
    EXPECT_EQ(travelled(journey.quantity, journey.unit), journey.arrival) << journey.unit;
}

TEST_F(Road, ToUSImperial) {
  setOptions({{"Measurement", "u"}, {"Cup", 8}});
  constexpr Journey journeys[] = {
      {"1", "lb", "1 lb"},           {"1", "ft", "1 ft"},
      {"1", "stone", "1 stone"},     {"1", "yd", "2.999999 ft"},
      {"1", "US pint", "1 US pint"}, {"1", "US qrt", "2 US pint"},
      {"1", "US gal", "1 US gal"},   {"3", "cup", "2.999999 cup"},
      {"1", "cup", "1 cup"},         {"100", "mL", "3.381402 US fl oz"},
  };
  for (const Journey& journey : journeys)
    EXPECT_EQ(travelled(journey.quantity, journey.unit), journey.arrival) << journey.unit;
}

TEST_F(Road, ToUKImperial) {
  setOptions({{"Measurement", "i"}, {"Cup", 10}});
  constexpr Journey journeys[] = {
      {"1", "UK pint", "16.65348 UK fl oz"},
      {"1", "UK qrt", "1 UK qrt"},
      {"1", "UK gal", "1 UK gal"},
      {"1", "lb", "1 lb"},
      {"1", "cup", "1 cup"},
      {"1", "L", "1.759755 UK pint"},
      {"224", "oz", "1 stone"},
      {"223", "oz", "13.9375 lb"},
  };
  for (const Journey& journey : journeys)
    EXPECT_EQ(travelled(journey.quantity, journey.unit), journey.arrival) << journey.unit;
  setOptions({{"Measurement", "i"}, {"Cup", 8}});
  EXPECT_EQ(travelled("1", "cup"), "1 cup");
}

TEST_F(Road, ToASmallerParty) {
  EXPECT_EQ(travelled("0.1", "tsp", 1.0F / 3), "3.333334E-02 tsp");
}

TEST_F(Road, AnAmountThatIsKeptClimbsFromItsOwnUnit) {
  setOptions({{"UseOriginalUOM", true}});
  constexpr Journey journeys[] = {
      {".5", "kg", "0.5 kg"},   {".5", "dsp", "0.5 dsp"},   {".5", "cm", "0.5 cm"},
      {".5", "tsp", "0.5 tsp"}, {".5", "lb", "226.7962 g"}, {"2", "kg", "2 kg"},
  };
  for (const Journey& journey : journeys)
    EXPECT_EQ(travelled(journey.quantity, journey.unit), journey.arrival) << journey.unit;
  setOptions({{"UseOriginalUOM", true}, {"Centigrams", true}});
  EXPECT_EQ(travelled(".5", "cm"), "0.05 mm");
}

}  // namespace
}  // namespace pantrigo
