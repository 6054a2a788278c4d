#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <ostream>
#include <utility>
#include <vector>

#include "pixels/canvas_fixture.h"
#include "pixels/hatch.h"

namespace zerimo {

namespace {

using Boxes = CanvasTest;
using Ellipses = CanvasTest;

TEST_F(Boxes, CoverBothCorners) {
  canvas.Box(Pen(White), {Red, Solid}, {10, 20}, {40, 60});
  EXPECT_EQ(Drawn(), Between(10, 20, 40, 60));
  EXPECT_EQ(Count(White), 2 * 31 + 2 * 39);
  EXPECT_EQ(Count(Red), 29 * 39);
}

TEST_F(Boxes, AreTheSameFromAnyCorner) {
  canvas.Box(Pen(White, 3), {Red, UpwardDiagonal}, {10, 20}, {40, 60});
  const std::vector<Pixel> first = PixelsOf(canvas);
  const std::vector<std::pair<PixelPoint, PixelPoint>> diagonals{
      {{40, 60}, {10, 20}}, {{10, 60}, {40, 20}}, {{40, 20}, {10, 60}}};
  for (const auto& [from, to] : diagonals) {
    canvas.Clear(Ground);
    canvas.Box(Pen(White, 3), {Red, UpwardDiagonal}, from, to);
    EXPECT_EQ(PixelsOf(canvas), first);
  }
}

TEST_F(Boxes, OutlineLiesInsideTheBounds) {
  canvas.Box(Pen(White, 6), {Red, Solid}, {10, 20}, {40, 60});
  EXPECT_EQ(Drawn(), Between(10, 20, 40, 60));
  EXPECT_EQ(Count(Red), (31 - 12) * (41 - 12));
}

TEST_F(Boxes, AWideOutlineLeavesNoInside) {
  canvas.Box(Pen(White, 16), {Red, Solid}, {10, 20}, {40, 60});
  EXPECT_EQ(Count(White), 31 * 41);
}

TEST_F(Boxes, OfNoHeightIsALine) {
  canvas.Box(Pen(White), {Red, Solid}, {10, 20}, {40, 20});
  EXPECT_EQ(Count(White), 31);
}

TEST_F(Boxes, OfNoSizeIsAPoint) {
  canvas.Box(Pen(White, 5), {Red, Solid}, {10, 20}, {10, 20});
  EXPECT_EQ(Count(White), 1);
}

class FillStyles : public CanvasTest, public ::testing::WithParamInterface<int> {};

TEST_P(FillStyles, HatchesLeaveWhatIsBelow) {
  canvas.Box(Pen(White), {Red, FillPattern{GetParam()}}, {0, 0}, {95, 95});
  for (int y = 1; y < 95; ++y) {
    for (int x = 1; x < 95; ++x) {
      const bool painted = (HatchOf(FillPattern{GetParam()})[static_cast<std::size_t>(y % 8)] >> (x % 8) & 1) != 0;
      ASSERT_EQ(At(x, y), painted ? Red : Ground) << x << "," << y;
    }
  }
}

TEST_P(FillStyles, HatchesOfNeighboursMeet) {
  canvas.Box(Pen(White), {Red, FillPattern{GetParam()}}, {0, 0}, {95, 95});
  BareCanvas parts;
  parts.Create(96, 96, Ground);
  parts.Box(Pen(White), {Red, FillPattern{GetParam()}}, {0, 0}, {50, 95});
  parts.Box(Pen(White), {Red, FillPattern{GetParam()}}, {45, 0}, {95, 95});
  EXPECT_EQ(parts.ColourAt({60, 30}), At(60, 30));
  for (int y = 1; y < 91; ++y) {
    for (int x = 51; x < 91; ++x) ASSERT_EQ(parts.Pixels().Row(y)[x], canvas.Pixels().Row(y)[x]) << x << "," << y;
  }
}

INSTANTIATE_TEST_SUITE_P(All, FillStyles, ::testing::Range(0, 8));

struct Hatched {
  FillPattern Style;
  bool RunsLevel;
  bool RunsUpright;
  bool RunsUp;
  bool RunsDown;
};

void PrintTo(const Hatched& one, std::ostream* out) { *out << "style " << static_cast<int>(one.Style); }

class HatchDirections : public CanvasTest, public ::testing::WithParamInterface<Hatched> {
 protected:
  /// Whether there are eight pixels in a row, in a direction, that have the colour of the hatch.
  bool Runs(int stepX, int stepY) const {
    for (int y = 40; y < 48; ++y) {
      for (int x = 40; x < 48; ++x) {
        int run = 0;
        while (run < 16 && At(x + run * stepX, y + run * stepY) == Red) ++run;
        if (run == 16) return true;
      }
    }
    return false;
  }
};

TEST_P(HatchDirections, RunAsTheStyleSays) {
  canvas.Box(Pen(White), {Red, GetParam().Style}, {0, 0}, {95, 95});
  EXPECT_EQ(Runs(1, 0), GetParam().RunsLevel);
  EXPECT_EQ(Runs(0, 1), GetParam().RunsUpright);
  EXPECT_EQ(Runs(1, -1), GetParam().RunsUp);
  EXPECT_EQ(Runs(1, 1), GetParam().RunsDown);
}

INSTANTIATE_TEST_SUITE_P(
    All, HatchDirections,
    ::testing::Values(Hatched{Solid, true, true, true, true}, Hatched{Transparent, false, false, false, false},
                      Hatched{Horizontal, true, false, false, false}, Hatched{Vertical, false, true, false, false},
                      Hatched{UpwardDiagonal, false, false, true, false},
                      Hatched{DownwardDiagonal, false, false, false, true}, Hatched{Cross, true, true, false, false},
                      Hatched{DiagonalCross, false, false, true, true}));

TEST_F(Ellipses, FillTheirBounds) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {48, 48}, 30, 20);
  EXPECT_EQ(Drawn(), Between(18, 28, 78, 68));
}

