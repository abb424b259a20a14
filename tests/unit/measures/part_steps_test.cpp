#include "measures/quantity.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

/// A band of the part behind the whole number, both ends counted in.
struct Band {
  float from;
  float to;
  std::string_view asFraction;
  std::string_view asDecimal;
};

class PartSteps : public MeasuresTest {
 protected:
  void expectBoth(const Value& option, float amount, std::string_view asFraction, std::string_view asDecimal) {
    setOptions({{"PartialFractions", option}});
    EXPECT_EQ(funPartFraction(run, amount), asFraction) << "step " << option.text() << ", amount " << amount;
    EXPECT_EQ(funPartDecimal(run, amount), asDecimal) << "step " << option.text() << ", amount " << amount;
  }

  /// Both ends of each band, alone and behind whole numbers.
  template <std::size_t Count>
  void expectBands(const Value& option, const Band (&bands)[Count]) {
    for (const Band& band : bands) {
      for (const float whole : {0.0F, 2.0F, 40.0F}) {
        expectBoth(option, whole + band.from, band.asFraction, band.asDecimal);
        if (band.to < 1) expectBoth(option, whole + band.to, band.asFraction, band.asDecimal);
      }
    }
  }
};

TEST_F(PartSteps, TenthsRoundUpToTheNextTenth) {
  constexpr Band bands[] = {
      {0.0001F, 0.1F, "1/10", "0.1"}, {0.1001F, 0.2F, "1/5", "0.2"}, {0.2001F, 0.3F, "3/10", "0.3"},
      {0.3001F, 0.4F, "2/5", "0.4"},  {0.4001F, 0.5F, "1/2", "0.5"}, {0.5001F, 0.6F, "3/5", "0.6"},
      {0.6001F, 0.7F, "7/10", "0.7"}, {0.7001F, 0.8F, "4/5", "0.8"}, {0.8001F, 0.9F, "9/10", "0.9"},
      {0.9001F, 0.9999F, "1", "1"},
  };
  expectBands("1", bands);
}

TEST_F(PartSteps, QuartersRoundUpToTheNextQuarter) {
  constexpr Band bands[] = {
      {0.0001F, 0.25F, "1/4", "0.25"},
      {0.2501F, 0.5F, "1/2", "0.5"},
      {0.5001F, 0.75F, "3/4", "0.75"},
      {0.7501F, 0.9999F, "1", "1"},
  };
  expectBands("4", bands);
}

TEST_F(PartSteps, ThirdsAsFractionsNeverRoundUpToTheNextWholeNumber) {
  constexpr Band bands[] = {
      {0.0001F, 0.3333F, "1/3", "0.3333"},
      {0.3334F, 0.6666F, "2/3", "0.6666"},
      {0.6667F, 0.9999F, "2/3", "1"},
  };
  expectBands("3", bands);
}

TEST_F(PartSteps, HalvesStandForEveryOtherOption) {
  constexpr Band bands[] = {{0.0001F, 0.5F, "1/2", "0.5"}, {0.5001F, 0.9999F, "1", "1"}};
  for (const Value& option : {Value("2"), Value(), Value(""), Value("5"), Value("1 "), Value("10")})
    expectBands(option, bands);
}

TEST_F(PartSteps, AWholeAmountHasNoPartButInHalves) {
  for (const float amount : {0.0F, 1.0F, 2.0F, 1000.0F}) {
    for (const char* option : {"1", "4", "3"}) expectBoth(option, amount, "0", "0");
    expectBoth("2", amount, "1", "1");
  }
}

TEST_F(PartSteps, TheBandsGoByTheValueRoundedToFourPlaces) {
  struct {
    const char* option;
    float amount;
    std::string_view asFraction;
    std::string_view asDecimal;
  } const rows[] = {
      {"1", 0.00004F, "0", "0"},        {"1", 0.00005F, "1/10", "0.1"},   {"4", 0.00004F, "0", "0"},
      {"4", 0.00005F, "1/4", "0.25"},   {"3", 0.00004F, "0", "0"},        {"3", 0.00005F, "1/3", "0.3333"},
      {"2", 0.00004F, "1", "1"},        {"2", 0.00005F, "1/2", "0.5"},    {"1", 0.10004F, "1/10", "0.1"},
      {"1", 0.10005F, "1/5", "0.2"},    {"4", 0.25004F, "1/4", "0.25"},   {"4", 0.25005F, "1/2", "0.5"},
      {"2", 0.50004F, "1/2", "0.5"},    {"2", 0.50005F, "1", "1"},        {"3", 0.33334F, "1/3", "0.3333"},
      {"3", 0.33335F, "2/3", "0.6666"}, {"3", 0.66664F, "2/3", "0.6666"}, {"3", 0.66665F, "2/3", "1"},
      {"1", 2.99996F, "1", "1"},        {"4", 2.99996F, "1", "1"},        {"3", 2.99996F, "2/3", "1"},
      {"2", 2.99996F, "1", "1"},        {"1", 1.F / 3, "2/5", "0.4"},     {"3", 1.F / 3, "1/3", "0.3333"},
      {"3", 2.F / 3, "2/3", "1"},
  };
  for (const auto& row : rows) expectBoth(row.option, row.amount, row.asFraction, row.asDecimal);
}

TEST_F(PartSteps, ANegativeAmountCountsFromTheWholeNumberBelow) {
  expectBoth("4", -0.25F, "3/4", "0.75");
  expectBoth("4", -2.75F, "1/4", "0.25");
  expectBoth("1", -1.0F, "0", "0");
}

}  // namespace
}  // namespace pantrigo
