#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "classroom/drawings/comparison.h"

namespace zerimo::classroom {
namespace {

constexpr double Step = 50;
constexpr Colour Black = 0;

/// Lines through points given in steps.
Drawing Path(std::vector<Point> points, Colour color = Black) {
  Drawing drawing;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const Point from{points[i - 1].X * Step, points[i - 1].Y * Step};
    drawing.Lines.push_back({from, {points[i].X * Step, points[i].Y * Step}, color});
  }
  return drawing;
}

Drawing Polygon(int corners, double radius) {
  std::vector<Point> points;
  for (int i = 0; i <= corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    points.push_back({100 + radius * std::cos(angle), 100 + radius * std::sin(angle)});
  }
  return Path(points);
}

const Drawing Square = Path({{0, 0}, {0, 60}, {60, 60}, {60, 0}, {0, 0}});
/// An L with a foot: no turn or reflection maps it onto itself.
const Drawing Ell = Path({{0, 0}, {0, 60}, {30, 60}, {30, 50}});

bool AreSame(const Drawing& goal, const Drawing& drawing, const ShapeRules& rules = {}) {
  return Compare(goal, drawing, rules).Same;
}

TEST(Comparison, OrderDirectionSplittingAndColourDoNotCount) {
  EXPECT_TRUE(AreSame(Square, Square));
  EXPECT_TRUE(AreSame(Square, Path({{60, 60}, {60, 0}, {0, 0}, {0, 60}, {60, 60}})));
  EXPECT_TRUE(AreSame(Square, Path({{0, 0}, {60, 0}, {60, 60}, {0, 60}, {0, 0}}, Red)));
  EXPECT_TRUE(AreSame(Square, Path({{0, 0}, {0, 25}, {0, 60}, {60, 60}, {60, 10}, {60, 0}, {0, 0}})));
  Drawing twice = Square;
  twice.Lines.insert(twice.Lines.end(), Square.Lines.begin(), Square.Lines.end());
  EXPECT_TRUE(AreSame(Square, twice));
}

TEST(Comparison, EachOfThemCanBeMadeToCount) {
  const Drawing later = Path({{60, 60}, {60, 0}, {0, 0}, {0, 60}, {60, 60}});
  EXPECT_FALSE(AreSame(Square, later, {.Order = true}));
  EXPECT_TRUE(AreSame(Square, later, {.Direction = true}));
  const Drawing back = Path({{0, 0}, {60, 0}, {60, 60}, {0, 60}, {0, 0}});
  EXPECT_FALSE(AreSame(Square, back, {.Direction = true}));
  EXPECT_TRUE(AreSame(Square, back, {.Splitting = true}));
  const Drawing split = Path({{0, 0}, {0, 25}, {0, 60}, {60, 60}, {60, 0}, {0, 0}});
  EXPECT_FALSE(AreSame(Square, split, {.Splitting = true}));
  EXPECT_TRUE(AreSame(Square, split, {.Order = true, .Direction = true}));
  EXPECT_FALSE(AreSame(Square, Path({{0, 0}, {0, 60}, {60, 60}, {60, 0}, {0, 0}}, Red), {.Colour = true}));
}

TEST(Comparison, TellsWhichRuleAloneIsBroken) {
  using enum StrokeRule;
  using Rules = std::vector<StrokeRule>;
  const ShapeRules all{.Order = true, .Direction = true, .Splitting = true, .Colour = true};
  const Drawing back = Path({{0, 0}, {60, 0}, {60, 60}, {0, 60}, {0, 0}});
  const Drawing split = Path({{0, 0}, {0, 25}, {0, 60}, {60, 60}, {60, 0}, {0, 0}});
  const Drawing later = Path({{60, 60}, {60, 0}, {0, 0}, {0, 60}, {60, 60}});
  EXPECT_EQ(Compare(Square, Square, all).Broken, Rules());
  EXPECT_EQ(Compare(Square, later, all).Broken, Rules{Order});
  EXPECT_EQ(Compare(Square, split, all).Broken, (Rules{Splitting}));
  EXPECT_EQ(Compare(Square, back, all).Broken, (Rules{Order, Direction}));
  EXPECT_EQ(Compare(Square, back, {.Splitting = true}).Broken, Rules());
  EXPECT_EQ(Compare(Square, Path({{0, 0}, {0, 60}, {60, 60}, {60, 0}, {0, 0}}, Red), all).Broken, Rules{Colour});
  EXPECT_EQ(Compare(Square, Ell, all).Broken, Rules());
}

TEST(Comparison, WhereALineBeganDoesNotTurnIt) {
  const Drawing fromTheMiddle = Path({{0, 25}, {0, 60}, {60, 60}, {60, 0}, {0, 0}, {0, 25}});
  EXPECT_TRUE(AreSame(Square, fromTheMiddle, {.Direction = true}));
}

TEST(Comparison, TheToleranceIsAStep) {
  EXPECT_TRUE(AreSame(Square, Path({{0, 0}, {0, 60.9}, {60.5, 60.9}, {60.5, 0}, {0, 0}})));
  EXPECT_FALSE(AreSame(Square, Path({{0, 0}, {0, 63}, {60, 63}, {60, 0}, {0, 0}})));
  EXPECT_TRUE(AreSame(Square, Path({{0, 0}, {0, 63}, {60, 63}, {60, 0}, {0, 0}}), {.Tolerance = 4 * Step}));
}

TEST(Comparison, AFineCircleIsACoarseOne) {
  EXPECT_TRUE(AreSame(Polygon(360, 50), Polygon(72, 50)));
  EXPECT_FALSE(AreSame(Polygon(360, 50), Polygon(6, 50)));
}

TEST(Comparison, CrossingLinesCoverNothing) {
  Drawing comb;
  for (double x = 0; x <= 60; x += 1) comb.Lines.push_back({{x * Step, -500}, {x * Step, 500}, Black});
  EXPECT_FALSE(AreSame(Path({{0, 0}, {60, 0}}), comb));
}

TEST(Comparison, WhatIsMissingAndWhatIsTooMuchIsReported) {
  const ShapeComparison result = Compare(Square, Path({{0, 0}, {0, 60}, {60, 60}, {60, 0}, {30, 0}}), {});
  EXPECT_FALSE(result.Same);
  ASSERT_EQ(result.Missing.Lines.size(), 1U);
  EXPECT_NEAR(result.Missing.Lines[0].Length(), 29 * Step, 1);
  EXPECT_TRUE(result.Extra.IsEmpty());
  EXPECT_NEAR(result.Percent, 100.0 * (450 - 29) / 450, 0.1);
}

TEST(Comparison, AnEmptyDrawingHasNothingOfTheGoal) {
  EXPECT_EQ(Compare(Square, {}, {}).Percent, 0);
  EXPECT_EQ(Compare({}, {}, {}).Percent, 100);
  EXPECT_TRUE(AreSame({}, {}));
}

TEST(Comparison, FiguresHavePartners) {
  Drawing goal;
  goal.Figures = {{{0, 0}, 500, 500, Black, {}}, {{900, 0}, 500, 300, Black, {}}, {{0, 0}, 0, 0, Black, "HI"}};
  Drawing turned = goal;
  std::reverse(turned.Figures.begin(), turned.Figures.end());
  EXPECT_TRUE(AreSame(goal, turned));
  turned.Figures[0].Text = "HO";
  EXPECT_FALSE(AreSame(goal, turned));
  turned = goal;
  turned.Figures[0].Across += 2 * Step;
  EXPECT_FALSE(AreSame(goal, turned));
}

Drawing Changed(const Drawing& drawing, double degrees, bool mirrored, double scale, Point shift) {
  const double angle = degrees * std::numbers::pi / 180;
  Drawing changed = drawing;
  const auto move = [&](Point& point) {
    const double x = (mirrored ? -1 : 1) * point.X * scale;
    const double y = point.Y * scale;
    point = {x * std::cos(angle) - y * std::sin(angle) + shift.X, x * std::sin(angle) + y * std::cos(angle) + shift.Y};
  };
  for (Line& line : changed.Lines) {
    move(line.From);
    move(line.To);
  }
  return changed;
}

TEST(Placement, TellsATurn) {
  const auto placed = Compare(Ell, Changed(Ell, 90, false, 1, {}), {}).Placed;
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->Degrees, 90, 0.1);
  EXPECT_FALSE(placed->Mirrored);
  EXPECT_EQ(placed->Scale, 1);
}

