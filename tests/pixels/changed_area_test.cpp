#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "pixels/canvas_fixture.h"

namespace zerimo {

namespace {

using ChangedArea = CanvasTest;

TEST_F(ChangedArea, IsTheWholeCanvasAtTheStart) { EXPECT_EQ(canvas.TakeDirty(), Sized(0, 0, 96, 96)); }

TEST_F(ChangedArea, IsEmptyOnceTaken) {
  canvas.TakeDirty();
  EXPECT_TRUE(canvas.TakeDirty().IsEmpty());
}

TEST_F(ChangedArea, GrowsWithEachOperation) {
  canvas.TakeDirty();
  canvas.Point(Pen(White), {10, 10});
  canvas.Point(Pen(White), {30, 20});
  EXPECT_EQ(canvas.LastChange(), Sized(30, 20, 1, 1));
  EXPECT_EQ(canvas.TakeDirty(), Between(10, 10, 30, 20));
}

TEST_F(ChangedArea, StaysInsideTheCanvas) {
  canvas.TakeDirty();
  canvas.Line(Pen(White, 9), {-1e9, 40}, {1e9, 60});
  EXPECT_TRUE(Holds(Sized(0, 0, 96, 96), canvas.TakeDirty()));
}

TEST_F(ChangedArea, IsEmptyWhereNothingIsSeen) {
  canvas.TakeDirty();
  canvas.Line(Pen(White, 9), {200, 40}, {300, 60});
  canvas.Box(Pen(White), {Red, Solid}, {-20, -20}, {-10, 50});
  canvas.Ellipse(Pen(White), {Red, Solid}, {300, 300}, 20, 20);
  canvas.FloodFill({300, 10}, Red, Rows);
  EXPECT_TRUE(canvas.TakeDirty().IsEmpty());
}

struct Operation {
  std::string Name;
  std::function<void(Canvas&)> Draw;
};

void PrintTo(const Operation& operation, std::ostream* out) { *out << operation.Name; }

class ChangedAreaOf : public CanvasTest, public ::testing::WithParamInterface<Operation> {};

TEST_P(ChangedAreaOf, HoldsAllThatChanged) {
  canvas.TakeDirty();
  GetParam().Draw(canvas);
  const PixelRect drawn = Drawn();
  EXPECT_FALSE(drawn.IsEmpty());
  EXPECT_TRUE(Holds(canvas.LastChange(), drawn));
  EXPECT_TRUE(Holds(canvas.TakeDirty(), drawn));
}

INSTANTIATE_TEST_SUITE_P(
    Each, ChangedAreaOf,
    ::testing::Values(Operation{"Line",
                                [](Canvas& canvas) {
                                  canvas.Line({White, 1, CopyPen}, {5, 80}, {90, 3});
                                }},
                      Operation{"WideLine",
                                [](Canvas& canvas) {
                                  canvas.Line({White, 8, CopyPen}, {5, 80}, {90, 3});
                                }},
                      Operation{"Point",
                                [](Canvas& canvas) {
                                  canvas.Point({White, 7, CopyPen}, {5, 80});
                                }},
                      Operation{"Box",
                                [](Canvas& canvas) {
                                  canvas.Box({White, 3, CopyPen}, {Red, Solid}, {50, 50}, {20, 120});
                                }},
                      Operation{"Ellipse",
                                [](Canvas& canvas) {
                                  canvas.Ellipse({White, 3, CopyPen}, {Red, Solid}, {70, 50}, 40, 9);
                                }},
                      Operation{"FloodFill",
                                [](Canvas& canvas) {
                                  canvas.FloodFill({3, 3}, White, Rows);
                                }},
                      Operation{"Clear", [](Canvas& canvas) { canvas.Clear(White); }}),
    [](const auto& operation) { return operation.param.Name; });

}  // namespace

}  // namespace zerimo
