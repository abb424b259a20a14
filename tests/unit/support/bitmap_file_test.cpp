#include "support/bitmap_file.h"

#include <gtest/gtest.h>

namespace pantrigo {
namespace {

TEST(BitmapFile, ABitmapReadsBackWithItsSize) {
  for (const BitmapSize size : {BitmapSize{1, 1}, BitmapSize{3, 2}, BitmapSize{200, 150}}) {
    const std::optional<BitmapSize> read = readBitmapSize(makeBitmap(size, {200, 100, 50}));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->width, size.width);
    EXPECT_EQ(read->height, size.height);
  }
}

TEST(BitmapFile, RowsFromTheTopDownCountTheSame) {
  std::string bytes = makeBitmap({3, 2}, {});
  bytes.replace(22, 4, "\xFE\xFF\xFF\xFF", 4);
  ASSERT_TRUE(readBitmapSize(bytes).has_value());
  EXPECT_EQ(readBitmapSize(bytes)->height, 2);
}

TEST(BitmapFile, TheOldShortHeaderIsRead) {
  const std::string bytes =
      std::string("BM") + std::string(12, '\0') + std::string("\x0C\0\0\0\x05\0\x04\0\1\0\x18\0", 12);
  ASSERT_TRUE(readBitmapSize(bytes).has_value());
  EXPECT_EQ(readBitmapSize(bytes)->width, 5);
  EXPECT_EQ(readBitmapSize(bytes)->height, 4);
}

TEST(BitmapFile, WhatIsCutShortIsNoBitmap) {
  const std::string whole = makeBitmap({3, 2}, {1, 2, 3});
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(readBitmapSize(whole.substr(0, length)).has_value()) << length;
  }
}

TEST(BitmapFile, AnotherSignatureOrSizeIsNoBitmap) {
  std::string bytes = makeBitmap({3, 2}, {});
  bytes[0] = 'P';
  EXPECT_FALSE(readBitmapSize(bytes).has_value());
  for (const std::size_t place : {18U, 22U}) {
    bytes = makeBitmap({3, 2}, {});
    bytes[place] = '\0';
    EXPECT_FALSE(readBitmapSize(bytes).has_value()) << place;
  }
}

}  // namespace
}  // namespace pantrigo
