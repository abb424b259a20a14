#include "platform/store/plain_run.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>

#include "platform/store/like.h"
#include "platform/text/letters.h"
#include "platform/text/utf8.h"

namespace pantrigo {
namespace {

/// Whether the text holds the part, by the folded characters one by one.
bool holds(std::string_view text, std::string_view part) {
  std::u32string folded = decodeUtf8(text);
  std::u32string sought = decodeUtf8(part);
  for (char32_t& character : folded) character = foldCase(character);
  for (char32_t& character : sought) character = foldCase(character);
  return folded.find(sought) != std::u32string::npos;
}

TEST(PlainRun, FindsTheFirstPlace) {
  const PlainRun run = *PlainRun::make(U"pie");
  const auto found = run.find("apple PIE, pie", 0);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->begin, 6U);
  EXPECT_EQ(found->end, 9U);
  EXPECT_EQ(run.find("apple PIE, pie", 7)->begin, 11U);
  EXPECT_FALSE(run.find("apple PIE, pie", 12));
  EXPECT_FALSE(run.find("", 0));
}

TEST(PlainRun, PlainLettersHaveVariantsBeyondAscii) {
  // The signs for kelvin and the long s.
  EXPECT_TRUE(LikePattern("*milk*").matches("half-fat MIL\u212A"));
  EXPECT_TRUE(LikePattern("*mil\u212A*").matches("half-fat milk"));
  EXPECT_TRUE(LikePattern("*saft*").matches("Orangen\u017Faft"));
  EXPECT_TRUE(LikePattern("*\u017Faft*").matches("ORANGENSAFT"));
  EXPECT_TRUE(LikePattern("*skis*").matches("a \u017F\u212Ai\u017F b"));
  EXPECT_TRUE(LikePattern("\u212A*\u017F").matches("kiss"));
  EXPECT_FALSE(LikePattern("*skis*").matches("a \u017F\u212Ai b"));
  // The sign for angstrom folds to a ring above a.
  EXPECT_TRUE(LikePattern("*\u00E5l*").matches("\u212BL"));
}

TEST(PlainRun, AccentsCount) {
  EXPECT_FALSE(LikePattern("*creme*").matches("Cr\u00E8me"));
  EXPECT_TRUE(LikePattern("*CR\u00C8ME FRA\u00CECHE*").matches("2~cups~cr\u00E8me fra\u00EEche~"));
  EXPECT_FALSE(LikePattern("*stra\u00DFe*").matches("STRASSE"));
  EXPECT_TRUE(LikePattern("*stra\u00DFe*").matches("STRA\u1E9EE"));
}

TEST(PlainRun, StrayBytesAreCharactersOfTheirOwn) {
  EXPECT_TRUE(LikePattern("*caf\xE9*").matches("a caf\xE9 au lait"));
  EXPECT_FALSE(LikePattern("*caf\xE9*").matches("a caf\xE8 au lait"));
  EXPECT_FALSE(LikePattern("*\xA9*").matches("caf\u00E9"));
  EXPECT_TRUE(LikePattern("*au*").matches("caf\xE9 au lait"));
  EXPECT_TRUE(LikePattern("*\u00E9*").matches("\xC3\xC3\xA9"));
}

TEST(PlainRun, AllCasesOfAllLettersAreFound) {
  for (char32_t character = 1; character < 0x110000; ++character) {
    const char32_t folded = foldCase(character);
    if (folded == character) continue;
    const std::string text = "a" + encodeUtf8({&character, 1}) + "b";
    ASSERT_TRUE(LikePattern("*a" + encodeUtf8({&folded, 1}) + "b*").matches(text))
        << static_cast<std::uint32_t>(character);
  }
}

TEST(PlainRun, AgreesWithTheFoldedCharacters) {
  const std::vector<std::string> alphabet = {"a",      "A",          "k",      "K",      "\u212A", "s",
                                             "S",      "\u017F",     "\u00E9", "\u00C9", "~",      "\u00E5",
                                             "\u212B", "\U0001F370", "\xC3",   "\xA9"};
  std::mt19937 random(4);
  const auto text = [&](std::size_t length) {
    std::string result;
    for (std::size_t count = 0; count < length; ++count) result += alphabet[random() % alphabet.size()];
    return result;
  };
  int found = 0;
  for (int round = 0; round < 200000; ++round) {
    const std::string part = text(1 + random() % 3);
    const std::string whole = text(random() % 12);
    const bool isHeld = holds(whole, part);
    ASSERT_EQ(LikePattern("*" + part + "*").matches(whole), isHeld) << part << " in " << whole;
    found += isHeld ? 1 : 0;
  }
  EXPECT_GT(found, 10000);
}

TEST(PlainRun, SeveralRunsTakeTheirPlacesFromTheLeft) {
  EXPECT_TRUE(LikePattern("*salt*pepper*").matches("Salt and PEPPER"));
  EXPECT_FALSE(LikePattern("*salt*pepper*").matches("pepper and salt"));
  EXPECT_FALSE(LikePattern("ab*ba").matches("aba"));
  EXPECT_TRUE(LikePattern("*aa*aa").matches("aaaa"));
  EXPECT_FALSE(LikePattern("*aa*aa").matches("aaa"));
  EXPECT_TRUE(LikePattern("a*b*c").matches("abxc"));
  EXPECT_FALSE(LikePattern("a*bc*c").matches("abc"));
}

}  // namespace
}  // namespace pantrigo
