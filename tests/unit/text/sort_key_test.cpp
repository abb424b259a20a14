#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "platform/text/collation.h"

namespace pantrigo {
namespace {

int sign(int value) {
  return (value > 0) - (value < 0);
}

/// Texts of few characters, so that common beginnings and equal texts are frequent: letters, signs, accents of both
/// kinds, ligatures, characters that show nothing, and bytes that are no text.
std::vector<std::string> mixedTexts(int count) {
  const std::vector<std::string> alphabet = {"a",
                                             "A",
                                             "b",
                                             "l",
                                             "e",
                                             " ",
                                             "-",
                                             "'",
                                             "1",
                                             "é",
                                             "è",
                                             "\xCC\x81",
                                             "\xC2\xB7",
                                             "ß",
                                             "æ",
                                             "½",
                                             "\x01",
                                             "\x02",
                                             "\xE9",
                                             "œ",
                                             "\xE2\x80\x8B",
                                             "\xF0\x9F\x8D\x8E",
                                             "\t"};
  std::mt19937 random(7);
  std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) {
    std::string text;
    for (int j = i % 6; j > 0; --j) text += alphabet[pick(random)];
    texts.push_back(text);
  }
  return texts;
}

TEST(SortKey, ComparesAsTheTextsDo) {
  const std::vector<std::string> texts = mixedTexts(700);
  std::vector<std::string> keys;
  for (const std::string& text : texts) keys.push_back(sortKey(text));
  for (std::size_t left = 0; left < texts.size(); ++left) {
    for (std::size_t right = 0; right < texts.size(); ++right) {
      ASSERT_EQ(sign(keys[left].compare(keys[right])), sign(collate(texts[left], texts[right])))
          << texts[left] << " | " << texts[right];
    }
  }
}

TEST(TextPlace, ComparesAsTheTextsDo) {
  std::vector<std::string> texts = mixedTexts(400);
  for (const char* plain : {"Apple pie", "apple  pie", "APPLE PIE ", "~", "_", "{}", "9", "Zz", "a\tb", "a b"}) {
    texts.emplace_back(plain);
  }
  const std::vector<TextPlace> places(texts.begin(), texts.end());
  for (std::size_t left = 0; left < texts.size(); ++left) {
    for (std::size_t right = 0; right < texts.size(); ++right) {
      ASSERT_EQ(sign(places[left].compare(places[right])), sign(collate(texts[left], texts[right])))
          << texts[left] << " | " << texts[right];
    }
  }
}

TEST(SortKey, TakesLongTexts) {
  const std::string text(1000, 'a');
  EXPECT_EQ(sortKey(text), sortKey(std::string(1000, 'A') + "  "));
  EXPECT_LT(sortKey(text), sortKey(text + "a"));
  EXPECT_LT(sortKey(text), sortKey(std::string(999, 'a') + "é"));
}

TEST(SortKey, KeepsTextsApartThatDifferInWhatIsNotShown) {
  EXPECT_NE(sortKey("a\x01"), sortKey("a\x02"));
  EXPECT_NE(sortKey("a"), sortKey("a\x01"));
}

}  // namespace
}  // namespace pantrigo
