#include "platform/text/letters.h"

#include <gtest/gtest.h>

#include "platform/text/utf8.h"

namespace pantrigo {
namespace {

TEST(Letters, ChangeCaseOneToOne) {
  EXPECT_EQ(UCase("Crème brûlée 12"), "CRÈME BRÛLÉE 12");
  EXPECT_EQ(LCase("CRÈME BRÛLÉE 12"), "crème brûlée 12");
  EXPECT_EQ(UCase("Grieß"), "GRIEß");
  EXPECT_EQ(UCase("ﬁn"), "ﬁN");
  EXPECT_EQ(UCase("ÿœ"), "ŸŒ");
  EXPECT_EQ(LCase("ЩИ"), "щи");
  EXPECT_EQ(UCase(""), "");
}

TEST(Letters, LeaveWhatHasNoCase) {
  EXPECT_EQ(UCase("1/2 (4 oz)!"), "1/2 (4 OZ)!");
  EXPECT_EQ(UCase("½ \xF0\x9F\x8D\x8E"), "½ \xF0\x9F\x8D\x8E");
  EXPECT_EQ(UCase("a\xFF"
                  "b"),
            "A\xFF"
            "B");
}

TEST(Letters, KeepTheNumberOfCharacters) {
  for (char32_t point = 1; point < 0x20000; ++point) {
    if (point == 0xD800) point = 0xE000;
    ASSERT_EQ(Len(UCase(encodeUtf8(std::u32string(1, point)))), 1U);
    ASSERT_EQ(Len(LCase(encodeUtf8(std::u32string(1, point)))), 1U);
  }
}

TEST(Letters, FoldForComparisons) {
  EXPECT_EQ(foldCase(U'A'), U'a');
  EXPECT_EQ(foldCase(U'É'), U'é');
  EXPECT_EQ(foldCase(U'ς'), foldCase(U'Σ'));
  EXPECT_EQ(foldCase(U'ß'), U'ß');
  EXPECT_EQ(foldCase(U'['), U'[');
  EXPECT_EQ(upperCase(U'z'), U'Z');
  EXPECT_EQ(upperCase(U'{'), U'{');
  EXPECT_EQ(lowerCase(U'Z'), U'z');
  EXPECT_EQ(lowerCase(U'@'), U'@');
}

TEST(Trim, CutsBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(LTrim("  a b  "), "a b  ");
  EXPECT_EQ(RTrim("  a b  "), "  a b");
  EXPECT_EQ(Trim("\t a \r\n"), "\t a \r\n");
  EXPECT_EQ(Trim("\xC2\xA0 a"), "\xC2\xA0 a");
  for (const char* const blank : {"", " ", "   "}) {
    EXPECT_EQ(Trim(blank), "");
    EXPECT_EQ(LTrim(blank), "");
    EXPECT_EQ(RTrim(blank), "");
  }
}

}  // namespace
}  // namespace pantrigo
