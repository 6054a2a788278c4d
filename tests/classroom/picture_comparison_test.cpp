#include "classroom/drawings/picture_comparison.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

constexpr QRgb Paper = qRgb(255, 255, 255);
constexpr QRgb Ink = qRgb(0, 0, 0);

/// Ten by ten pixels with a bar from one column to another.
QImage Bar(int from, int to, QRgb ink = Ink, QRgb paper = Paper) {
  QImage image(10, 10, QImage::Format_RGB32);
  image.fill(paper);
  for (int x = from; x <= to; ++x) image.setPixel(x, 5, ink);
  return image;
}

TEST(PictureComparison, IsTheOverlapInPerCent) {
  EXPECT_EQ(ComparePixels(Bar(0, 3), Bar(0, 3), 0, false).Percent, 100);
  EXPECT_EQ(ComparePixels(Bar(0, 3), Bar(2, 5), 0, false).Percent, 100.0 / 3);
  EXPECT_EQ(ComparePixels(Bar(0, 1), Bar(8, 9), 0, false).Percent, 0);
}

TEST(PictureComparison, NearPixelsMeet) { EXPECT_EQ(ComparePixels(Bar(0, 3), Bar(1, 4), 1, false).Percent, 100); }

TEST(PictureComparison, TheBackgroundIsTheCommonestColour) {
  EXPECT_EQ(ComparePixels(Bar(0, 3), Bar(0, 3, Paper, Ink), 0, false).Percent, 100);
}

TEST(PictureComparison, ColoursCountIfTheyShall) {
  EXPECT_EQ(ComparePixels(Bar(0, 3), Bar(0, 3, qRgb(255, 0, 0)), 0, false).Percent, 100);
  EXPECT_EQ(ComparePixels(Bar(0, 3), Bar(0, 3, qRgb(255, 0, 0)), 0, true).Percent, 0);
}

TEST(PictureComparison, TheDifferenceShowsWhereOnlyOneIsDrawn) {
  const QImage difference = ComparePixels(Bar(0, 3), Bar(2, 5), 0, false).Difference;
  EXPECT_EQ(difference.pixelColor(0, 0), QColor(255, 255, 255));
  EXPECT_EQ(difference.pixelColor(0, 5), QColor(0, 90, 200));
  EXPECT_EQ(difference.pixelColor(2, 5), QColor(170, 170, 170));
  EXPECT_EQ(difference.pixelColor(5, 5), QColor(225, 100, 0));
}

TEST(PictureComparison, AMissingPictureHasNothing) { EXPECT_EQ(ComparePixels(Bar(0, 3), {}, 0, false).Percent, 0); }

}  // namespace
}  // namespace zerimo::classroom
