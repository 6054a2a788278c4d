#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <sstream>
#include <string>

#include "pictures/image_canvas.h"
#include "reference/pixels/image_canvas.h"

namespace zerimo {

namespace {

constexpr int Columns = 211;
constexpr int Rows = 157;

/// Draws the same on the canvas and on the plain reference canvas.
class SideBySide : public ::testing::TestWithParam<unsigned> {
 protected:
  SideBySide() : random_(GetParam()) {
    canvas_.Create(Columns, Rows, 0x402010);
    plain_.Create(Columns, Rows, 0x402010);
  }

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  Colour AnyColour() { return Below(3) == 0 ? static_cast<Colour>(random_() & 0xFFFFFF) : Below(4) * 0x554433; }

  double AnyPlace(int size) {
    switch (Below(12)) {
      case 0:
        return Below(2'000'000) - 1'000'000;
      case 1:
        return std::floor(std::ldexp(Below(1000) - 500, Below(100)));
      default:
        return Below(2 * size) - size / 2;
    }
  }
  PixelPoint AnyPoint() { return {AnyPlace(Columns), AnyPlace(Rows)}; }

  /// A place not far away: turtles take many short steps.
  PixelPoint Near(PixelPoint point) {
    const int reach = 1 + Below(40);
    return {point.X + Below(2 * reach + 1) - reach, point.Y + Below(2 * reach + 1) - reach};
  }

  int AnyWidth() {
    switch (Below(16)) {
      case 0:
        return 1 + Below(3000);
      case 1:
        return Below(5) == 0 ? 1 + Below(1 << 30) : 60 + Below(10);
      default:
        return 1 + Below(12);
    }
  }

  Stroke AnyStroke() {
    return {AnyColour(), Below(3) == 0 ? AnyWidth() : 4, DrawingMode{Below(3) == 0 ? 1 + Below(16) : 13}};
  }

  template <typename Operation>
  void Both(Operation&& operation) {
    operation(static_cast<Canvas&>(canvas_));
    operation(static_cast<Canvas&>(plain_));
  }

  void DrawSomething() {
    const Stroke stroke = AnyStroke();
    const Filling filling{AnyColour(), FillPattern{Below(8)}};
    const PixelPoint from = AnyPoint();
    const PixelPoint to = Below(2) == 0 ? AnyPoint() : Near(from);
    const PixelPoint half{Below(4) == 0 ? std::abs(AnyPlace(Columns)) + 0.25 * Below(4) : Below(80),
                          Below(4) == 0 ? std::abs(AnyPlace(Rows)) + 0.25 * Below(4) : Below(80)};
    const int rows = Below(Rows + 10);
    const int operation = Below(20);
    drawn_.str({});
    drawn_ << operation << ": from " << from.X << "," << from.Y << " to " << to.X << "," << to.Y << " half " << half.X
           << "," << half.Y << " width " << stroke.Width << " mode " << static_cast<int>(stroke.DrawMode) << " style "
           << static_cast<int>(filling.Style) << " rows " << rows;
    switch (operation) {
      case 0:
        return Both([&](Canvas& each) { each.Box(stroke, filling, from, to); });
      case 1:
        return Both([&](Canvas& each) { each.Ellipse(stroke, filling, from, half.X, half.Y); });
      case 2:
        return Both([&](Canvas& each) { each.FloodFill(from, filling.Color, rows); });
      case 3:
        return Both([&](Canvas& each) { each.Point(stroke, from); });
      case 4:
        if (Below(20) == 0) return Both([&](Canvas& each) { each.Clear(filling.Color); });
        [[fallthrough]];
      default:
        return Both([&](Canvas& each) { each.Line(stroke, from, to); });
    }
  }

  bool AreTheSame() const {
    for (int row = 0; row < Rows; ++row) {
      if (std::memcmp(canvas_.Pixels().Row(row), plain_.Image().constScanLine(row), Columns * sizeof(Pixel)) != 0) {
        return false;
      }
    }
    return true;
  }

  ImageCanvas canvas_;
  reference::ImageCanvas plain_;
  std::ostringstream drawn_;

 private:
  std::mt19937 random_;
};

TEST_P(SideBySide, EveryOperationLeavesTheSamePixelsAsThePlainOne) {
  for (int round = 0; round < 4000; ++round) {
    DrawSomething();
    ASSERT_TRUE(AreTheSame()) << round << ", " << drawn_.str();
    const PixelPoint at = AnyPoint();
    ASSERT_EQ(canvas_.ColourAt(at), plain_.ColourAt(at));
    ASSERT_EQ(ToQRect(canvas_.LastChange()), plain_.LastChange()) << round << ", " << drawn_.str();
  }
  EXPECT_EQ(ToQRect(canvas_.TakeDirty()), plain_.TakeDirty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, SideBySide, ::testing::Range(1U, 9U));

/// Every short line of a turtle, even if an edge of the line runs exactly through the middles of pixels.
TEST(SideBySideOfShortLines, OfAllUsualWidths) {
  ImageCanvas canvas;
  reference::ImageCanvas plain;
  canvas.Create(160, 160, 0);
  plain.Create(160, 160, 0);
  for (const int width : {1, 2, 3, 4, 5, 6, 7, 8, 9, 16, 32, 33}) {
    for (int dx = -21; dx <= 21; ++dx) {
      for (int dy = -21; dy <= 21; ++dy) {
        const Stroke stroke{0xFFFFFF, width, DrawingMode::ExclusiveOr};
        const PixelPoint from{80.0 + (dy & 7), 80.0 - (dx & 7)};
        const PixelPoint to{from.X + dx, from.Y + dy};
        canvas.Line(stroke, from, to);
        plain.Line(stroke, from, to);
        ASSERT_EQ(canvas.Image(), plain.Image()) << dx << "," << dy << " width " << width;
      }
    }
  }
}

/// Long lines in all directions: their rows are as narrow as a pen, or wider, and some leave the canvas.
TEST(SideBySideOfLongLines, OfAllUsualWidths) {
  constexpr int size = 260;
  constexpr int directions = 250;
  ImageCanvas canvas;
  reference::ImageCanvas plain;
  canvas.Create(size, size, 0);
  plain.Create(size, size, 0);
  for (const int width : {2, 3, 4, 5, 6, 7, 8, 9}) {
    for (int direction = 0; direction < directions; ++direction) {
      const double angle = 2 * std::acos(-1) * direction / directions;
      const double length = 90 + direction % 50;
      const Stroke stroke{direction * 0x010305, width, DrawingMode::CopyPen};
      const PixelPoint from{125.0 + direction % 7, 125.0 + direction % 5};
      const PixelPoint to{std::round(from.X + length * std::cos(angle)), std::round(from.Y + length * std::sin(angle))};
      canvas.Line(stroke, from, to);
      plain.Line(stroke, from, to);
      ASSERT_EQ(canvas.Image(), plain.Image()) << to.X << "," << to.Y << " width " << width;
    }
  }
}

TEST(ImageOfACanvas, IsSeenWithoutACopy) {
  ImageCanvas canvas;
  canvas.Create(20, 10, 0);
  EXPECT_EQ(static_cast<const void*>(canvas.Image().constBits()), static_cast<const void*>(canvas.Pixels().Row(0)));
}

}  // namespace

}  // namespace zerimo