TEST_F(Ellipses, HalfAPixelCountsAsOne) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {48, 48}, 29.5, 20.49);
  EXPECT_EQ(Drawn(), Between(18, 28, 78, 68));
}

TEST_F(Ellipses, OfNoSizeAreAPoint) {
  canvas.Ellipse(Pen(White, 4), {Red, Solid}, {48, 48}, 0, 0);
  EXPECT_EQ(Count(White), 1);
}

TEST_F(Ellipses, OfNoHeightAreALine) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {48, 48}, 30, 0);
  EXPECT_EQ(Count(White), 61);
}

TEST_F(Ellipses, OfNoWidthAreALine) {
  canvas.Ellipse(Pen(White), {Red, Solid}, {48, 48}, 0, 30);
  EXPECT_EQ(Count(White), 61);
}

TEST_F(Ellipses, HaveThePixelsWhoseMiddleLiesInside) {
  canvas.Ellipse(Pen(White, 3), {White, Solid}, {48, 48}, 40, 13);
  for (int y = 0; y < 96; ++y) {
    for (int x = 0; x < 96; ++x) {
      const double inside = std::pow((x - 48) / 40.5, 2) + std::pow((y - 48) / 13.5, 2);
      ASSERT_EQ(At(x, y) == White, inside <= 1) << x << "," << y;
    }
  }
}

/// Many half-axes, up to those of the canvas, each with some widths of the outline.
class EllipseSizes : public CanvasTest {
 protected:
  void ForEach(const std::function<void(int a, int b, int width)>& check) {
    for (const int a : {0, 1, 2, 3, 7, 20, 33, 47}) {
      for (const int b : {0, 1, 2, 5, 20, 46, 47}) {
        for (const int width : {1, 2, 3, 9}) {
          SCOPED_TRACE(::testing::Message() << a << " by " << b << ", width " << width);
          canvas.Clear(Ground);
          canvas.Ellipse(Pen(White, width), {Red, Solid}, {47, 47}, a, b);
          check(a, b, width);
        }
      }
    }
  }
};

