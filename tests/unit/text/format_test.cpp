#include "platform/text/format.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/text/errors.h"

namespace pantrigo {
namespace {

template <class Value>
struct Row {
  std::string pattern;
  Value value;
  std::string text;
};

TEST(Format, WritesNumbersByTheirPattern) {
  const Row<double> rows[] = {
      {"#,###,##0", 0, "0"},
      {"#,###,##0", 7, "7"},
      {"#,###,##0", 999, "999"},
      {"#,###,##0", 1234, "1,234"},
      {"#,###,##0", 1234567, "1,234,567"},
      {"#,###,##0", 12345678, "12,345,678"},
      {"#,###,##0", -1234, "-1,234"},
      {"#####", 0, ""},
      {"#####", 0.4, ""},
      {"#####", 0.5, "1"},
      {"#####", 12.6, "13"},
      {"#####", 99999.5, "100000"},
      {"#####", -5, "-5"},
      {"####0", 0, "0"},
      {"####0", 238.845, "239"},
      {"####0", 0.5, "1"},
      {"####0", 2.5, "3"},
      {".0000", 0, ".0000"},
      {".0000", 0.00004, ".0000"},
      {".0000", 0.00005, ".0001"},
      {".0000", 0.5, ".5000"},
      {".0000", 0.99996, "1.0000"},
      {".0000", 1.73245, "1.7325"},
      {".##", 0, "."},
      {".##", 0.005, ".01"},
      {".##", 0.004, "."},
      {"#######0.00", 0, "0.00"},
      {"######", 12, "12"},
      {"######", 0, ""},
      {"###.##", 12, "12."},
      {"###.##", 12.5, "12.5"},
      {"###.##", 0.25, ".25"},
      {"###.##", 12.125, "12.13"},
      {"###.##", 12.999, "13."},
      {"###.##", 99.995, "100."},
      {"###.##", 0.004, "."},
      {"00", 0, "00"},
      {"00", 5, "05"},
      {"00", 26, "26"},
      {"#0", 1.7, "2"},
      {"#.##", 0.0995, ".1"},
      {"#.#", 1, "1."},
      {"#.#", 0, "."},
      {"####0", -0.4, "-0"},
      {"#####", -0.4, "-"},
      {"0,000", 12, "0,012"},
      {"####0", 1e20, "100000000000000000000"},
      {"0.000", 1e-20, "0.000"},
      {"0.0#", 2.5, "2.5"},
      {"0.0#", 2, "2.0"},
  };
  for (const auto& row : rows) EXPECT_EQ(Format(row.value, row.pattern), row.text) << row.pattern << ' ' << row.value;
}

TEST(Format, WritesTextsThatReadAsNumbersAndLeavesOthers) {
  const Row<std::string> rows[] = {
      {"#####", "", ""},
      {"#####", "abc", "abc"},
      {"#####", " ", " "},
      {".##", "0", "."},
      {".##", "0.1", ".1"},
      {".##", "0.25", ".25"},
      {".##", "0.3333", ".33"},
      {".##", "0.6666", ".67"},
      {"#######0.00", " 2.5", "2.50"},
      {"#######0.00", " 2.", "2.00"},
      {"#######0.00", "0.6666", "0.67"},
      {"#######0.00", " 12", "12.00"},
      {"#######0.00", "1,000", "1000.00"},
      {"#######0.00", "1e3", "1000.00"},
      {"#######0.00", " 1E+07.5", " 1E+07.5"},
      {"######0.0", "2.50", "2.5"},
      {"######0", "2.00", "2"},
      {"######0", "0.00", "0"},
  };
  for (const auto& row : rows) EXPECT_EQ(Format(row.value, row.pattern), row.text) << row.pattern << ' ' << row.value;
}

TEST(Format, GoesByTheSevenDigitsOfASingle) {
  EXPECT_EQ(Format(1234567.8F, "#####"), "1234568");
  EXPECT_EQ(Format(16777217.0F, "#####"), "16777220");
  EXPECT_EQ(Format(1.0F / 3, "0.0000000000"), "0.3333333000");
  EXPECT_EQ(Format(0.99996F, ".0000"), "1.0000");
  // As a double this single lies below its own text 0.00005.
  EXPECT_EQ(Format(0.00005F, ".0000"), ".0001");
}

TEST(Format, KeepsAllDigitsOfAWholeNumber) {
  EXPECT_EQ(Format(12345678L, "#,###,##0"), "12,345,678");
  EXPECT_EQ(Format(0L, "#,###,##0"), "0");
  EXPECT_EQ(Format(-1000L, "#,###,##0"), "-1,000");
  EXPECT_EQ(Format(7L, "00"), "07");
}

TEST(Format, WritesDatesInEnglish) {
  EXPECT_EQ(Format(LocalTime{2001, 3, 5, 0, 0}, "d-mmm-yyyy"), "5-Mar-2001");
  EXPECT_EQ(Format(LocalTime{1999, 12, 31, 0, 0}, "d-mmm-yyyy"), "31-Dec-1999");
  const std::string months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(Format(LocalTime{2026, month, 14, 0, 0}, "d-mmm-yyyy"),
              "14-" + months[static_cast<std::size_t>(month - 1)] + "-2026");
  }
}

TEST(Format, WritesTimesOfDayInTwelveHours) {
  const Row<LocalTime> rows[] = {
      {"h:mm AMPM", {2001, 3, 5, 15, 7}, "3:07 PM"},   {"h:mm AMPM", {2001, 3, 5, 0, 5}, "12:05 AM"},
      {"h:mm AMPM", {2001, 3, 5, 12, 0}, "12:00 PM"},  {"h:mm AMPM", {2001, 3, 5, 11, 59}, "11:59 AM"},
      {"h:mm AMPM", {2001, 3, 5, 23, 30}, "11:30 PM"},
  };
  for (const auto& row : rows) EXPECT_EQ(Format(row.value, row.pattern), row.text);
}

int errorOf(auto&& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Format, RefusesUnknownDatePatterns) {
  EXPECT_EQ(errorOf([] { (void)Format(LocalTime{}, "yyyy"); }), 5);
}

}  // namespace
}  // namespace pantrigo
