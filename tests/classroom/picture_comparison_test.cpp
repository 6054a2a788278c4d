#include "classroom/drawings/picture_comparison.h"

#include <gtest/gtest.h>

#include <QTransform>

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

/// An L of thin lines in a picture of its own size: no turn or reflection maps it onto itself.
QImage Ell(int scale = 1) {
  QImage image(31 * scale, 61 * scale, QImage::Format_RGB32);
  image.fill(Paper);
  for (int y = 0; y < image.height(); ++y) image.setPixel(0, y, Ink);
  for (int x = 0; x < image.width(); ++x) image.setPixel(x, image.height() - 1, Ink);
  return image;
}

/// A large picture with a small one at a place.
QImage With(const QImage& small, QPoint place) {
  QImage image(300, 300, QImage::Format_RGB32);
  image.fill(Paper);
  for (int y = 0; y < small.height(); ++y) {
    for (int x = 0; x < small.width(); ++x) image.setPixel(place.x() + x, place.y() + y, small.pixel(x, y));
  }
  return image;
}

std::optional<Placement> PlacementOfEll(const QImage& small, QPoint place) {
  return PlacementOfPicture(With(Ell(), {100, 100}), With(small, place), 2, 95);
}

TEST(PicturePlacement, TellsAShift) {
  const auto placed = PlacementOfEll(Ell(), {120, 90});
  ASSERT_TRUE(placed);
  EXPECT_EQ(placed->Shift.X, 20 * 15);
  EXPECT_EQ(placed->Shift.Y, -10 * 15);
  EXPECT_EQ(placed->Degrees, 0);
  EXPECT_EQ(placed->Scale, 1);
}

TEST(PicturePlacement, TellsATurnAndAMirror) {
  auto placed = PlacementOfEll(Ell().transformed(QTransform().rotate(-90)), {50, 50});
  ASSERT_TRUE(placed);
  EXPECT_EQ(placed->Degrees, -90);
  EXPECT_FALSE(placed->Mirrored);
  EXPECT_EQ(placed->Shift.X, 0);
  placed = PlacementOfEll(Ell().mirrored(true, false), {100, 100});
  ASSERT_TRUE(placed);
  EXPECT_TRUE(placed->Mirrored);
  EXPECT_EQ(placed->Degrees, 0);
}

TEST(PicturePlacement, TellsAScale) {
  const auto placed = PlacementOfEll(Ell(3), {100, 100});
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->Scale, 3, 0.05);
}

TEST(PicturePlacement, ADotIsNoSmallPicture) {
  const auto square = [](int side) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Ink);
    return image;
  };
  const auto placed = [&square](int from, int to) {
    return PlacementOfPicture(With(square(from), {9, 9}), With(square(to), {9, 9}), 2, 95);
  };
  EXPECT_TRUE(placed(24, 12));
  EXPECT_FALSE(placed(24, 8));
  EXPECT_FALSE(placed(120, 11));
  EXPECT_FALSE(placed(11, 120));
}

TEST(PicturePlacement, OfAnotherPictureThereIsNone) {
  EXPECT_FALSE(PlacementOfPicture(With(Ell(), {100, 100}), With(Bar(0, 9), {100, 100}), 2, 95));
  EXPECT_FALSE(PlacementOfPicture(With(Ell(), {100, 100}), Bar(5, 4), 2, 95));
  EXPECT_FALSE(PlacementOfPicture({}, {}, 2, 95));
}

}  // namespace
}  // namespace zerimo::classroom