TEST_F(EllipseSizes, AreSymmetrical) {
  ForEach([this](int, int, int) {
    const PixelBuffer& pixels = canvas.Pixels();
    for (int y = 0; y < 95; ++y) {
      const std::vector<Pixel> row(pixels.Row(y), pixels.Row(y) + 95);
      ASSERT_TRUE(std::equal(row.begin(), row.end(), row.rbegin())) << y;
      ASSERT_TRUE(std::equal(row.begin(), row.end(), pixels.Row(94 - y))) << y;
    }
  });
}

TEST_F(EllipseSizes, LieInsideTheirBoundsAndReachThem) {
  ForEach([this](int a, int b, int) { ASSERT_EQ(Drawn(), Between(47 - a, 47 - b, 47 + a, 47 + b)); });
}

TEST_F(EllipseSizes, OutlineHoldsAFloodInside) {
  ForEach([this](int, int, int) {
    const int ground = Count(Ground);
    canvas.FloodFill({47, 47}, Green, Rows);
    ASSERT_EQ(Count(Red), 0);
    ASSERT_EQ(Count(Ground), ground);
  });
}

TEST_F(EllipseSizes, OutlineHoldsAFloodOutside) {
  ForEach([this](int, int, int) {
    const int inside = Count(Red);
    canvas.FloodFill({95, 95}, Blue, Rows);
    canvas.FloodFill({0, 0}, Blue, Rows);
    ASSERT_EQ(Count(Red), inside);
    ASSERT_EQ(Count(Ground), 0);
  });
}

struct Outlined {
  int A;
  int B;
  int Width;
};

void PrintTo(const Outlined& one, std::ostream* out) {
  *out << one.A << " by " << one.B << ", " << one.Width << " wide";
}

class EllipseOutlines : public CanvasTest, public ::testing::WithParamInterface<Outlined> {
 protected:
  /// Whether a pixel outside the ellipse is no farther away than the width.
  bool IsNearTheOutside(int x, int y) const {
    const int width = GetParam().Width;
    for (int dy = -width; dy <= width; ++dy) {
      for (int dx = -width; dx <= width; ++dx) {
        const std::optional<Colour> other = canvas.ColourAt({1.0 * (x + dx), 1.0 * (y + dy)});
        const bool isOutside = !other || other == At(0, 0);
        if (dx * dx + dy * dy <= width * width && isOutside) return true;
      }
    }
    return false;
  }
};

TEST_P(EllipseOutlines, AreAsWideAsTheStrokeEverywhere) {
  canvas.Ellipse(Pen(White, GetParam().Width), {Red, Solid}, {47, 47}, GetParam().A, GetParam().B);
  for (int y = 0; y < 96; ++y) {
    for (int x = 0; x < 96; ++x) {
      if (At(x, y) == Ground) continue;
      ASSERT_EQ(At(x, y) == White, IsNearTheOutside(x, y)) << x << "," << y;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Some, EllipseOutlines,
                         ::testing::Values(Outlined{40, 40, 1}, Outlined{40, 40, 5}, Outlined{46, 9, 1},
                                           Outlined{46, 9, 4}, Outlined{12, 45, 6}, Outlined{3, 2, 2}));

TEST_F(Ellipses, AThinOutlineHasNoCorners) {
  canvas.Ellipse(Pen(White), {Red, Transparent}, {48, 48}, 40, 40);
  for (int y = 0; y < 95; ++y) {
    for (int x = 0; x < 95; ++x) {
      const bool isCorner = At(x, y) == White && At(x + 1, y) == White && At(x, y + 1) == White;
      ASSERT_FALSE(isCorner) << x << "," << y;
    }
  }
}

}  // namespace

}  // namespace zerimo
