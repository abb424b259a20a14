#include "platform/store/value.h"

#include <gtest/gtest.h>

#include <limits>

#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

TEST(ValueTest, KindsAreToldApart) {
  EXPECT_TRUE(Value().isNull());
  EXPECT_TRUE(Value(true).isBoolean());
  EXPECT_TRUE(Value(3).isNumber());
  EXPECT_TRUE(Value(3L).isNumber());
  EXPECT_TRUE(Value(3.5).isNumber());
  EXPECT_TRUE(Value(3.5F).isNumber());
  EXPECT_TRUE(Value("three").isText());
  EXPECT_TRUE(Value(std::string_view("three")).isText());
  EXPECT_FALSE(Value("").isNull());
}

TEST(ValueTest, TextForms) {
  EXPECT_EQ(Value().text(), "");
  EXPECT_EQ(Value(true).text(), "True");
  EXPECT_EQ(Value(false).text(), "False");
  EXPECT_EQ(Value(0.5).text(), "0.5");
  EXPECT_EQ(Value(-12).text(), "-12");
  EXPECT_EQ(Value(" kept ").text(), " kept ");
}

TEST(ValueTest, SingleKeepsTheNumberOfItsSevenDigits) {
  EXPECT_EQ(Value(418.68F), Value(418.68));
  EXPECT_EQ(Value(418.68F).text(), "418.68");
  EXPECT_EQ(Value(0.1F).number(), 0.1);
}

TEST(ValueTest, NumberConverts) {
  EXPECT_EQ(Value(true).number(), -1);
  EXPECT_EQ(Value(false).number(), 0);
  EXPECT_EQ(Value("1,000").number(), 1000);
  EXPECT_EQ(Value(" 2.5 ").number(), 2.5);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value().number()); }), 94);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value("").number()); }), 13);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value("5 eggs").number()); }), 13);
}

TEST(ValueTest, WholeRoundsHalvesToEven) {
  struct Case {
    double number;
    std::int64_t whole;
  };
  for (const Case& c :
       {Case{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.4999, 2}, {2147483647.4, 2147483647}}) {
    EXPECT_EQ(Value(c.number).whole(), c.whole) << c.number;
  }
}

TEST(ValueTest, WholeStaysInTheLongIntegersRange) {
  EXPECT_EQ(Value(2147483647.0).whole(), 2147483647);
  EXPECT_EQ(Value(-2147483648.0).whole(), -2147483648LL);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value(2147483648.0).whole()); }), 6);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value(-2147483649.0).whole()); }), 6);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value(std::numeric_limits<double>::quiet_NaN()).whole()); }), 6);
  EXPECT_EQ(errorOf([] { static_cast<void>(Value().whole()); }), 94);
}

TEST(ValueTest, TruthOfACondition) {
  EXPECT_FALSE(Value().truth());
  EXPECT_TRUE(Value(true).truth());
  EXPECT_FALSE(Value(0).truth());
  EXPECT_TRUE(Value(0.1).truth());
  EXPECT_TRUE(Value("true").truth());
  EXPECT_FALSE(Value("FALSE").truth());
  EXPECT_TRUE(Value("-1").truth());
  EXPECT_EQ(errorOf([] { static_cast<void>(Value("yes").truth()); }), 13);
}

TEST(ValueTest, AboveEmpty) {
  EXPECT_FALSE(Value().aboveEmpty());
  EXPECT_FALSE(Value("").aboveEmpty());
  EXPECT_TRUE(Value(" ").aboveEmpty());
  EXPECT_TRUE(Value(0).aboveEmpty());
  EXPECT_TRUE(Value(false).aboveEmpty());
}

}  // namespace
}  // namespace pantrigo
