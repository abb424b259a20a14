#include "measures/unit_ladder.h"
#include "platform/text/numbers.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

struct Step {
  const char* unit;
  float quantity;
  std::string_view result;
};

class Ladder : public MeasuresTest {
 protected:
  std::string climbed(std::string unit, float quantity, std::string_view measurement = "m") {
    subClimbLadder(run, unit, quantity, measurement);
    return plainText(quantity) + " " + unit;
  }

  template <std::size_t Count>
  void expectSteps(const Step (&steps)[Count], std::string_view measurement = "m") {
    for (const Step& step : steps)
      EXPECT_EQ(climbed(step.unit, step.quantity, measurement), step.result) << step.quantity << " " << step.unit;
  }

  /// The error of the call, with the amount as it stands afterwards.
  std::string failed(std::string unit, float quantity) {
    const int error = errorOf([&] { subClimbLadder(run, unit, quantity, "m"); });
    return Value(error).text() + ": " + plainText(quantity) + " " + unit;
  }
};

TEST_F(Ladder, ImperialVolumesClimbFromTheirLimitOn) {
  constexpr Step steps[] = {
      {"UK fl oz", 19.99998F, "19.99998 UK fl oz"},
      {"UK fl oz", 19.99999F, "1 UK pint"},
      {"UK fl oz", 20, "1 UK pint"},
      {"UK pint", 2, "2 UK pint"},
      {"UK pint", 2.000001F, "1 UK qrt"},
      {"UK qrt", 4, "4 UK qrt"},
      {"UK qrt", 4.000001F, "4.000001 UK qrt"},
      {"UK qrt", 4.000002F, "1 UK gal"},
      {"UK fl oz", 40, "1 UK qrt"},
      {"US fl oz", 15.99999F, "15.99999 US fl oz"},
      {"US fl oz", 16, "1 US pint"},
      {"US pint", 2, "2 US pint"},
      {"US pint", 2.000001F, "1 US qrt"},
      {"US qrt", 3.999999F, "3.999999 US qrt"},
      {"US qrt", 4, "1 US gal"},
      {"US fl oz", 32, "2 US pint"},
      {"US fl oz", 64, "2 US qrt"},
      {"US fl oz", 100, "3.125 US qrt"},
      {"UK gal", 1000, "1000 UK gal"},
      {"US gal", 1000, "1000 US gal"},
  };
  expectSteps(steps, "i");
  expectSteps(steps, "u");
}

TEST_F(Ladder, ImperialWeightsAndLengthsClimbFromTheirLimitOn) {
  constexpr Step steps[] = {
      {"oz", 15.99999F, "15.99999 oz"},
      {"oz", 16, "1 lb"},
      {"lb", 13.99999F, "13.99999 lb"},
      {"lb", 14, "1 stone"},
      {"oz", 224, "1 stone"},
      {"oz", 223, "13.9375 lb"},
      {"stone", 1000, "1000 stone"},
      {"in", 11.99999F, "11.99999 in"},
      {"in", 12, "1 ft"},
      {"ft", 2.999999F, "2.999999 ft"},
      {"ft", 3, "1 yd"},
      {"in", 36, "1 yd"},
      {"in", 35, "2.916667 ft"},
      {"yd", 5000, "5000 yd"},
  };
  expectSteps(steps, "i");
  expectSteps(steps, "u");
}

TEST_F(Ladder, MetricUnitsClimbOverTheCentiLevel) {
  constexpr Step steps[] = {
      {"mL", 9.999999F, "9.999999 mL"},
      {"mL", 10, "1 cL"},
      {"cL", 99.99999F, "99.99999 cL"},
      {"cL", 100, "1 L"},
      {"mL", 1000, "1 L"},
      {"mL", 999, "99.9 cL"},
      {"mm", 9.999999F, "9.999999 mm"},
      {"mm", 10, "1 cm"},
      {"cm", 99.99999F, "99.99999 cm"},
      {"cm", 100, "1 m"},
      {"mm", 1000, "1 m"},
      {"mg", 9.999999F, "9.999999 mg"},
      {"mg", 10, "1 cg"},
      {"mg", 15, "1.5 cg"},
      {"cg", 99.99999F, "99.99999 cg"},
      {"cg", 100, "1 g"},
      {"g", 999.9999F, "999.9999 g"},
      {"g", 1000, "1 kg"},
      {"mg", 1.2E7F, "12 kg"},
      {"mg", 226796.185F, "226.7962 g"},
      {"L", 5000, "5000 L"},
      {"m", 5000, "5000 m"},
      {"kg", 5000, "5000 kg"},
      {"mL", 473.17647F, "47.31765 cL"},
  };
  expectSteps(steps);
}

TEST_F(Ladder, ASkippedCentiLevelIsSteppedOver) {
  setOptions({{"Centilitres", true}, {"Centimetres", true}, {"Centigrams", true}});
  constexpr Step steps[] = {
      {"mL", 10, "10 mL"},
      {"mL", 999.9999F, "999.9999 mL"},
      {"mL", 1000, "1 L"},
      {"mm", 10, "10 mm"},
      {"mm", 999.9999F, "999.9999 mm"},
      {"mm", 1000, "1 m"},
      {"mg", 10, "10 mg"},
      {"mg", 500, "500 mg"},
      {"mg", 1500, "1.5 g"},
      {"mg", 999.9999F, "999.9999 mg"},
      {"mg", 1000, "1 g"},
      {"cL", 100, "1 L"},
      {"cL", 99, "99 cL"},
      {"cg", 100, "1 g"},
      {"mg", 1E6F, "1 kg"},
  };
  expectSteps(steps);
}

