#include "platform/text/utf8.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "platform/text/errors.h"

namespace pantrigo {
namespace {

int errorOf(auto&& call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Utf8, CountsCodePoints) {
  EXPECT_EQ(Len(""), 0U);
  EXPECT_EQ(Len("Suppe"), 5U);
  EXPECT_EQ(Len("Crème brûlée"), 12U);
  EXPECT_EQ(Len("½ \xF0\x9F\x8D\x8E €"), 5U);
  EXPECT_EQ(Len("a\xFF\xC3"), 3U);
  EXPECT_EQ(Len("longer than eight ASCII bytes é"), 31U);
}

TEST(Utf8, CutsAtCharacters) {
  EXPECT_EQ(Left("Crème", 3), "Crè");
  EXPECT_EQ(Left("Crème", 0), "");
  EXPECT_EQ(Left("Crème", 9), "Crème");
  EXPECT_EQ(Right("brûlée", 2), "ée");
  EXPECT_EQ(Right("brûlée", 0), "");
  EXPECT_EQ(Right("brûlée", 99), "brûlée");
  EXPECT_EQ(Mid("Crème", 3, 2), "èm");
  EXPECT_EQ(Mid("Crème", 3), "ème");
  EXPECT_EQ(Mid("Crème", 5, 9), "e");
  EXPECT_EQ(Mid("Crème", 6, 1), "");
  EXPECT_EQ(Mid("Crème", 6), "");
  EXPECT_EQ(Mid("", 1, 1), "");
  EXPECT_EQ(Mid("abc", 2, 0), "");
}

TEST(Utf8, RefusesNegativeLengthsAndStartsBelowOne) {
  EXPECT_EQ(errorOf([] { (void)Left("abc", -1); }), 5);
  EXPECT_EQ(errorOf([] { (void)Right("abc", -1); }), 5);
  EXPECT_EQ(errorOf([] { (void)Mid("abc", 0, 1); }), 5);
  EXPECT_EQ(errorOf([] { (void)Mid("abc", 1, -1); }), 5);
  EXPECT_EQ(errorOf([] { (void)Mid("abc", 0); }), 5);
}

TEST(InStr, FindsTheFirstOccurrence) {
  EXPECT_EQ(InStr("flour", "o"), 3);
  EXPECT_EQ(InStr("flour", "x"), 0);
  EXPECT_EQ(InStr("flour", "O"), 0);
  EXPECT_EQ(InStr("", "a"), 0);
  EXPECT_EQ(InStr("", ""), 0);
  EXPECT_EQ(InStr("flour", ""), 1);
  EXPECT_EQ(InStr("crème fraîche", "fr"), 7);
  EXPECT_EQ(InStr("crème fraîche", "î"), 10);
  EXPECT_EQ(InStr("ab", "abc"), 0);
}

TEST(InStr, FindsAStrayByteOnlyWhereItStandsAlone) {
  EXPECT_EQ(InStr("é\xA9", "\xA9"), 2);
  EXPECT_EQ(InStr("é", "\xC3"), 0);
  EXPECT_EQ(InStr("é", "\xA9"), 0);
}

TEST(Utf8, CutsIntoCharacters) {
  EXPECT_EQ(characters("aé€\xFFz"), (std::vector<std::string>{"a", "é", "€", "\xFF", "z"}));
  EXPECT_TRUE(characters("").empty());
}

TEST(Utf8, ValidatesStrictly) {
  const std::string valid[] = {
      "", "abc", "é", "€", "\xF0\x9F\x8D\x8E", "\xF4\x8F\xBF\xBF", "\xEF\xBB\xBF", "\xED\x9F\xBF"};
  for (const std::string& text : valid) EXPECT_TRUE(isValidUtf8(text)) << text;
  const std::string invalid[] = {"\x80",
                                 "\xC0\xAF",
                                 "\xC1\xBF",
                                 "\xC3",
                                 "\xE2\x82",
                                 "\xE0\x9F\xBF",
                                 "\xED\xA0\x80",
                                 "\xF0\x8F\xBF\xBF",
                                 "\xF4\x90\x80\x80",
                                 "\xF5\x80\x80\x80",
                                 "caf\xE9",
                                 "abcdefgh\xE9"};
  for (const std::string& text : invalid) EXPECT_FALSE(isValidUtf8(text)) << text;
}

TEST(Utf8, DecodesAndEncodesEveryByteString) {
  EXPECT_EQ(decodeUtf8("aé€\xF0\x9F\x8D\x8E\xFF"), (std::u32string{U'a', U'é', U'€', 0x1F34E, 0xDCFF}));
  std::mt19937 random(7);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int i = 0; i < 20'000; ++i) {
    std::string text;
    for (int j = 0; j < 12; ++j) text.push_back(static_cast<char>(byte(random)));
    ASSERT_EQ(encodeUtf8(decodeUtf8(text)), text);
    ASSERT_EQ(decodeUtf8(text).size(), Len(text));
  }
}

TEST(Utf8, EncodesEveryCodePointAsValidText) {
  for (char32_t point = 0; point <= 0x10FFFF; ++point) {
    if (point == 0xD800) point = 0xE000;
    const std::string text = encodeUtf8(std::u32string(1, point));
    ASSERT_TRUE(isValidUtf8(text)) << static_cast<unsigned long>(point);
    ASSERT_EQ(decodeUtf8(text), std::u32string(1, point));
  }
}

TEST(Windows1252, ReadsByteForByte) {
  EXPECT_EQ(fromWindows1252("plain"), "plain");
  EXPECT_EQ(fromWindows1252("cr\xE8me 1\xBD \x80"), "crème 1½ €");
  EXPECT_EQ(fromWindows1252("\x91\x92\x93\x94\x85\x99\x9C\x9F"), "‘’“”…™œŸ");
  EXPECT_EQ(decodeUtf8(fromWindows1252("\x81\x8D\x8F\x90\x9D")), (std::u32string{0x81, 0x8D, 0x8F, 0x90, 0x9D}));
}

}  // namespace
}  // namespace pantrigo
