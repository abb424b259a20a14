#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

#include "platform/text/numbers.h"

namespace pantrigo {
namespace {

struct Writing {
  double value;
  std::string singlePlain;
  std::string singleStr;
  std::string doublePlain;
};

TEST(PlainText, WritesSinglesAndDoubles) {
  const Writing writings[] = {
      {0, "0", " 0", "0"},
      {1, "1", " 1", "1"},
      {-1, "-1", "-1", "-1"},
      {0.5, "0.5", " .5", "0.5"},
      {-0.5, "-0.5", "-.5", "-0.5"},
      {12.5, "12.5", " 12.5", "12.5"},
      {1046.7, "1046.7", " 1046.7", "1046.7"},
      {1.0 / 3, "0.3333333", " .3333333", "0.333333333333333"},
      {2.0 / 3, "0.6666667", " .6666667", "0.666666666666667"},
      {1.0 / 12, "8.333334E-02", " 8.333334E-02", "8.33333333333333E-02"},
      {0.001, "0.001", " .001", "0.001"},
      {0.0000001, "0.0000001", " .0000001", "0.0000001"},
      {0.00001, "0.00001", " .00001", "0.00001"},
      {0.00000015, "1.5E-07", " 1.5E-07", "0.00000015"},
      {226796.185, "226796.2", " 226796.2", "226796.185"},
      {141747.615625, "141747.6", " 141747.6", "141747.615625"},
      {1234567.8, "1234568", " 1234568", "1234567.8"},
      {9999999, "9999999", " 9999999", "9999999"},
      {10000000, "1E+07", " 1E+07", "10000000"},
      {12500000, "1.25E+07", " 1.25E+07", "12500000"},
      {1e15, "1E+15", " 1E+15", "1E+15"},
      {0.00999999, "9.99999E-03", " 9.99999E-03", "0.00999999"},
      {999999999999999.0, "1E+15", " 1E+15", "999999999999999"},
      {-1.25e-20, "-1.25E-20", "-1.25E-20", "-1.25E-20"},
  };
  for (const Writing& writing : writings) {
    const auto single = static_cast<float>(writing.value);
    EXPECT_EQ(plainText(single), writing.singlePlain);
    EXPECT_EQ(Str(single), writing.singleStr);
    EXPECT_EQ(plainText(writing.value), writing.doublePlain);
  }
}

TEST(PlainText, WritesExponentsOfThreeDigits) {
  EXPECT_EQ(plainText(1e100), "1E+100");
  EXPECT_EQ(plainText(-2.5e-300), "-2.5E-300");
}

TEST(PlainText, HasNoNegativeZero) {
  EXPECT_EQ(plainText(-0.0), "0");
  EXPECT_EQ(plainText(-0.0F), "0");
  EXPECT_EQ(Str(-0.0F), " 0");
}

TEST(PlainText, RoundsHalvesAwayFromZero) {
  EXPECT_EQ(plainText(1234566.5F), "1234567");
  EXPECT_EQ(plainText(1234567.5F), "1234568");
  EXPECT_EQ(plainText(-123456789012344.5), "-123456789012345");
  EXPECT_EQ(plainText(9999999.5), "9999999.5");
  EXPECT_EQ(plainText(999999999999999.5), "1E+15");
}

TEST(PlainText, WritesWholeNumbersWithAllDigits) {
  EXPECT_EQ(plainText(0L), "0");
  EXPECT_EQ(plainText(-12345678901L), "-12345678901");
}

TEST(PlainText, OfADoubleReadsBackAsTheFifteenDigitValue) {
  std::mt19937_64 random(20010305);
  std::uniform_int_distribution<std::int64_t> mantissa(1, 999'999'999'999'999);
  std::uniform_int_distribution<int> power(-30, 30);
  for (int i = 0; i < 100'000; ++i) {
    const std::string decimal =
        plainText(static_cast<long>(mantissa(random))) + "E" + plainText(static_cast<long>(power(random)));
    const double value = Val(decimal);
    EXPECT_EQ(Val(plainText(value)), value) << decimal;
  }
}

TEST(Shortest, NamesTheValueOfTheSevenDigitText) {
  EXPECT_EQ(shortest(418.68F), 418.68);
  EXPECT_EQ(shortest(0.1F), 0.1);
  EXPECT_EQ(shortest(-250.0F), -250.0);
  EXPECT_EQ(shortest(50.0F / 3), 16.66667);
  EXPECT_EQ(shortest(1.2e7F), 12000000.0);
  EXPECT_EQ(shortest(16777217.0F), 16777220.0);
  EXPECT_EQ(shortest(1.0F / 12), 8.333334e-2);
}

}  // namespace
}  // namespace pantrigo
