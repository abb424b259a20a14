#include "exchange/exchange_format.h"

#include <gtest/gtest.h>

#include "exchange/clean_title.h"

namespace pantrigo {
namespace {

TEST(ExchangeFormat, TagsStandInRisingOrderFromTitleToEnd) {
  const auto tags = exchangeTags();
  ASSERT_EQ(tags.size(), 28u);
  EXPECT_EQ(tags.front().tag, "00:");
  EXPECT_EQ(tags.back().tag, "99:");
  for (std::size_t place = 1; place < tags.size(); ++place) EXPECT_LT(tags[place - 1].tag, tags[place].tag);
}

TEST(ExchangeFormat, OnlyCourseAndOtherAlsoTryThePlural) {
  for (const ExchangeTag& tag : exchangeTags())
    EXPECT_EQ(tag.alsoPlural, tag.tag == "02:" || tag.tag == "25:") << tag.tag;
}

TEST(ExchangeFormat, AnUnknownTagIsNotFound) {
  EXPECT_EQ(findExchangeTag("27:"), nullptr);
  EXPECT_EQ(findExchangeTag("0:"), nullptr);
  ASSERT_NE(findExchangeTag("22:"), nullptr);
  EXPECT_EQ(findExchangeTag("22:")->name, "Ingredients");
}

TEST(ExchangeFormat, AMemoOfTwoParagraphsIsOneLine) {
  EXPECT_EQ(encodeMemo("Mix.\r\nBake."), "Mix.!~Bake.");
  EXPECT_EQ(decodeMemo("Mix.!~Bake."), "Mix.\r\nBake.");
}

TEST(ExchangeFormat, LoneMarksSurviveTheCoding) {
  EXPECT_EQ(decodeMemo("Hot! Or ~ warm"), "Hot! Or ~ warm");
  EXPECT_EQ(decodeMemo("!!~~"), "!\r\n~");
  EXPECT_EQ(decodeMemo("!"), "!");
  EXPECT_EQ(encodeMemo("a\rb\nc"), "a!b~c");
}

TEST(CleanTitle, GivesBothResults) {
  const CleanTitle cleaned = subCleanTitle("ANN'S BIG pie!");
  EXPECT_EQ(cleaned.caseResult, "Ann's Big Pie");
  EXPECT_EQ(cleaned.plainResult, "ANN''S BIG pie");
}

}  // namespace
}  // namespace pantrigo