TEST(Placement, TellsAMirror) {
  const auto placed = Compare(Ell, Changed(Ell, 0, true, 1, {}), {}).Placed;
  ASSERT_TRUE(placed);
  EXPECT_TRUE(placed->Mirrored);
  EXPECT_NEAR(placed->Degrees, 0, 0.1);
}

TEST(Placement, TheShiftIsThatOfTheBeginning) {
  for (const Drawing& drawing :
       {Changed(Ell, 90, false, 1, {}), Changed(Ell, 0, true, 1, {}), Changed(Ell, 0, false, 2, {})}) {
    const auto placed = Compare(Ell, drawing, {}).Placed;
    ASSERT_TRUE(placed);
    EXPECT_NEAR(placed->Shift.X, 0, 1);
    EXPECT_NEAR(placed->Shift.Y, 0, 1);
  }
}

TEST(Placement, TellsAScaleAndAShift) {
  auto placed = Compare(Ell, Changed(Ell, 0, false, 1.5, {}), {}).Placed;
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->Scale, 1.5, 0.001);
  EXPECT_NEAR(placed->Degrees, 0, 0.1);
  placed = Compare(Ell, Changed(Ell, 0, false, 1, {500, -1000}), {}).Placed;
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->Shift.X, 500, 1);
  EXPECT_NEAR(placed->Shift.Y, -1000, 1);
}

