#include "platform/text/errors.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

namespace pantrigo {
namespace {

TEST(Errors, HaveTheirTexts) {
  const std::pair<int, std::string> texts[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {55, "File already open"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {68, "Device unavailable"},
      {70, "Permission denied"},
      {71, "Disk not ready"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {94, "Invalid use of Null"},
      {3021, "No current record."},
      {3163, "The field is too small to accept the amount of data you attempted to add."},
      {3167, "Record is deleted."},
      {3421, "Data type conversion error."},
  };
  for (const auto& [number, text] : texts) EXPECT_EQ(errorText(number), text);
}

TEST(Errors, EveryNumberThatIsRaisedHasATextOfItsOwn) {
  std::set<std::string> seen{errorText(0)};
  for (const int number : {5,    6,    7,    11,   51,   13,   52,   53,   55,   61,   62,   68,   70,   71,
                           75,   76,   91,   93,   94,   400,  438,  481,  3015, 3019, 3020, 3021, 3022, 3024,
                           3026, 3027, 3045, 3051, 3075, 3078, 3163, 3167, 3265, 3315, 3343, 3420, 3421}) {
    EXPECT_TRUE(seen.insert(errorText(number)).second) << number << ' ' << errorText(number);
  }
}

TEST(Errors, CarryNumberAndText) {
  const RuntimeError plain(13);
  EXPECT_EQ(plain.number(), 13);
  EXPECT_EQ(plain.text(), "Type mismatch");
  EXPECT_STREQ(plain.what(), "Type mismatch");
  const RuntimeError detailed(3075, "Syntax error at 'x'");
  EXPECT_EQ(detailed.text(), "Syntax error at 'x'");
}

TEST(Errors, AGuardDropsRuntimeErrorsAndNothingElse) {
  EXPECT_TRUE(guarded([] {}));
  EXPECT_FALSE(guarded([] { throw RuntimeError(13); }));
  EXPECT_THROW(guarded([] { throw RunEnded(); }), RunEnded);
}

}  // namespace
}  // namespace pantrigo
