#include "pixels/pixel_buffer.h"

#include <gtest/gtest.h>

namespace zerimo {

namespace {

/// In cache lines of 16 pixels.
TEST(PixelBuffer, RowsTakeAnOddNumberOfCacheLines) {
  EXPECT_EQ(PixelBuffer(1, 1, 0).Stride(), 16);
  EXPECT_EQ(PixelBuffer(16, 1, 0).Stride(), 16);
  EXPECT_EQ(PixelBuffer(17, 1, 0).Stride(), 48);
  EXPECT_EQ(PixelBuffer(1024, 1, 0).Stride(), 1040);
  EXPECT_EQ(PixelBuffer(1040, 1, 0).Stride(), 1040);
  EXPECT_EQ(PixelBuffer(1041, 1, 0).Stride(), 1072);
}

TEST(PixelBuffer, AreasAreFilledRowByRow) {
  PixelBuffer pixels(20, 3, 7);
  pixels.Fill({18, 1, 19, 2}, 9);
  for (int row = 0; row < pixels.Rows(); ++row) {
    for (int column = 0; column < pixels.Columns(); ++column) {
      EXPECT_EQ(pixels.Row(row)[column], column >= 18 && row >= 1 ? 9U : 7U) << column << "," << row;
    }
  }
}

TEST(PixelBuffer, TheNextRowIsAStrideAway) {
  const PixelBuffer pixels(20, 3, 7);
  EXPECT_EQ(pixels.Row(2) - pixels.Row(1), pixels.Stride());
}

}  // namespace

}  // namespace zerimo
