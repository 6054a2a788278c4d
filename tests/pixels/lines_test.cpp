#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

using Lines = CanvasTest;

TEST_F(Lines, BothEndsBelongToALine) {
  canvas.Line(Pen(White), {10, 20}, {40, 31});
  EXPECT_EQ(At(10, 20), White);
  EXPECT_EQ(At(40, 31), White);
}

TEST_F(Lines, ALineOfOnePointIsOnePixel) {
  canvas.Line(Pen(White), {10, 20}, {10, 20});
  EXPECT_EQ(At(10, 20), White);
  EXPECT_EQ(Count(White), 1);
}

TEST_F(Lines, ALevelLineHasOnePixelAColumn) {
  canvas.Line(Pen(White), {10, 20}, {70, 45});
  EXPECT_EQ(Count(White), 61);
  EXPECT_EQ(Drawn(), Between(10, 20, 70, 45));
}

TEST_F(Lines, ASteepLineHasOnePixelARow) {
  canvas.Line(Pen(White), {10, 90}, {33, 12});
  EXPECT_EQ(Count(White), 79);
}

TEST_F(Lines, PixelsLieNearestToTheLine) {
  canvas.Line(Pen(White), {3, 5}, {90, 37});
  for (int x = 3; x <= 90; ++x) EXPECT_EQ(At(x, static_cast<int>(std::lround(5 + (x - 3) * 32.0 / 87))), White) << x;
}

TEST_F(Lines, GoingBackOverALineErasesIt) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> place(-40, 130);
  for (int round = 0; round < 500; ++round) {
    const PixelPoint from{1.0 * place(random), 1.0 * place(random)};
    const PixelPoint to{1.0 * place(random), 1.0 * place(random)};
    const int width = 1 + round % 9;
    canvas.Line(Pen(White, width), from, to);
    canvas.Line(Pen(Ground, width), to, from);
    ASSERT_EQ(Count(Ground), 96 * 96) << round;
  }
}

TEST_F(Lines, ALevelLineIsAsThickAsItsWidth) {
  for (int width = 1; width <= 20; ++width) {
    canvas.Clear(Ground);
    canvas.Line(Pen(White, width), {40, 48}, {60, 48});
    EXPECT_EQ(Drawn(), Sized(40 - width / 2, 48 - width / 2, 20 + width, width)) << width;
  }
}

TEST_F(Lines, AnUprightLineIsAsThickAsItsWidth) {
  for (int width = 1; width <= 20; ++width) {
    canvas.Clear(Ground);
    canvas.Line(Pen(White, width), {48, 40}, {48, 60});
    EXPECT_EQ(Drawn(), Sized(48 - width / 2, 40 - width / 2, width, 20 + width)) << width;
  }
}

TEST_F(Lines, ASlantingLineIsAsThickAsItsWidth) {
  canvas.Line(Pen(White, 10), {20, 20}, {76, 62});
  // The line is 70 pixels long.
  EXPECT_NEAR(Count(White), 70 * 10 + M_PI * 25, 12);
}

TEST_F(Lines, EndsOfWideLinesAreRound) {
  canvas.Line(Pen(White, 11), {20, 48}, {70, 48});
  EXPECT_EQ(At(15, 48), White);
  EXPECT_EQ(At(75, 48), White);
  EXPECT_EQ(At(15, 43), Ground);
  EXPECT_EQ(At(75, 53), Ground);
}

TEST_F(Lines, WideLinesHaveThePixelsThatAreNearEnough) {
  canvas.Line(Pen(White, 7), {20, 30}, {70, 53});
  for (int y = 0; y < 96; ++y) {
    for (int x = 0; x < 96; ++x) {
      const double along = std::clamp(((x - 20) * 50.0 + (y - 30) * 23.0) / (50 * 50 + 23 * 23), 0.0, 1.0);
      const double distance = std::hypot(x - 20 - along * 50, y - 30 - along * 23);
      ASSERT_EQ(At(x, y) == White, distance <= 3.5) << x << "," << y;
    }
  }
}

TEST_F(Lines, PointsAreAsWideAsTheStroke) {
  for (int width = 1; width <= 30; ++width) {
    canvas.Clear(Ground);
    canvas.Point(Pen(White, width), {48, 48});
    EXPECT_EQ(Drawn(), Sized(48 - width / 2, 48 - width / 2, width, width)) << width;
  }
}

TEST_F(Lines, WidePointsAreRound) {
  canvas.Point(Pen(White, 20), {48, 48});
  EXPECT_NEAR(Count(White), M_PI * 100, 12);
}

/// Drawings that are inverted twice: what they leave, and how often a pixel is inverted.
class InvertedTwice : public CanvasTest, public ::testing::WithParamInterface<int> {};

TEST_P(InvertedTwice, LinesLeaveNothing) {
  const Stroke pen = Pen(Black, GetParam(), Invert);
  for (int turn = 0; turn < 2; ++turn) {
    canvas.Line(pen, {-5, 12}, {103, 71});
    canvas.Line(pen, {50, 3}, {44, 90});
    canvas.Point(pen, {30, 30});
    ASSERT_EQ(Count(Ground) == 96 * 96, turn == 1);
  }
}

TEST_P(InvertedTwice, EachPixelOfALineIsInvertedOnce) {
  BareCanvas copied;
  copied.Create(96, 96, Ground);
  canvas.Line(Pen(Black, GetParam(), Invert), {10, 80}, {83, 33});
  copied.Line(Pen(~Ground & White, GetParam()), {10, 80}, {83, 33});
  EXPECT_EQ(PixelsOf(canvas), PixelsOf(copied));
}

TEST_P(InvertedTwice, ShapesLeaveNothing) {
  const Stroke pen = Pen(Black, GetParam(), Invert);
  for (int turn = 0; turn < 2; ++turn) {
    canvas.Box(pen, {Red, Solid}, {-5, 12}, {60, 71});
    canvas.Ellipse(pen, {Red, DiagonalCross}, {60, 50}, 40, 20);
    ASSERT_EQ(Count(Ground) == 96 * 96, turn == 1);
  }
}

TEST_P(InvertedTwice, EachPixelOfAnEllipseIsInvertedOnce) {
  BareCanvas copied;
  copied.Create(96, 96, Ground);
  const Colour inverted = ~Ground & White;
  canvas.Ellipse(Pen(Black, GetParam(), Invert), {Red, Solid}, {50, 40}, 37, 29);
  copied.Ellipse(Pen(inverted, GetParam()), {inverted, Solid}, {50, 40}, 37, 29);
  EXPECT_EQ(PixelsOf(canvas), PixelsOf(copied));
}

INSTANTIATE_TEST_SUITE_P(Widths, InvertedTwice, ::testing::Values(1, 2, 5, 17));

}  // namespace

}  // namespace zerimo
