#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

/// Beyond 16 bits, beyond 32 bits, beyond 64 bits, and the largest single over 15.
const std::vector<double> FarOff{40000, 3e9, 1e19, 2.2e37};

class FarPlaces : public CanvasTest, public ::testing::WithParamInterface<double> {};

TEST_P(FarPlaces, ALineFromInsideGoesOnToTheEdge) {
  for (const int width : {1, 2, 5}) {
    canvas.Clear(Ground);
    canvas.Line(Pen(White, width), {48, 48}, {48, -GetParam()});
    canvas.Line(Pen(White, width), {48, 48}, {GetParam(), 48});
    EXPECT_EQ(At(48, 0), White);
    EXPECT_EQ(At(95, 48), White);
    EXPECT_EQ(At(20, 70), Ground);
  }
}

TEST_P(FarPlaces, ASlantingLineKeepsItsDirection) {
  for (const int width : {1, 3}) {
    canvas.Clear(Ground);
    canvas.Line(Pen(White, width), {0, 0}, {GetParam(), GetParam()});
    for (int place = 0; place < 96; ++place) ASSERT_EQ(At(place, place), White) << place;
    EXPECT_EQ(At(20, 70), Ground);
    EXPECT_EQ(At(70, 20), Ground);
  }
}

TEST_P(FarPlaces, ALineThroughTheCanvasCrossesIt) {
  for (const int width : {1, 4}) {
    canvas.Clear(Ground);
    canvas.Line(Pen(White, width), {-GetParam(), 30}, {GetParam(), 30});
    canvas.Line(Pen(White, width), {60, GetParam()}, {60, -GetParam()});
    canvas.Line(Pen(White, width), {-GetParam(), -GetParam()}, {GetParam(), GetParam()});
    for (int place = 0; place < 96; ++place) {
      ASSERT_EQ(At(place, 30), White) << place;
      ASSERT_EQ(At(60, place), White) << place;
      ASSERT_EQ(At(place, place), White) << place;
    }
  }
}

TEST_P(FarPlaces, LinesFarOffLeaveTheCanvas) {
  const double far = GetParam();
  for (const int width : {1, 2, 50}) {
    canvas.Line(Pen(White, width), {far, far}, {far, far});
    canvas.Line(Pen(White, width), {far, 10}, {2 * far, 20});
    canvas.Line(Pen(White, width), {-far, -2 * far}, {3 * far, -far});
    canvas.Point(Pen(White, width), {-far, 48});
  }
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_P(FarPlaces, ABoxAroundAllIsFilled) {
  canvas.Box(Pen(White, 9), {Red, Solid}, {-GetParam(), -GetParam()}, {GetParam(), GetParam()});
  EXPECT_EQ(Count(Red), 96 * 96);
}

TEST_P(FarPlaces, ABoxThatReachesFarShowsItsNearEdges) {
  canvas.Box(Pen(White, 2), {Red, Solid}, {40, 50}, {GetParam(), GetParam()});
  EXPECT_EQ(Count(White), 2 * 56 + 2 * 44);
  EXPECT_EQ(Count(Red), 54 * 44);
}

TEST_P(FarPlaces, ACircleAroundAllIsFilled) {
  canvas.Ellipse(Pen(White, 9), {Red, Solid}, {48, 48}, GetParam(), GetParam());
  EXPECT_EQ(Count(Red), 96 * 96);
}

TEST_P(FarPlaces, ALongOvalCrossesTheCanvas) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {48, 48}, GetParam(), 10);
  EXPECT_EQ(Count(White), 2 * 96);
  EXPECT_EQ(Count(Red), 19 * 96);
}

TEST_P(FarPlaces, ACircleFarOffLeavesTheCanvas) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {GetParam(), -GetParam()}, 100, 100);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_P(FarPlaces, HaveNoColour) {
  EXPECT_FALSE(canvas.ColourAt({GetParam(), 10}));
  EXPECT_FALSE(canvas.ColourAt({10, -GetParam()}));
}

TEST_P(FarPlaces, AFloodFarOffDoesNothing) {
  canvas.FloodFill({GetParam(), 10}, White, Rows);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

INSTANTIATE_TEST_SUITE_P(All, FarPlaces, ::testing::ValuesIn(FarOff));

using FarSizes = CanvasTest;

TEST_F(FarSizes, AnEndlessCircleIsFilled) {
  const double endless = std::numeric_limits<double>::infinity();
  canvas.Ellipse(Pen(White), {Red, Solid}, {48, 48}, endless, endless);
  EXPECT_EQ(Count(Red), 96 * 96);
}

TEST_F(FarSizes, AStrokeOfAnyWidthCoversTheCanvas) {
  for (const int width : {1000, 32767, std::numeric_limits<int>::max()}) {
    canvas.Clear(Ground);
    canvas.Line(Pen(White, width), {10, 10}, {80, 30});
    EXPECT_EQ(Count(White), 96 * 96) << width;
  }
}

TEST_F(FarSizes, AnOutlineOfAnyWidthFillsItsShape) {
  for (const int width : {1001, 32767, std::numeric_limits<int>::max()}) {
    canvas.Clear(Ground);
    canvas.Ellipse(Pen(White, width), {Red, Solid}, {48, 48}, 1000, 2000);
    EXPECT_EQ(Count(White), 96 * 96) << width;
  }
}

TEST_F(FarSizes, AVeryWideOutlineOfAVeryLargeOval) {
  canvas.Ellipse(Pen(White, 30000), {Red, Solid}, {48 + 60000, 48}, 60000, 50000);
  EXPECT_EQ(At(50, 48), White);
  EXPECT_EQ(Count(Red), 0);
  canvas.Ellipse(Pen(White, 30000), {Red, Solid}, {30000 - 48, 48}, 60000, 50000);
  EXPECT_EQ(At(0, 48), Red);
}

TEST_F(FarSizes, ALargeCircleHasItsEdgeInPlace) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {48 + 1e6, 48}, 1e6, 1e6);
  EXPECT_EQ(At(48, 48), White);
  EXPECT_EQ(At(47, 48), Ground);
  EXPECT_EQ(At(49, 48), Red);
}

}  // namespace

}  // namespace zerimo