TEST(Placement, OfSeveralTheFewestChangesAreTold) {
  Drawing star;
  Point at;
  for (int side = 0; side < 5; ++side) {
    const double angle = side * 144 * std::numbers::pi / 180;
    const Point next = {at.X + 1000 * std::sin(angle), at.Y - 1000 * std::cos(angle)};
    star.Lines.push_back({at, next, 0});
    at = next;
  }
  // Turned by 18 degrees and shifted, it would be the same.
  const auto placed = Compare(star, Changed(star, 90, false, 1, {}), {}).Placed;
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->Degrees, 90, 0.1);
  EXPECT_NEAR(std::hypot(placed->Shift.X, placed->Shift.Y), 0, 1);
}

TEST(Placement, ADifferenceWithinTheToleranceIsNotTold) {
  const auto placed = Compare(Ell, Changed(Ell, 90, false, 1.02, {30, 0}), {}).Placed;
  ASSERT_TRUE(placed);
  EXPECT_NEAR(placed->Degrees, 90, 0.1);
  EXPECT_EQ(placed->Scale, 1);
  EXPECT_EQ(placed->Shift.X, 0);
  EXPECT_EQ(placed->Shift.Y, 0);
}

TEST(Placement, ADotIsNoSmallDrawing) { EXPECT_FALSE(Compare(Ell, Changed(Ell, 0, false, 0.04, {}), {}).Placed); }

TEST(Placement, ATinyDrawingIsNoSmallOne) {
  EXPECT_TRUE(Compare(Ell, Changed(Ell, 0, false, 0.12, {}), {.Tolerance = 5}).Placed);
  EXPECT_FALSE(Compare(Ell, Changed(Ell, 0, false, 0.08, {}), {.Tolerance = 5}).Placed);
}

TEST(Placement, OfAnotherDrawingThereIsNone) {
  EXPECT_FALSE(Compare(Square, Ell, {}).Placed);
  EXPECT_FALSE(Compare(Square, {}, {}).Placed);
}

}  // namespace
}  // namespace zerimo::classroom