TEST_F(Ladder, EachCentiLevelHasItsOwnOption) {
  const std::pair<const char*, const char*> levels[] = {
      {"Centilitres", "mL"}, {"Centimetres", "mm"}, {"Centigrams", "mg"}};
  for (const auto& [option, unit] : levels) {
    setOptions({{option, true}});
    for (const auto& level : levels) {
      const bool skipped = unit == std::string_view(level.second);
      EXPECT_EQ(climbed(level.second, 20).starts_with("20 "), skipped) << option << ", " << level.second;
    }
    setOptions({{option, Value()}});
    EXPECT_TRUE(climbed(unit, 20).starts_with("2 c")) << option;
  }
}

TEST_F(Ladder, SpoonsClimbByTheTablespoon) {
  constexpr Step steps[] = {
      {"pgx", 5, "1 tsp"},       {"pgx", 0.5F, "0.1 tsp"},
      {"pgx", 0, "0 tsp"},       {"tsp", 2.999999F, "2.999999 tsp"},
      {"tsp", 3, "1 tbsp"},      {"dsp", 1.499999F, "1.499999 dsp"},
      {"dsp", 1.5F, "1 tbsp"},   {"dsp", 0.5F, "0.5 dsp"},
      {"pgx", 15, "1 tbsp"},     {"pgx", 14, "2.8 tsp"},
      {"cup", 5000, "5000 cup"}, {"cups", 5000, "5000 cups"},
  };
  expectSteps(steps);
  setOptions({{"Tablespoon", 4}});
  constexpr Step withFour[] = {{"tsp", 3.999999F, "3.999999 tsp"},
                               {"tsp", 4, "1 tbsp"},
                               {"dsp", 1.999999F, "1.999999 dsp"},
                               {"dsp", 2, "1 tbsp"}};
  expectSteps(withFour);
}

TEST_F(Ladder, TablespoonsClimbToTheCupOfTheMeasurementHandedOver) {
  constexpr Step metric[] = {
      {"tbsp", 16.6664F, "16.6664 tbsp"}, {"tbsp", 16.66667F, "1 cup"}, {"tbsp", 50, "3 cup"}, {"tbsp", 25, "1.5 cup"}};
  expectSteps(metric);
  setOptions({{"Cup", 10}});
  constexpr Step imperial[] = {
      {"tbsp", 18.942F, "18.942 tbsp"}, {"tbsp", 18.94205F, "1 cup"}, {"tbsp", 37.88408F, "2 cup"}};
  expectSteps(imperial, "i");
  setOptions({{"Cup", 8}, {"Measurement", "m"}});
  constexpr Step american[] = {
      {"tbsp", 15.7725F, "15.7725 tbsp"}, {"tbsp", 15.77255F, "1 cup"}, {"tbsp", 31.5451F, "2 cup"}};
  expectSteps(american, "u");
}

TEST_F(Ladder, OneWholeCupIsACupInTheSystemThatDefinesIt) {
  struct {
    const char* measurement;
    Value cup;
    float base;
  } const cups[] = {{"m", 250, 250.0F}, {"i", 10, 284.1306F}, {"i", 8, 227.30448F}, {"u", 8, 236.58824F}};
  for (const auto& row : cups) {
    setOptions({{"Cup", row.cup}});
    EXPECT_EQ(climbed("pgx", row.base, row.measurement), "1 cup") << row.measurement << ", " << row.cup.text();
  }
}

TEST_F(Ladder, EachStepGoesByTheSevenDigitTextOfASingle) {
  EXPECT_EQ(climbed("in", static_cast<float>(304.8F * 0.03937007)), "1 ft");
  EXPECT_EQ(climbed("pgx", 0.1666667F), "3.333334E-02 tsp");
  EXPECT_EQ(climbed("mg", 12000000), "12 kg");
  setOptions({{"Cup", 8}});
  EXPECT_EQ(climbed("pgx", 709.76472F, "u"), "2.999999 cup");
}

TEST_F(Ladder, EveryOtherWordEndsTheClimbAtOnce) {
  for (const std::string unit : {"", "bag", "l", "Mg", "fl oz", "pint", "can (400 g)"})
    EXPECT_EQ(climbed(unit, 5000), "5000 " + unit);
}

TEST_F(Ladder, ASizeOfNothingLeavesTheStepBefore) {
  setOptions({{"Tablespoon", 0}});
  EXPECT_EQ(failed("pgx", 15), "11: 3 tsp");
  EXPECT_EQ(failed("tsp", 0), "6: 0 tsp");
  EXPECT_EQ(failed("dsp", 2), "11: 2 dsp");
  EXPECT_EQ(failed("tbsp", 2), "11: 2 tbsp");
  setOptions({{"Cup", 0}});
  EXPECT_EQ(failed("pgx", 15), "11: 1 tbsp");
  EXPECT_EQ(failed("tbsp", 0), "6: 0 tbsp");
  setOptions({{"Cup", 0}, {"Tablespoon", 0}});
  EXPECT_EQ(failed("tbsp", 2), "6: 2 tbsp");
}

TEST_F(Ladder, ASizeThatWasNeverSetFailsOnlyWhereItIsNeeded) {
  setOptions({{"Cup", Value()}, {"Tablespoon", Value()}});
  EXPECT_EQ(failed("pgx", 15), "94: 3 tsp");
  EXPECT_EQ(failed("tbsp", 20), "94: 20 tbsp");
  EXPECT_EQ(failed("mg", 2000), "0: 2 g");
  setOptions({{"Cup", Value()}});
  EXPECT_EQ(failed("pgx", 15), "94: 1 tbsp");
}

}  // namespace
}  // namespace pantrigo
