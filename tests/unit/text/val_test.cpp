#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "platform/text/numbers.h"

namespace pantrigo {
namespace {

struct Reading {
  std::string text;
  double value;
};

TEST(Val, ReadsTheLeadingNumber) {
  const Reading readings[] = {
      {"", 0},
      {"abc", 0},
      {"/2", 0},
      {"$5", 0},
      {"(5)", 0},
      {"24 and 57", 24},
      {"   1615 198th Street", 1615198},
      {" 2 45 7", 2457},
      {"1 2", 12},
      {"12  3.4  5.6", 123.45},
      {".5", 0.5},
      {"-.5", -0.5},
      {"- 5", -5},
      {"+7", 7},
      {"1 1/2", 11},
      {"1e3", 1000},
      {"1E+3", 1000},
      {"1d3", 1000},
      {"8.333334E-02", 0.08333334},
      {"1.2E+07", 12000000},
      {"1e", 1},
      {"2 dozen", 2},
      {"3 eggs", 3},
      {"1,000", 1},
      {"1/2", 1},
      {"5-", 5},
      {"12.215.2", 12.215},
      {"50.5%", 50.5},
  };
  for (const Reading& reading : readings) EXPECT_EQ(Val(reading.text), reading.value) << '"' << reading.text << '"';
}

TEST(Val, ReadsPrefixedNumbersAsSignedOnes) {
  const Reading readings[] = {
      {"&HFF", 255},  {"&hff", 255},     {"&O10", 8},        {"&o17 ", 15},      {"& HF", 0},
      {"&HFFFF", -1}, {"&H7FFF", 32767}, {"&H10000", 65536}, {"&HFFFFFFFF", -1}, {"&O18", 1},
      {"&HG", 0},     {"&H", 0},         {"&", 0},           {"&5", 0},          {"-&H5", 0},
  };
  for (const Reading& reading : readings) EXPECT_EQ(Val(reading.text), reading.value) << '"' << reading.text << '"';
}

TEST(Val, SkipsTabsAndLineFeedsButNoOtherWhiteSpace) {
  EXPECT_EQ(Val("\t1\n2\t.\n5"), 12.5);
  EXPECT_EQ(Val("1\r2"), 1);
  EXPECT_EQ(Val("1\xC2\xA0"
                "2"),
            1);
}

TEST(Val, NeedsADigitInFrontOfAnExponent) {
  EXPECT_EQ(Val("e5"), 0);
  EXPECT_EQ(Val(".e5"), 0);
  EXPECT_EQ(Val("5.e1"), 50);
  EXPECT_EQ(Val("5e-"), 5);
  EXPECT_EQ(Val("5 e - 1 x"), 0.5);
}

TEST(Val, NeverFailsAtTheEndsOfTheRange) {
  EXPECT_EQ(Val("1e400"), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("-1e400"), -std::numeric_limits<double>::max());
  EXPECT_EQ(Val("1e99999999999999999999999"), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("1e-400"), 0);
  EXPECT_EQ(Val("1e-99999999999999999999999"), 0);
  EXPECT_EQ(Val("0e99999999999999999999999"), 0);
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(Val(std::string(400, '9')), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("." + std::string(400, '0') + "1e402"), 10);
}

TEST(Int, IsTheFloor) {
  EXPECT_EQ(Int(2.99996), 2);
  EXPECT_EQ(Int(-0.5), -1);
  EXPECT_EQ(Int(3), 3);
}

}  // namespace
}  // namespace pantrigo
