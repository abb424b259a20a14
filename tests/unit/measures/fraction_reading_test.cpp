#include <gtest/gtest.h>

#include "measures/quantity.h"

namespace pantrigo {
namespace {

struct Reading {
  std::string_view text;
  std::string_view decimal;
};

TEST(FractionReading, TurnsEachListedFractionIntoItsDecimalText) {
  constexpr Reading readings[] = {
      {"1/2", ".5"},  {"1/4", ".25"}, {"1/3", ".33"}, {"2/3", ".66"}, {"3/4", ".75"}, {"1/10", ".1"},
      {"1/5", ".2"},  {"3/10", ".3"}, {"2/5", ".4"},  {"3/5", ".6"},  {"7/10", ".7"}, {"4/5", ".8"},
      {"9/10", ".9"}, {"1/8", ".1"},  {"3/8", ".4"},  {"5/8", ".6"},  {"7/8", ".9"},
  };
  for (const auto& [text, decimal] : readings) {
    EXPECT_EQ(funFractionToDecimal(text), decimal) << text;
    EXPECT_EQ(funFractionToDecimal("3 " + std::string(text)), "3" + std::string(decimal)) << text;
  }
}

TEST(FractionReading, SearchesThePlainTextInTheOrderOfTheTable) {
  constexpr Reading readings[] = {
      {"1 1/2", "1.5"},  {"11/2", "1.5"},      {"21/4", "2.25"},     {"1/25", ".5"},
      {"13/10", "1.3"},  {"11/10", "1.1"},     {"  2   1/2", "2.5"}, {"1 2 1/2", "1 2.5"},
      {"1/2 cup", ".5"}, {"1/4 1/2", "1/4.5"}, {"1/2 1/4", ".5"},    {"1/8 1/3", "1/8.33"},
      {"-1/2", "-.5"},   {"2-1/2", "2-.5"},    {"1/16", "1/16"},     {"1/1", "1/1"},
  };
  for (const auto& [text, decimal] : readings) EXPECT_EQ(funFractionToDecimal(text), decimal) << text;
}

TEST(FractionReading, LeavesATextWithoutAListedFractionAsItIs) {
  for (const std::string_view text : {"", "250", ".5", " 1.5 ", "5/10", "1/7", "1 / 2", "1/", "/2", "eggs"}) {
    EXPECT_EQ(funFractionToDecimal(text), text);
  }
}

TEST(FractionReading, ReadsTheAmountOfAQuantityText) {
  struct {
    std::string_view text;
    double amount;
  } const amounts[] = {
      {"", 0},         {"250", 250},       {".5", 0.5},        {"1 1/2", 1.5}, {"1/3", 0.33}, {"7/8", 0.9},
      {"2 2/3", 2.66}, {"5/10", 5},        {"1,000", 1},       {"1 2", 12},    {"3 eggs", 3}, {"few", 0},
      {"-1/2", -.5},   {"1.2E+07", 1.2E7}, {"8.3E-02", 0.083}, {"1/4 1/2", 1},
  };
  for (const auto& [text, amount] : amounts) EXPECT_DOUBLE_EQ(quantityAmount(text), amount) << text;
}

}  // namespace
}  // namespace pantrigo
