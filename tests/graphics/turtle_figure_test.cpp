#include "graphics/turtle_figure.h"

#include <cmath>

#include "graphics/drawing_test.h"

namespace zerimo {
namespace {

using TurtleFigureTest = DrawingTest;

void ExpectLine(const LightLine& line, float x1, float y1, float x2, float y2) {
  EXPECT_NEAR(line.X1, x1, 0.01);
  EXPECT_NEAR(line.Y1, y1, 0.01);
  EXPECT_NEAR(line.X2, x2, 0.01);
  EXPECT_NEAR(line.Y2, y2, 0.01);
}

TEST_F(TurtleFigureTest, HeadIsACircleOf160UnitsLying230UnitsAhead) {
  turtleFigure.TurtlePos(1000, 2000, 0);
  EXPECT_EQ(controls.Shape2.Width, 160);
  EXPECT_EQ(controls.Shape2.Height(), 160);
  EXPECT_NEAR(controls.Shape2.Left, 920, 0.01);
  EXPECT_NEAR(controls.Shape2.Top, 1690, 0.01);
}

TEST_F(TurtleFigureTest, LookingUpTheBodyIsATriangleWithItsTipAbove) {
  turtleFigure.TurtlePos(1000, 2000, 0);
  ExpectLine(controls.Line1, 1247.487F, 2247.487F, 752.513F, 2247.487F);
  ExpectLine(controls.Line2, 1000, 1752.513F, 1247.487F, 2247.487F);
  ExpectLine(controls.Line3, 1000, 1752.513F, 752.513F, 2247.487F);
}

TEST_F(TurtleFigureTest, LookingRightTheTipLiesToTheRight) {
  turtleFigure.TurtlePos(1000, 2000, 3.1415927 / 2);
  ExpectLine(controls.Line1, 752.513F, 2247.487F, 752.513F, 1752.513F);
  ExpectLine(controls.Line2, 1247.487F, 2000, 752.513F, 2247.487F);
  ExpectLine(controls.Line3, 1247.487F, 2000, 752.513F, 1752.513F);
  EXPECT_NEAR(controls.Shape2.Left, 1000 + 230 - 80, 0.01);
  EXPECT_NEAR(controls.Shape2.Top, 2000 - 80, 0.01);
}

TEST_F(TurtleFigureTest, SizeDoesNotFollowTheResolution) {
  turtle.Resolution = 500;
  Do("REFRESH");
  EXPECT_EQ(controls.Shape2.Width, 160);
  ExpectLine(controls.Line1, 1247.487F, 2247.487F, 752.513F, 2247.487F);
}

TEST_F(TurtleFigureTest, DrawsNothing) { EXPECT_EQ(Do("REFRESH"), Nothing); }

TEST_F(TurtleFigureTest, PositionBeyondSinglesFails) { EXPECT_THROW(turtleFigure.TurtlePos(1E300, 0, 0), Failure); }

TEST_F(TurtleFigureTest, AMoveThatFailsMovesSomeOfItFromTheLastPlace) {
  turtleFigure.TurtlePos(1000, 2000, 0);
  turtleFigure.TurtlePos(1500, 2000, 0);
  EXPECT_THROW(turtleFigure.TurtlePos(1E300, 0, 0), Failure);
  EXPECT_NEAR(controls.Shape2.Left, 1420, 0.01);
  EXPECT_NEAR(controls.Line2.X1, 1500, 0.01);
  turtleFigure.TurtlePos(1500, 2000, 0);
  turtleFigure.TurtlePos(1600, 2000, 0);
  EXPECT_NEAR(controls.Shape2.Left, 1520, 0.01);
}

TEST_F(TurtleFigureTest, TurtleColorReducesTheCallersNumber) {
  double code = 17;
  turtleFigure.TurtleColor(code);
  EXPECT_EQ(code, 1);
  EXPECT_EQ(controls.Shape2.BorderColor, QBColor(1));
  EXPECT_EQ(controls.Line1.BorderColor, QBColor(1));
  EXPECT_EQ(controls.Line2.BorderColor, QBColor(1));
  EXPECT_EQ(controls.Line3.BorderColor, QBColor(1));
}

TEST_F(TurtleFigureTest, TurtleColorRoundsHalfToEvenFirst) {
  double code = 3.5;
  turtleFigure.TurtleColor(code);
  EXPECT_EQ(code, 4);
  code = 2.5;
  turtleFigure.TurtleColor(code);
  EXPECT_EQ(code, 2);
}

TEST_F(TurtleFigureTest, NegativeTurtleColorFailsAndLeavesTheColours) {
  double code = -1;
  EXPECT_THROW(turtleFigure.TurtleColor(code), Failure);
  EXPECT_EQ(code, -1);
  EXPECT_EQ(controls.Shape2.BorderColor, 0xFFFFFF);
  EXPECT_EQ(controls.Line3.BorderColor, 0xFFFFFF);
}

TEST_F(TurtleFigureTest, TurtleColorRGBRoundsEachPart) {
  turtleFigure.TurtleColorRGB(300, 2.5, 3.5);
  const Colour colour = 255 + 256 * 2 + 65536 * 4;
  EXPECT_EQ(controls.Shape2.BorderColor, colour);
  EXPECT_EQ(controls.Line1.BorderColor, colour);
  EXPECT_EQ(controls.Line2.BorderColor, colour);
  EXPECT_EQ(controls.Line3.BorderColor, colour);
}

TEST_F(TurtleFigureTest, TurtleColorRGBBeyond16BitsFails) {
  EXPECT_THROW(turtleFigure.TurtleColorRGB(40000, 0, 0), Failure);
  EXPECT_EQ(controls.Shape2.BorderColor, 0xFFFFFF);
}

}  // namespace
}  // namespace zerimo
