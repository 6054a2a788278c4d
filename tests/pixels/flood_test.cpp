#include <gtest/gtest.h>

#include <queue>
#include <random>
#include <utility>
#include <vector>

#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

using Floods = CanvasTest;

TEST_F(Floods, AreaOfOneColourGetsTheFill) {
  canvas.Box(Pen(White), {Red, Solid}, {10, 10}, {50, 50});
  canvas.FloodFill({30, 30}, Green, Rows);
  EXPECT_EQ(Count(Green), 39 * 39);
  EXPECT_EQ(Count(Red), 0);
}

TEST_F(Floods, TheColourThatIsThereAlreadyChangesNothing) {
  canvas.FloodFill({30, 30}, Ground, Rows);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(Floods, AGapOfOnePixelLetsTheFillThrough) {
  canvas.Line(Pen(White), {0, 50}, {95, 50});
  canvas.Point(Pen(Ground), {70, 50});
  canvas.FloodFill({10, 10}, Green, Rows);
  EXPECT_EQ(At(10, 90), Green);
}

TEST_F(Floods, DiagonalNeighboursDoNotLetTheFillThrough) {
  canvas.Line(Pen(White), {0, 0}, {95, 95});
  canvas.FloodFill({90, 10}, Green, Rows);
  EXPECT_EQ(At(10, 90), Ground);
  EXPECT_EQ(Count(Green), 96 * 95 / 2);
}

TEST_F(Floods, TheCornersOfTheCanvasAreReached) {
  canvas.FloodFill({48, 48}, Green, Rows);
  EXPECT_EQ(Count(Green), 96 * 96);
}

TEST_F(Floods, NothingHappensOutsideTheCanvas) {
  for (const PixelPoint at : {PixelPoint{-1, 5}, {5, -1}, {96, 5}, {5, 96}}) canvas.FloodFill(at, Green, Rows);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(Floods, RowsBelowAreLeftAsTheyAre) {
  canvas.FloodFill({30, 30}, Green, 40);
  EXPECT_EQ(Count(Green), 96 * 40);
  EXPECT_EQ(At(0, 39), Green);
  EXPECT_EQ(At(0, 40), Ground);
}

TEST_F(Floods, RowsBelowDoNotJoinWhatAWallParts) {
  canvas.Line(Pen(White), {50, 0}, {50, 39});
  canvas.FloodFill({30, 30}, Green, 40);
  EXPECT_EQ(Count(Green), 50 * 40);
}

TEST_F(Floods, NothingHappensBelowTheRows) {
  canvas.FloodFill({30, 40}, Green, 40);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

/// The pixels after a flood that is done in the simplest way.
std::vector<Pixel> FloodedPlainly(PixelBuffer pixels, int atX, int atY, Pixel fill) {
  const Pixel old = pixels.Row(atY)[atX];
  std::queue<std::pair<int, int>> open({{atX, atY}});
  while (!open.empty()) {
    const auto [x, y] = open.front();
    open.pop();
    const bool isInside = x >= 0 && x < pixels.Columns() && y >= 0 && y < pixels.Rows();
    if (!isInside || pixels.Row(y)[x] != old || old == fill) continue;
    pixels.Row(y)[x] = fill;
    for (const auto& [right, down] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}}) open.emplace(x + right, y + down);
  }
  return PixelsOf(pixels);
}

TEST_F(Floods, AgreeWithThePlainestWayOnRandomPictures) {
  std::mt19937 random(11);
  const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
  for (int round = 0; round < 200; ++round) {
    BareCanvas noise;
    noise.Create(37, 29, Ground);
    for (int dot = 0; dot < 37 * 29 * (round % 6) / 10; ++dot) {
      noise.Point(Pen(White), {1.0 * below(37), 1.0 * below(29)});
    }
    const int x = below(37);
    const int y = below(29);
    const std::vector<Pixel> expected = FloodedPlainly(noise.Pixels(), x, y, 0xFF00FF00);
    noise.FloodFill({1.0 * x, 1.0 * y}, Green, 29);
    ASSERT_EQ(PixelsOf(noise), expected) << round;
  }
}

/// A surface of the largest screen.
class LargeFloods : public ::testing::Test {
 protected:
  LargeFloods() { canvas.Create(Width, Height, Ground); }

  void Wall(double x1, double y1, double x2, double y2) { canvas.Line({White, 1, CopyPen}, {x1, y1}, {x2, y2}); }

  /// A flood that does not end in time ends the test program.
  void Flood(PixelPoint at) { canvas.FloodFill(at, Green, Height); }

  static constexpr int Width = 3840;
  static constexpr int Height = 2160;
  BareCanvas canvas;
};

TEST_F(LargeFloods, OfTheWholeSurface) {
  Flood({1000, 1000});
  EXPECT_EQ(canvas.ColourAt({0, 0}), Green);
  EXPECT_EQ(canvas.ColourAt({Width - 1, Height - 1}), Green);
}

TEST_F(LargeFloods, ThroughAMazeOfLevelWays) {
  for (int y = 1; y < Height; y += 2) Wall(y % 4 == 1 ? 1 : 0, y, y % 4 == 1 ? Width - 1 : Width - 2, y);
  Flood({0, 0});
  EXPECT_EQ(canvas.ColourAt({0, Height - 2}), Green);
}

TEST_F(LargeFloods, ThroughAMazeOfUprightWays) {
  for (int x = 1; x < Width; x += 2) Wall(x, x % 4 == 1 ? 1 : 0, x, x % 4 == 1 ? Height - 1 : Height - 2);
  Flood({0, 0});
  EXPECT_EQ(canvas.ColourAt({Width - 2, 0}), Green);
}

TEST_F(LargeFloods, ThroughACheckerboardOfOpenCorners) {
  for (int y = 1; y < Height; y += 2) {
    for (int x = 1; x < Width; x += 2) canvas.Point({White, 1, CopyPen}, {1.0 * x, 1.0 * y});
  }
  Flood({0, 0});
  EXPECT_EQ(canvas.ColourAt({Width - 2, Height - 1}), Green);
  EXPECT_EQ(canvas.ColourAt({1, 1}), White);
}

TEST_F(LargeFloods, StayInASquareOfAClosedCheckerboard) {
  for (int y = 0; y < 64; ++y) {
    for (int x = y % 2; x < 64; x += 2) canvas.Point({White, 1, CopyPen}, {1.0 * x, 1.0 * y});
  }
  Flood({10, 11});
  EXPECT_EQ(canvas.ColourAt({10, 11}), Green);
  EXPECT_EQ(canvas.ColourAt({12, 11}), Ground);
  EXPECT_EQ(canvas.ColourAt({11, 12}), Ground);
}

}  // namespace

}  // namespace zerimo
