#include <gtest/gtest.h>

#include <string>

#include "platform/text/numbers.h"

namespace pantrigo {
namespace {

struct Reading {
  std::string text;
  double value;
};

TEST(IsNumeric, TakesWhatTheWholeTextConversionReads) {
  const Reading readings[] = {
      {"12", 12},
      {" 12 ", 12},
      {"+5", 5},
      {"-5", -5},
      {"- 5", -5},
      {"5-", -5},
      {"5 -", -5},
      {"5+", 5},
      {".5", 0.5},
      {"5.", 5},
      {"-.5", -0.5},
      {"007", 7},
      {"1,000", 1000},
      {"1,2,3", 123},
      {"1,,000", 1000},
      {"1,", 1},
      {"1e3", 1000},
      {"1E+3", 1000},
      {"1e-03", 0.001},
      {"1d2", 100},
      {"(5)", -5},
      {"$5", 5},
      {"-$5", -5},
      {"$-5", -5},
      {"5$", 5},
      {"&H1F", 31},
      {"&o17", 15},
      {" 2.5", 2.5},
      {"2.", 2},
      {"\t5\r\n", 5},
      {"\xC2\xA0"
       "5\xC2\xA0",
       5},
      {"( 5 )", -5},
      {"($5)", -5},
      {"$(5)", -5},
      {"&HFFFF", -1},
      {" &H1F\xC2\xA0", 31},
      {"1e-400", 0},
      {"-0", 0},
      {"1,000.5", 1000.5},
      {"9.75", 9.75},
  };
  for (const Reading& reading : readings) {
    EXPECT_TRUE(IsNumeric(reading.text)) << '"' << reading.text << '"';
    EXPECT_EQ(toNumber(reading.text).value_or(-99), reading.value) << '"' << reading.text << '"';
  }
}

TEST(IsNumeric, RefusesEverythingElse) {
  const std::string texts[] = {
      "",
      " ",
      "-",
      "+",
      ".",
      ",",
      "$",
      "()",
      "e",
      "1.2.3",
      "1..2",
      "--5",
      "-5-",
      "+5+",
      ",1",
      "1 000",
      "1e",
      "1e1.5",
      "e5",
      "1e400",
      "(5",
      "5)",
      "0()",
      "&o8",
      "0x10",
      "FF",
      "50%",
      "1/2",
      "1 1/2",
      "5 eggs",
      "5/10",
      "12:30",
      "True",
      "2-.5",
      "(-5)",
      "(5-)",
      "(5)-",
      "$5$",
      "&H",
      "&HG",
      "&5",
      "-&H5",
      "&H123456789",
      "1 e3",
      "1e 3",
      "\v5",
      "5\xC2",
      "((5))",
      "1.5,0",
      "\xE2\x82\xAC"
      "5",
  };
  for (const std::string& text : texts) {
    EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
    EXPECT_FALSE(toNumber(text).has_value()) << '"' << text << '"';
  }
}

TEST(IsNumeric, TakesOneCharacterOnlyWhenItIsADigit) {
  for (int code = 0; code < 256; ++code) {
    const std::string text(1, static_cast<char>(code));
    EXPECT_EQ(IsNumeric(text), code >= '0' && code <= '9') << code;
  }
}

TEST(IsQueryNumber, TakesOnlyWhatTheListQueryReads) {
  const std::string passes[] = {"12",  " 12 ", "+5",    "-5",     ".5",    "5.",     "-.5",  "007",
                                "1e3", "1E+3", "1e-03", "3.4e38", "1e-60", "1e-400", "0e999"};
  for (const std::string& text : passes) EXPECT_TRUE(isQueryNumber(text)) << '"' << text << '"';
  const std::string fails[] = {"",
                               " ",
                               "-",
                               "+",
                               ".",
                               "1,000",
                               "$5",
                               "(5)",
                               "5-",
                               "5+",
                               "5 -",
                               "1d2",
                               "&H1F",
                               "- 5",
                               "1e39",
                               "-1e39",
                               "1e400",
                               "1 2",
                               "\t5",
                               "1e",
                               "e5",
                               "1e3-",
                               "--5",
                               "1.2.3",
                               "5 eggs",
                               "1e3+",
                               "\xC2\xA0"
                               "5",
                               "3.4028236e38"};
  for (const std::string& text : fails) EXPECT_FALSE(isQueryNumber(text)) << '"' << text << '"';
}

}  // namespace
}  // namespace pantrigo
