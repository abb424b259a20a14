#include "platform/store/like.h"

#include <gtest/gtest.h>

#include <string>

#include "unit/store/store_fixture.h"

namespace pantrigo {
namespace {

struct LikeCase {
  const char* pattern;
  const char* text;
  bool matches;
};

class LikeTest : public testing::TestWithParam<LikeCase> {};

TEST_P(LikeTest, Matches) {
  const LikeCase& c = GetParam();
  EXPECT_EQ(LikePattern(c.pattern).matches(c.text), c.matches) << "'" << c.text << "' like '" << c.pattern << "'";
}

INSTANTIATE_TEST_SUITE_P(
    Plain, LikeTest,
    testing::Values(LikeCase{"pie", "pie", true}, LikeCase{"pie", "Pie", true}, LikeCase{"PIE", "pie", true},
                    LikeCase{"pie", "pies", false}, LikeCase{"pie", "a pie", false}, LikeCase{"", "", true},
                    LikeCase{"", "a", false}, LikeCase{"a", "", false}, LikeCase{"pie ", "pie", false},
                    LikeCase{"100%", "100%", true}, LikeCase{"100%", "100 g", false}, LikeCase{"a_b", "a_b", true},
                    LikeCase{"a_b", "axb", false}, LikeCase{"!", "!", true}, LikeCase{"a!b", "a!b", true},
                    LikeCase{"]", "]", true}, LikeCase{"a]b", "A]B", true}));

INSTANTIATE_TEST_SUITE_P(AnyRun, LikeTest,
                         testing::Values(LikeCase{"*", "", true}, LikeCase{"**", "", true},
                                         LikeCase{"*", "anything", true}, LikeCase{"*pie*", "Apple Pie", true},
                                         LikeCase{"*pie*", "pie of apples", true}, LikeCase{"*pie*", "p i e", false},
                                         LikeCase{"a*a", "aBa", true}, LikeCase{"a*a", "a", false},
                                         LikeCase{"a*a", "aa", true}, LikeCase{"a*b*c", "a-b-b-c", true},
                                         LikeCase{"a*b*c", "a-c-b", false}, LikeCase{"*ab*ab*", "abab", true},
                                         LikeCase{"*ab*ab*", "aba", false}, LikeCase{"ab*ba", "aba", false},
                                         LikeCase{"*a*b", "ab ab", true}, LikeCase{"*aab", "aaab", true},
                                         LikeCase{"*aab*", "aaaab-", true}, LikeCase{"apple*", "Apple pie", true},
                                         LikeCase{"apple*", "an apple", false}, LikeCase{"*pie", "apple PIE", true},
                                         LikeCase{"*pie", "pies", false}));

INSTANTIATE_TEST_SUITE_P(OneCharacter, LikeTest,
                         testing::Values(LikeCase{"?", "a", true}, LikeCase{"?", "\xC3\xA9", true},
                                         LikeCase{"?", "\xF0\x9F\x8D\xB0", true}, LikeCase{"?", "", false},
                                         LikeCase{"?", "ab", false}, LikeCase{"*?*", "", false},
                                         LikeCase{"p?e", "pie", true},
                                         LikeCase{"*p?e*",
                                                  "a p\xC3\xA9"
                                                  "e",
                                                  true},
                                         LikeCase{"#", "7", true}, LikeCase{"#", "a", false}, LikeCase{"#", "", false},
                                         LikeCase{"## g", "25 g", true}, LikeCase{"*#*", "take 3 eggs", true},
                                         LikeCase{"*#*", "take three", false}));

INSTANTIATE_TEST_SUITE_P(
    Lists, LikeTest,
    testing::Values(LikeCase{"[abc]", "b", true}, LikeCase{"[abc]", "B", true}, LikeCase{"[ABC]", "b", true},
                    LikeCase{"[abc]", "d", false}, LikeCase{"[a-c]x", "bx", true}, LikeCase{"[a-c]x", "dx", false},
                    LikeCase{"[A-z]", "q", true}, LikeCase{"[!a-c]", "d", true}, LikeCase{"[!a-c]", "B", false},
                    LikeCase{"[!a-c]", "", false}, LikeCase{"[0-9a-f]", "E", true}, LikeCase{"[-a]", "-", true},
                    LikeCase{"[a-]", "-", true}, LikeCase{"[*]", "*", true}, LikeCase{"[*]", "x", false},
                    LikeCase{"[?]", "?", true}, LikeCase{"[#]", "#", true}, LikeCase{"[#]", "1", false},
                    LikeCase{"[[]", "[", true}, LikeCase{"a[]b", "ab", true}, LikeCase{"[]", "", true},
                    LikeCase{"[!]", "!", true}, LikeCase{"*[0-9]*", "4 eggs", true}));

INSTANTIATE_TEST_SUITE_P(Accents, LikeTest,
                         testing::Values(LikeCase{"*creme*", "Cr\xC3\xA8me", false},
                                         LikeCase{"*cr\xC3\xA8me*", "CR\xC3\x88ME", true},
                                         LikeCase{"*\xC3\x96L*", "\xC3\xB6l", true},
                                         LikeCase{"stra\xC3\x9F"
                                                  "e",
                                                  "STRASSE", false},
                                         LikeCase{"[\xC3\xA0-\xC3\xA9]", "\xC3\x88", true}));

TEST(LikePatternTest, RefusesPatternsThatAreNone) {
  for (const char* pattern : {"[", "*[*", "a[b", "[a-", "[!", "*[abc*", "[z-a]"}) {
    EXPECT_EQ(errorOf([pattern] { LikePattern unused(pattern); }), 93) << pattern;
  }
}

TEST(LikePatternTest, ManyStarsCostNoMoreThanTheTextTimesThePattern) {
  std::string pattern;
  for (int star = 0; star < 50; ++star) pattern += "*a";
  EXPECT_FALSE(LikePattern(pattern + "*b").matches(std::string(20000, 'a')));
  EXPECT_TRUE(LikePattern(pattern + "*").matches(std::string(20000, 'a')));
}

}  // namespace
}  // namespace pantrigo
