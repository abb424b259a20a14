#include "measures/quantity.h"
#include "unit/measures/measures_fixture.h"

namespace pantrigo {
namespace {

struct Written {
  const char* step;
  float amount;
  std::string_view text;
};

class QuantityWriting : public MeasuresTest {
 protected:
  template <std::size_t Count>
  void expectTexts(const Value& fractions, const Written (&rows)[Count]) {
    for (const Written& row : rows) {
      setOptions({{"Fractions", fractions}, {"PartialFractions", row.step}});
      run.GLOBAL.gWorkQuantity = row.amount;
      run.GLOBAL.gQuantityText = "stale";
      subFormatQuantity(run);
      EXPECT_EQ(run.GLOBAL.gQuantityText, row.text) << "step " << row.step << ", amount " << row.amount;
      EXPECT_EQ(run.GLOBAL.gWorkQuantity, row.amount);
    }
  }
};

TEST_F(QuantityWriting, FractionsStandBehindAWholeNumberWithItsBlank) {
  constexpr Written rows[] = {
      {"1", 2, " 2"},
      {"1", 2.5F, " 2 1/2"},
      {"1", 0.5F, "1/2"},
      {"1", 0.05F, "1/10"},
      {"1", 2.95F, " 3"},
      {"1", 0.95F, " 1"},
      {"1", 0.00004F, " 0"},
      {"1", 12.31F, " 12 2/5"},
      {"4", 2, " 2"},
      {"4", 0.1F, "1/4"},
      {"4", 0.76F, " 1"},
      {"4", 1.51F, " 1 3/4"},
      {"4", 1000.2F, " 1000 1/4"},
      {"3", 0.9F, "2/3"},
      {"3", 1.9F, " 1 2/3"},
      {"3", 2.99996F, " 2 2/3"},
      {"3", 3, " 3"},
      {"3", 1.3F, " 1 1/3"},
      {"2", 2, " 3"},
      {"2", 1, " 2"},
      {"2", 0.2F, "1/2"},
      {"2", 1.02F, " 1 1/2"},
      {"2", 1.51F, " 2"},
      {"2", 0.51F, " 1"},
      {"2", 0.00004F, " 1"},
      {"4", -0.5F, "-1 1/2"},
      {"4", -3, "-3"},
  };
  expectTexts(true, rows);
}

TEST_F(QuantityWriting, DecimalsCarryNoTrailingZerosAndNoBlank) {
  constexpr Written rows[] = {
      {"1", 2, "2"},        {"1", 2.5F, "2.5"},
      {"1", 0.1F, "0.1"},   {"1", 0.05F, "0.1"},
      {"1", 2.95F, "3"},    {"1", 0.95F, "1"},
      {"1", 0.00004F, "0"}, {"1", 12.31F, "12.4"},
      {"1", 1000, "1000"},  {"1", 226.7962F, "226.8"},
      {"1", 100, "100"},    {"1", 20, "20"},
      {"4", 2.25F, "2.25"}, {"4", 0.1F, "0.25"},
      {"4", 0.76F, "1"},    {"4", 2.3F, "2.5"},
      {"4", 2, "2"},        {"4", 9.9F, "10"},
      {"3", 2.5F, "2.67"},  {"3", 2.3F, "2.33"},
      {"3", 0.3F, "0.33"},  {"3", 0.5F, "0.67"},
      {"3", 0.9F, "1"},     {"3", 1.9F, "2"},
      {"3", 2.99996F, "3"}, {"3", 3, "3"},
      {"2", 2, "3"},        {"2", 1.02F, "1.5"},
      {"2", 1.51F, "2"},    {"2", 0.2F, "0.5"},
      {"2", 0.00004F, "1"}, {"1", 1234567, "1234567"},
  };
  expectTexts(false, rows);
}

TEST_F(QuantityWriting, DecimalsStandWhereTheOptionWasNeverSet) {
  constexpr Written rows[] = {{"1", 2.5F, "2.5"}};
  expectTexts(Value(), rows);
}

TEST_F(QuantityWriting, AnAmountOfNothingIsTheEmptyText) {
  constexpr Written rows[] = {{"1", 0, ""}, {"4", 0, ""}, {"3", 0, ""}, {"2", 0, ""}};
  expectTexts(true, rows);
  expectTexts(false, rows);
}

TEST_F(QuantityWriting, KeepsThePartOfTheLastFraction) {
  setOptions({{"Fractions", true}});
  run.GLOBAL.gWorkQuantity = 1.5F;
  subFormatQuantity(run);
  EXPECT_EQ(run.GLOBAL.gPartFraction, "1/2");
}

TEST_F(QuantityWriting, AChangedOptionCountsAtTheNextCall) {
  run.GLOBAL.gWorkQuantity = 1.12F;
  setOptions({{"Fractions", true}, {"PartialFractions", "1"}});
  subFormatQuantity(run);
  EXPECT_EQ(run.GLOBAL.gQuantityText, " 1 1/5");
  setOptions({{"Fractions", true}, {"PartialFractions", "4"}});
  subFormatQuantity(run);
  EXPECT_EQ(run.GLOBAL.gQuantityText, " 1 1/4");
}

}  // namespace
}  // namespace pantrigo
